#include "store_fixture.h"

#include "model/json.h"

#include <sys/stat.h>

namespace velmora {

namespace {

std::vector<MissionRecord> records(std::size_t count) {
    std::vector<MissionRecord> history(count);
    for (std::size_t i = 0; i < count; ++i)
        history[i].id = "M-" + std::to_string(i);
    return history;
}

unsigned modeOf(const QString& path) {
    struct stat info {};
    return stat(path.toUtf8().constData(), &info) == 0 ? info.st_mode & 0777 : 0;
}

} // namespace

using DataFilesTest = StoreTest;

TEST_F(DataFilesTest, OnlyTheOwnerMayReadFilesAndDirectory) {
    store().setShowWelcome(false);
    EXPECT_EQ(modeOf(directory()), 0700u);
    EXPECT_EQ(modeOf(path("history.json")), 0600u);
    ASSERT_TRUE(QDir(directory()).removeRecursively());
    store().clearDemoHistory();
    EXPECT_EQ(content("history.json"), "[]") << "the directory is created again";
}

TEST_F(DataFilesTest, TheFileKeepsTwoHundredRecordsAndMemoryAll) {
    put("history.json", QByteArray::fromStdString(*encode(records(250))));
    store().clearDemoHistory();
    EXPECT_EQ(store().history().size(), 250u);
    restart();
    ASSERT_EQ(store().history().size(), 200u);
    EXPECT_EQ(store().history().back().record.id, "M-199");
}

TEST_F(DataFilesTest, AnUnreadableFileIsCopiedBeforeItIsOverwritten) {
    put("history.json", "[{\"id\": \"from a newer version\"}]");
    put("history.json.unreadable", "an earlier one");
    put("settings.json", "{\"port\": 8765.5}");
    EXPECT_EQ(store().history().size(), 3u) << "seeded as on a first start";
    EXPECT_EQ(content("history.json.unreadable"), "an earlier one");
    EXPECT_EQ(content("history.json.unreadable.2"), "[{\"id\": \"from a newer version\"}]");
    EXPECT_EQ(store().settings(), Settings{});
    EXPECT_FALSE(QFile::exists(path("settings.json.unreadable"))) << "the file was not overwritten yet";
    linked();
    EXPECT_EQ(content("settings.json.unreadable"), "{\"port\": 8765.5}");
    EXPECT_TRUE(store().settings().linkMode);
    linked();
    restart();
    EXPECT_TRUE(store().settings().linkMode);
    EXPECT_FALSE(QFile::exists(path("settings.json.unreadable.2")));
}

TEST_F(DataFilesTest, SettingsWithANumberOutOfRangeAreUnreadable) {
    Settings settings;
    settings.boundaryBuffer = 1e19;
    settings.onboarded = true;
    put("settings.json", QByteArray::fromStdString(*encode(settings)));
    EXPECT_EQ(store().settings(), Settings{});
}

TEST_F(DataFilesTest, AnEmptyHistoryIsSeededAgain) {
    put("history.json", "[]");
    EXPECT_EQ(store().history().size(), 3u);
    EXPECT_FALSE(QFile::exists(path("history.json.unreadable")));
}

TEST_F(DataFilesTest, RunsWithoutAWritableDirectory) {
    QFile(home.path() + "/data").open(QIODevice::WriteOnly);
    EXPECT_EQ(store().history().size(), 3u);
    linked();
    EXPECT_TRUE(store().settings().linkMode);
}

} // namespace velmora
