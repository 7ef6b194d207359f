#include "sample_documents.h"

#include <functional>
#include <set>

namespace velmora {

namespace {

/// A document, and the error from reading a changed copy of it; empty if it was read.
struct Sample {
    std::string_view document;
    std::function<std::string(std::string_view)> error;
};

const Sample settings{settingsDocument,
                      [](std::string_view json) { return decode<Settings>(json, {}, "settings").error; }};
const Sample history{historyDocument,
                     [](std::string_view json) { return decode<std::vector<MissionRecord>>(json).error; }};
const Sample state{busyServerDocument,
                   [](std::string_view json) { return decode<LiveState>(json, KeyStyle::snakeCase).error; }};

} // namespace

TEST(JsonStrictness, EveryKeyIsRequiredExceptTheFourOfALiveState) {
    const std::set<std::string_view> optional{"mission_id", "mission_start", "approval_deadline", "visitor"};
    for (const Sample& sample : {settings, history, state})
        for (std::size_t end = sample.document.find("\":"); end != std::string_view::npos;
             end = sample.document.find("\":", end + 1)) {
            const std::size_t begin = sample.document.rfind('"', end - 1) + 1;
            const std::string_view key = sample.document.substr(begin, end - begin);
            std::string text(sample.document);
            const std::string error = sample.error(text.replace(begin, key.size(), "unknown"));
            EXPECT_EQ(error.ends_with(": missing"), !optional.contains(key)) << key << " -> " << error;
        }
}

TEST(JsonStrictness, AWrongValueIsAnErrorWithItsPath) {
    const std::string date = "expected a date such as 2025-06-01T14:03:12Z";
    struct Case {
        const Sample& sample;
        std::string_view from, to;
        std::string error;
    };
    const Case cases[] = {
        {settings, "Mode\":false", "Mode\":0", "settings.linkMode: expected true or false"},
        {settings, "Mode\":false", "Mode\":null", "settings.linkMode: expected true or false"},
        {settings, "8765", "8765.5", "settings.port: expected an integer"},
        {settings, "8765", "\"8765\"", "settings.port: expected an integer"},
        {settings, "8765", "true", "settings.port: expected an integer"},
        {settings, "8765", "9223372036854775808", "settings.port: expected an integer"},
        {settings, "8765", "-9223372036854775808", ""},
        {settings, "60.0", "true", "settings.approvalSeconds: expected a number"},
        {settings, "60.0", "\"60\"", "settings.approvalSeconds: expected a number"},
        {settings, "60.0", "60", ""},
        {settings, "\"velmora.local\"", "null", "settings.host: expected text"},
        {settings, "\"own\"", "\"Own\"", "settings.tracking: not one of the known values"},
        {settings, "\"own\"", "0", "settings.tracking: not one of the known values"},
        {settings, "People\":{}", "People\":[]", "settings.alertPeople: expected an object"},
        {settings, "People\":{}", R"(People":{"a":true,"b":1})",
         "settings.alertPeople.b: expected true or false"},
        {settings, "People\":{}", R"(People":{"a":true,"a":true})", "settings.alertPeople.a: given twice"},
        {settings, "{\"linkMode", "{\"port\":1,\"linkMode", "settings.port: given twice"},
        {history, "1e21", "\"1e21\"", "[0].visitorPath[1].x: expected a number"},
        {history, R"([{"x":0.1,"y":1e-300}])", "{}", "[0].dronePath: expected a list"},
        {history, R"([{"x":0.1,"y":1e-300}])", "[[0.1,2]]", "[0].dronePath[0]: expected an object"},
        {history, "expired — drone", "expired - drone", "[0].outcome: not one of the known values"},
        {history, "caution", "warning", "[0].notices[0].level: not one of the known values"},
        {history, "01234567-89AB-", "01234567-89AG-", "[0].notices[0].id: expected a UUID"},
        {history, "14:03:13Z", "14:03:13.5Z", "[0].notices[0].time: " + date},
        {history, "\"2025-06-01T14:03:12Z\"", "1748786592", "[0].start: " + date},
        {state, "7.0", "null", "drone.trail[0].x: expected a number"},
        {state, "awaiting_approval", "awaitingApproval", "phase: not one of the known values"},
        {state, "\"M-42\"", "42", "mission_id: expected text"},
        {state, "\"native\"", "\"towed\"", ""},
        {state, "\"phase\"", "\"missionId\":\"M-42\",\"phase\"", "mission_id: given twice"},
    };
    for (const auto& [sample, from, to, error] : cases)
        EXPECT_EQ(sample.error(changed(sample.document, from, to)), error) << from << " -> " << to;
    for (const char* document : {"[]", "null", "7", "\"text\""})
        EXPECT_EQ(settings.error(document), "settings: expected an object") << document;
    EXPECT_EQ(history.error("{}"), "expected a list");
    EXPECT_EQ(decode<std::vector<MissionRecord>>("[3]", {}, "history").error,
              "history[0]: expected an object");
}

} // namespace velmora
