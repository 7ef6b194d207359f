#include "model/sample_documents.h"

namespace velmora {

namespace {

/// What reading a sample document says after one place of it was changed; empty when it is read.
struct Sample {
    std::string_view document;
    std::string (*read)(std::string_view);

    std::string after(std::string_view from, std::string_view to) const {
        return read(changed(document, from, to));
    }
};

template <class T, KeyStyle keys = KeyStyle::fieldNames>
std::string readError(std::string_view json) {
    return decode<T>(json, keys).error;
}

const Sample settings{settingsDocument,
                      [](std::string_view json) { return decode<Settings>(json, {}, "settings").error; }};
const Sample history{historyDocument, readError<std::vector<MissionRecord>>};
const Sample state{busyServerDocument, readError<LiveState, KeyStyle::snakeCase>};

} // namespace

TEST(JsonStrictness, EveryKeyIsRequiredExceptTheFourOfALiveState) {
    const auto eachKeyMatters = [](const Sample& sample, std::vector<std::string_view> keys) {
        for (const std::string_view key : keys) {
            const std::string quoted = '"' + std::string(key) + "\":";
            const std::string error = sample.after(quoted, "\"unknown\":");
            EXPECT_TRUE(error.ends_with(": missing")) << key << ": " << error;
        }
    };
    eachKeyMatters(settings, {"linkMode", "host", "port", "flightHeight", "minimumHeight", "followDistance",
                              "boundaryBuffer", "returnBattery", "maxWindKmh", "approvalSeconds", "tracking",
                              "notifyMac", "ntfyTopic", "alertUnknownFaces", "alertPeople", "onboarded"});
    eachKeyMatters(history, {"start", "end", "cameraId", "cameraName", "label", "confidence", "outcome",
                             "dronePath", "visitorPath", "maxDistanceFromPad", "batteryUsed", "notices",
                             "time", "text", "level", "snapshot", "demo"});
    eachKeyMatters(state, {"armed",    "phase",       "drone",         "altitude",  "speed",  "battery",
                           "signal",   "label",       "confidence",    "camera_id", "inside", "wind_kmh",
                           "gust_kmh", "at_boundary", "tracking_mode", "notices",   "time",   "text",
                           "level",    "site",        "size",          "boundary",  "pad",    "cameras",
                           "snapshot", "online",      "plan_image"});
    for (const char* key :
         {"\"mission_id\":", "\"mission_start\":", "\"approval_deadline\":", "\"visitor\":"})
        EXPECT_EQ(state.after(key, "\"unknown\":"), "") << key;
}

TEST(JsonStrictness, AWrongValueIsRefusedWithItsPlace) {
    struct Case {
        const Sample& sample;
        std::string_view from, to, error;
    };
    const Case cases[] = {
        {settings, R"("linkMode":false)", R"("linkMode":0)", "settings.linkMode: expected true or false"},
        {settings, R"("linkMode":false)", R"("linkMode":"false")",
         "settings.linkMode: expected true or false"},
        {settings, R"("linkMode":false)", R"("linkMode":null)", "settings.linkMode: expected true or false"},
        {settings, "8765", "8765.5", "settings.port: expected an integer"},
        {settings, "8765", "\"8765\"", "settings.port: expected an integer"},
        {settings, "8765", "true", "settings.port: expected an integer"},
        {settings, "8765", "9223372036854775808", "settings.port: expected an integer"},
        {settings, "8765", "-9223372036854775808", ""},
        {settings, "30.0,\"maxWindKmh\"", "true,\"maxWindKmh\"", "settings.returnBattery: expected a number"},
        {settings, "60.0", "60", ""},
        {settings, "60.0", "\"60\"", "settings.approvalSeconds: expected a number"},
        {settings, "60.0", "[60]", "settings.approvalSeconds: expected a number"},
        {settings, "\"velmora.local\"", "7", "settings.host: expected text"},
        {settings, "\"velmora.local\"", "null", "settings.host: expected text"},
        {settings, "\"own\"", "\"Own\"", "settings.tracking: not one of the known values"},
        {settings, "\"own\"", "0", "settings.tracking: not one of the known values"},
        {settings, R"("alertPeople":{})", R"("alertPeople":[])", "settings.alertPeople: expected an object"},
        {settings, R"("alertPeople":{})", R"("alertPeople":{"a":true,"b":1})",
         "settings.alertPeople.b: expected true or false"},
        {settings, R"("alertPeople":{})", R"("alertPeople":{"a":true,"a":true})",
         "settings.alertPeople.a: given twice"},
        {settings, R"("onboarded":false)", R"("onboarded":false,"port":1)", "settings.port: given twice"},
        {history, "1e21", "\"1e21\"", "[0].visitorPath[1].x: expected a number"},
        {history, "[{\"x\":0.1,\"y\":1e-300}]", "{}", "[0].dronePath: expected a list"},
        {history, "[{\"x\":0.1,\"y\":1e-300}]", "[[0.1,2]]", "[0].dronePath[0]: expected an object"},
        {history, "expired — drone", "expired - drone", "[0].outcome: not one of the known values"},
        {history, "docked\"", "docked \"", "[0].outcome: not one of the known values"},
        {history, "caution", "warning", "[0].notices[0].level: not one of the known values"},
        {history, "01234567-89AB-", "01234567-89AG-", "[0].notices[0].id: expected a UUID"},
        {history, "14:03:13Z", "14:03:13.5Z",
         "[0].notices[0].time: expected a date such as 2025-06-01T14:03:12Z"},
        {history, R"("start":"2025-06-01T14:03:12Z")", R"("start":1748786592)",
         "[0].start: expected a date such as 2025-06-01T14:03:12Z"},
        {state, "7.0", "null", "drone.trail[0].x: expected a number"},
        {state, "11.0", "{}", "visitor.trail[0].x: expected a number"},
        {state, "awaiting_approval", "awaitingApproval", "phase: not one of the known values"},
        {state, "\"M-42\"", "42", "mission_id: expected text"},
        {state, R"("camera_id":"front")", R"("camera_id":null)", "visitor.camera_id: expected text"},
        {state, "\"native\"", "\"towed\"", ""},
        {state, "\"phase\"", "\"missionId\":\"M-42\",\"phase\"", "mission_id: given twice"},
    };
    for (const auto& [sample, from, to, error] : cases)
        EXPECT_EQ(sample.after(from, to), error) << from << " -> " << to;
}

TEST(JsonStrictness, ADocumentOfAnotherShapeIsRefused) {
    for (const char* document : {"[]", "null", "7", "\"text\""}) {
        EXPECT_EQ(readError<Settings>(document),
                  document == std::string_view("[]") ? "expected an object" : "expected an object");
        EXPECT_EQ(decode<LiveState>(document, {}, "reply").error, "reply: expected an object");
    }
    EXPECT_EQ(readError<std::vector<MissionRecord>>("{}"), "expected a list");
    EXPECT_EQ(decode<std::vector<MissionRecord>>("[3]", {}, "history").error,
              "history[0]: expected an object");
}

} // namespace velmora
