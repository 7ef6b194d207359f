#include "model/sample_documents.h"

#include <bit>
#include <cmath>
#include <random>

namespace velmora {

namespace {

Settings freshSettings() {
    Settings settings;
    settings.host = "velmora.local";
    return settings;
}

template <class T>
T decoded(std::string_view json, KeyStyle keys = KeyStyle::fieldNames) {
    auto result = decode<T>(json, keys);
    EXPECT_EQ(result.error, "");
    return result.value.value_or(T{});
}

} // namespace

TEST(JsonForm, AFreshRecordHasEveryKeyInFieldOrderWithItsDefault) {
    EXPECT_EQ(encode(freshSettings()), settingsDocument);
    EXPECT_EQ(encode(LiveState::initial()), quietDocument) << "absent optional fields leave no key";
}

TEST(JsonForm, ADocumentReadAndWrittenAgainIsTheSameBytes) {
    using Missions = std::vector<MissionRecord>;
    const auto server = KeyStyle::snakeCase;
    EXPECT_EQ(encode(decoded<Settings>(settingsDocument)), settingsDocument);
    EXPECT_EQ(encode(decoded<LiveState>(quietDocument)), quietDocument);
    EXPECT_EQ(encode(decoded<LiveState>(busyServerDocument, server), server), busyServerDocument);
    EXPECT_EQ(encode(decoded<Missions>(historyDocument)), historyDocument);
    EXPECT_EQ(decoded<LiveState>(*encode(LiveState::initial())), LiveState::initial());
    EXPECT_EQ(encode(Missions{}), "[]");
}

TEST(JsonForm, EveryKeyOfTheServerLandsInTheFieldItNames) {
    const auto state = decoded<LiveState>(busyServerDocument, KeyStyle::snakeCase);
    EXPECT_EQ(state.phase, Phase::awaitingApproval) << "raw values are no keys";
    EXPECT_EQ(state.missionId, "M-42");
    EXPECT_EQ(secondsSince1970(state.missionStart.value()), 1748786592);
    EXPECT_EQ(*state.approvalDeadline - *state.missionStart, Seconds{60});
    EXPECT_EQ(state.drone.pos, (P{1.5, 2.5}));
    EXPECT_EQ(state.drone.signal, 0.5);
    EXPECT_EQ(state.visitor.value().cameraId, "front");
    EXPECT_EQ(state.visitor->label, "Zoë");
    EXPECT_EQ(state.windKmh, 13);
    EXPECT_EQ(state.gustKmh, 14);
    EXPECT_TRUE(state.atBoundary);
    EXPECT_EQ(state.trackingMode, "native");
    EXPECT_EQ(state.notices.at(0).level, Notice::Level::alert);
    EXPECT_EQ(state.site.planImage, "plan-base");
}

TEST(JsonForm, SnakeCaseReadingRaisesTheLetterAfterEachInnerUnderscoreOnly) {
    const auto reads = [](std::string_view key) {
        const std::string text = changed(busyServerDocument, "\"mission_id\"", key);
        const auto state = decode<LiveState>(text, KeyStyle::snakeCase).value;
        return state && state->missionId == "M-42";
    };
    EXPECT_TRUE(reads("\"mission_id\""));
    EXPECT_TRUE(reads("\"missionId\"")) << "a server that sends the field names is read as well";
    EXPECT_TRUE(reads("\"mission__id\""));
    for (const char* other :
         {"\"_mission_id\"", "\"mission_id_\"", "\"__missionId\"", "\"mission_iD\"", "\"_\""})
        EXPECT_FALSE(reads(other)) << other;
    EXPECT_FALSE(decode<LiveState>(busyServerDocument)) << "files use the field names only";
}

TEST(JsonForm, OptionalFieldsMayBeMissingOrNull) {
    const auto quiet = decoded<LiveState>(quietDocument);
    EXPECT_FALSE(quiet.missionId || quiet.missionStart || quiet.approvalDeadline || quiet.visitor);
    const std::string nulls = changed(
        quietDocument, R"("phase":"docked",)",
        R"("phase":"docked","missionId":null,"missionStart":null,"approvalDeadline":null,"visitor":null,)");
    EXPECT_EQ(decoded<LiveState>(nulls), quiet);
}

TEST(JsonForm, KeyOrderUnknownKeysAndSpaceDoNotMatter) {
    const P wanted{1, 2};
    EXPECT_EQ(decoded<P>(R"( { "y" : 2 ,"z":{"x":[null,{}]}, "x" : 1.0 } )"
                         "\n"),
              wanted);
    EXPECT_EQ(decoded<P>(R"({"x":10e-1,"x_":3,"Y":null,"y":2.0})", KeyStyle::snakeCase), wanted);
    const std::string extra = changed(settingsDocument, "{\"linkMode\"", R"({"theme":"dark","linkMode")");
    EXPECT_EQ(decoded<Settings>(extra), freshSettings());
}

TEST(JsonForm, SwitchesKeepTheCamerasTheyAreSetFor) {
    Settings settings;
    settings.alertUnknownFaces = {{"front", false}, {"côté", true}};
    settings.alertPeople = {{"", true}, {"alert_people", false}};
    EXPECT_EQ(decoded<Settings>(*encode(settings)), settings);
    EXPECT_EQ(decoded<Settings>(*encode(settings, KeyStyle::snakeCase), KeyStyle::snakeCase), settings)
        << "ids are values, not keys of a record";
}

TEST(JsonForm, DoublesSurviveToTheLastBit) {
    std::mt19937_64 bits(1);
    std::vector<double> numbers{0.1,
                                -0.0,
                                1e-300,
                                5e-324,
                                1.7976931348623157e308,
                                0.30000000000000004,
                                1e23,
                                9007199254740993.0,
                                1748786592.1234567,
                                2.2250738585072014e-308};
    while (numbers.size() < 20'000)
        if (const double number = std::bit_cast<double>(bits()); std::isfinite(number))
            numbers.push_back(number);
    for (const double number : numbers) {
        const auto text = encode(P{number, 0});
        ASSERT_TRUE(text) << number;
        const P back = decoded<P>(*text);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back.x), std::bit_cast<std::uint64_t>(number)) << *text;
    }
}

TEST(JsonForm, WhatTheFormCannotHoldIsNotWritten) {
    const auto writes = [](auto change) {
        LiveState state = LiveState::initial();
        state.missionStart = dateFromSeconds(0);
        change(state);
        return encode(state).has_value();
    };
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(writes([](LiveState&) {}));
    EXPECT_FALSE(writes([](LiveState& state) { state.windKmh = nan; }));
    EXPECT_FALSE(writes([](LiveState& state) { state.site.cameras[2].pos.y = -infinity; }));
    for (const char* text : {"\xFF", "\xC3", "a\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"})
        EXPECT_FALSE(writes([&](LiveState& state) { state.site.name = text; })) << text;
    for (const double seconds : {253402300800.0, -62167219201.0, nan, infinity})
        EXPECT_FALSE(writes([&](LiveState& state) { state.missionStart = dateFromSeconds(seconds); }));
    EXPECT_TRUE(writes([](LiveState& state) { state.missionStart = dateFromSeconds(253402300799.5); }));
}

} // namespace velmora
