#include "sample_documents.h"

namespace velmora {

namespace {

using Missions = std::vector<MissionRecord>;
using namespace std::string_literals;

bool isRead(std::string_view json) {
    return decode<P>(json) || decode<Settings>(json) || decode<LiveState>(json, KeyStyle::snakeCase) ||
           decode<Missions>(json);
}

} // namespace

TEST(HostileJson, EveryTruncationOfAValidDocumentIsAnError) {
    for (const std::string_view document : {settingsDocument, busyServerDocument, historyDocument}) {
        ASSERT_TRUE(isRead(document));
        for (std::size_t size = 0; size < document.size(); ++size)
            ASSERT_FALSE(isRead(document.substr(0, size))) << "cut after " << size << " bytes";
    }
}

TEST(HostileJson, DeepOrHugeDocumentsDoNotCrash) {
    const std::string open(200'000, '['), close(200'000, ']');
    for (const std::string& deep : {open, open + close, R"({"x":1,"y":2,"z":)" + open + close + '}'})
        EXPECT_FALSE(isRead(deep));
    const std::string huge(64U << 20, 'a');
    EXPECT_FALSE(decode<Missions>('"' + huge));
    EXPECT_FALSE(decode<LiveState>('"' + huge + '"'));
    const auto settings = decode<Settings>(changed(settingsDocument, "velmora.local", huge)).value;
    EXPECT_TRUE(settings && settings->host == huge);
}

TEST(HostileJson, AnythingButOneUtf8JsonDocumentIsAnError) {
    const std::string good = R"({"x":1,"y":2})";
    ASSERT_TRUE(isRead(' ' + good + '\n'));
    for (const std::string& bytes :
         {""s, "\xEF\xBB\xBF" + good, good + "x", good + good, good + "\0"s, R"({"x":1,"y":2,})"s,
          R"({"x":01,"y":2})"s, R"({"x":+1,"y":2})"s, R"({"x":NaN,"y":2})"s, R"({"x":1e400,"y":2})"s,
          "{\"x\":1,\"y\":2,\"\x01\":3}"s})
        EXPECT_FALSE(isRead(bytes)) << bytes;
    for (const char* bad : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\\uD800",
                            "\\uDC00", "\\uDC00\\uD800", "\\uD800\\u0041"})
        EXPECT_FALSE(isRead(changed(settingsDocument, "velmora.local", bad))) << bad;
    const auto walker = decode<Settings>(changed(settingsDocument, "velmora.local", "\\uD83D\\uDEB6\\u0000"));
    EXPECT_EQ(walker.value.value().host, "🚶\0"s);
}

} // namespace velmora
