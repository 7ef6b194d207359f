#include "model/sample_documents.h"

#include <random>

namespace velmora {

namespace {

using Missions = std::vector<MissionRecord>;

bool isRead(std::string_view json) {
    return decode<P>(json) || decode<Settings>(json) || decode<LiveState>(json, KeyStyle::snakeCase) ||
           decode<Missions>(json);
}

std::string repeated(std::size_t count, std::string_view piece) {
    std::string text;
    text.reserve(count * piece.size());
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

} // namespace

TEST(HostileJson, EveryTruncationOfAGoodDocumentIsAnError) {
    for (const std::string_view document : {settingsDocument, busyServerDocument, historyDocument}) {
        ASSERT_TRUE(isRead(document));
        for (std::size_t size = 0; size < document.size(); ++size)
            ASSERT_FALSE(isRead(document.substr(0, size))) << "cut after " << size << " bytes";
    }
}

TEST(HostileJson, DeepNestingIsAnErrorAndNotACrash) {
    constexpr std::size_t depth = 200'000;
    const std::string lists = repeated(depth, "["), objects = repeated(depth, R"({"drone":)");
    for (const std::string& deep :
         {lists, lists + repeated(depth, "]"), objects, objects + repeated(depth, "}")})
        EXPECT_FALSE(isRead(deep) || isRead(R"({"x":1,"y":2,"z":)" + deep + '}'));
}

TEST(HostileJson, AHugeStringIsReadOrRefusedButNeverFatal) {
    const std::string huge(64 * 1024 * 1024, 'a');
    EXPECT_FALSE(decode<Missions>('"' + huge));
    EXPECT_FALSE(decode<LiveState>('"' + huge + '"'));
    const auto settings = decode<Settings>(changed(settingsDocument, "velmora.local", huge)).value;
    EXPECT_TRUE(settings && settings->host == huge);
}

TEST(HostileJson, WhatIsNotOneJsonDocumentInUtf8IsAnError) {
    const std::string good = R"({"x":1,"y":2})";
    ASSERT_TRUE(isRead(good));
    using namespace std::string_literals;
    for (const std::string& bytes :
         {""s, " "s, "\xEF\xBB\xBF" + good, good + "x", good + good, good + "\0"s, good + ",", "//\n" + good,
          R"({"x":1,"y":2,})"s, R"({'x':1,"y":2})"s, R"({"x":01,"y":2})"s, R"({"x":+1,"y":2})"s,
          R"({"x":.5,"y":2})"s, R"({"x":1.,"y":2})"s, R"({"x":NaN,"y":2})"s, R"({"x":Infinity,"y":2})"s,
          R"({"x":1e400,"y":2})"s, "{\"x\":1,\"y\":2,\"\x01\":3}"s, R"({"x":1,"y":2,"\q":3})"s})
        EXPECT_FALSE(isRead(bytes)) << bytes;
    for (const std::string bad : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\\uD800",
                                  "\\uDC00", "\\uDC00\\uD800", "\\uD800\\u0041"}) {
        EXPECT_FALSE(isRead(changed(settingsDocument, "velmora.local", bad))) << bad;
        EXPECT_FALSE(isRead(changed(good, "\"x\"", '"' + bad + "\":0,\"x\""))) << "unknown key " << bad;
    }
    EXPECT_EQ(
        decode<Settings>(changed(settingsDocument, "velmora.local", "\\uD83D\\uDEB6\\u0000")).value->host,
        "🚶\0"s);
}

TEST(HostileJson, WhateverIsReadFromDamagedBytesCanBeWrittenAndReadAgain) {
    std::mt19937 random(7);
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    constexpr std::string_view pieces[] = {"\"", "\\", "\\u", "\\uDC00", "0",    "9e9", "-",
                                           "}",  "]",  ",",   "null",    "\xC3", "e"};
    int survivors = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string text(historyDocument);
        for (std::size_t changes = 1 + pick(3); changes > 0; --changes)
            text.replace(pick(text.size()), pick(3), pieces[pick(std::size(pieces))]);
        const auto missions = decode<Missions>(text).value;
        if (!missions)
            continue;
        ++survivors;
        const auto written = encode(*missions);
        ASSERT_TRUE(written) << text;
        ASSERT_EQ(decode<Missions>(*written).value, missions) << text;
    }
    EXPECT_GT(survivors, 100) << "damage that always breaks the document proves nothing";
}

} // namespace velmora
