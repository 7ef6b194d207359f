#include "sample_documents.h"

#include <bit>
#include <cmath>
#include <random>

namespace velmora {

namespace {

using Missions = std::vector<MissionRecord>;
constexpr auto server = KeyStyle::snakeCase;

template <class T>
T decoded(std::string_view json, KeyStyle keys = KeyStyle::fieldNames) {
    auto result = decode<T>(json, keys);
    EXPECT_EQ(result.error, "");
    return result.value.value_or(T{});
}

} // namespace

TEST(JsonForm, DocumentsHaveTheirKeysInFieldOrderAndRoundTripExactly) {
    Settings fresh;
    fresh.host = "velmora.local";
    EXPECT_EQ(encode(fresh), settingsDocument);
    EXPECT_EQ(encode(LiveState::initial()), quietDocument) << "absent optional fields have no key";
    EXPECT_EQ(decoded<Settings>(settingsDocument), fresh);
    EXPECT_EQ(decoded<LiveState>(quietDocument), LiveState::initial());
    EXPECT_EQ(encode(decoded<LiveState>(busyServerDocument, server), server), busyServerDocument);
    EXPECT_EQ(encode(decoded<Missions>(historyDocument)), historyDocument);
    EXPECT_EQ(encode(Missions{}), "[]");
}

TEST(JsonForm, ServerKeysAreConvertedFromSnakeCase) {
    const auto state = decoded<LiveState>(busyServerDocument, server);
    EXPECT_EQ(state.phase, Phase::awaitingApproval) << "raw values are not converted";
    EXPECT_EQ(secondsSince1970(state.missionStart.value()), 1748786592);
    EXPECT_EQ(state.visitor.value().cameraId, "front");
    EXPECT_EQ(state.site.planImage, "plan-base");
    const auto isMissionId = [](std::string_view key) {
        const std::string text = changed(busyServerDocument, "mission_id", key);
        return decoded<LiveState>(text, server).missionId == "M-42";
    };
    for (const char* key : {"mission_id", "missionId", "mission__id"})
        EXPECT_TRUE(isMissionId(key)) << key;
    for (const char* key : {"_mission_id", "mission_id_", "__missionId", "mission_iD", "_"})
        EXPECT_FALSE(isMissionId(key)) << key;
    EXPECT_FALSE(decode<LiveState>(busyServerDocument)) << "files use the field names only";
}

TEST(JsonForm, NullsOrderUnknownKeysAndSpaceDoNotMatter) {
    const std::string nulls =
        changed(quietDocument, R"("phase")",
                R"("missionId":null,"missionStart":null,"approvalDeadline":null,"visitor":null,"phase")");
    EXPECT_EQ(decoded<LiveState>(nulls), LiveState::initial());
    EXPECT_EQ(decoded<P>(R"( { "y" : 2 ,"z":{"x":[null,{}]}, "x":10e-1} )"), (P{1, 2}));
    EXPECT_EQ(decoded<P>(R"({"x":1,"x_":3,"Y":null,"y":2.0})", server), (P{1, 2}));
    Settings switched;
    switched.alertUnknownFaces = {{"front", false}, {"côté", true}};
    switched.alertPeople = {{"", true}, {"alert_people", false}};
    EXPECT_EQ(decoded<Settings>(*encode(switched, server), server), switched)
        << "camera ids are not converted";
}

TEST(JsonForm, DoublesRoundTripExactly) {
    std::mt19937_64 bits(1);
    std::vector<double> numbers{0.1, -0.0, 1e-300, 5e-324, 1.7976931348623157e308, 1e23, 1748786592.1234567};
    while (numbers.size() < 20'000)
        if (const auto number = std::bit_cast<double>(bits()); std::isfinite(number))
            numbers.push_back(number);
    for (const double number : numbers) {
        const double back = decoded<P>(encode(P{number, 0}).value()).x;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(number)) << number;
    }
}

TEST(JsonForm, ValuesThatTheFormatCannotHoldAreNotWritten) {
    const auto writes = [](double wind, const std::string& name, double start) {
        LiveState state = LiveState::initial();
        state.windKmh = wind;
        state.site.name = name;
        state.missionStart = dateFromSeconds(start);
        return encode(state).has_value();
    };
    EXPECT_TRUE(writes(9, "Zoë", 253402300799.5));
    EXPECT_TRUE(writes(9, "", -62167219200));
    for (const double number : {std::nan(""), HUGE_VAL, -HUGE_VAL})
        EXPECT_FALSE(writes(number, "", 0) || writes(9, "", number)) << number;
    for (const char* text : {"\xFF", "\xC3", "a\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"})
        EXPECT_FALSE(writes(9, text, 0)) << text;
    EXPECT_FALSE(writes(9, "", 253402300800)) << "year 10000";
    EXPECT_FALSE(writes(9, "", -62167219201)) << "before year 0";
}

} // namespace velmora
