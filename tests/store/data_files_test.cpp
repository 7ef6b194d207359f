#include "store_fixture.h"

#include "model/json.h"

#include <future>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

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

/// Lets this process change no permissions, as on a file system that has none.
bool denyPermissions() {
    const auto deny = [](std::uint32_t call) {
        return std::array<sock_filter, 2>{{BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
                                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM)}};
    };
    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const std::uint32_t call : {
             std::uint32_t{SYS_fchmod},
             std::uint32_t{SYS_fchmodat},
#ifdef SYS_chmod
             std::uint32_t{SYS_chmod},
#endif
         })
        std::ranges::copy(deny(call), std::back_inserter(filter));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

class DataFilesTest : public StoreTest {
protected:
    /// Changes the settings, and returns whether the change is on file.
    bool savesPort(int port) {
        Settings settings = store().settings();
        settings.port = port;
        store().setSettings(settings);
        return flush() && content("settings.json") == QByteArray::fromStdString(*encode(settings));
    }
    /// Replaces a file by a rename.
    void moveOver(const QString& name, const QByteArray& bytes) const {
        put("new", bytes);
        ASSERT_EQ(std::rename(path("new").toUtf8(), path(name).toUtf8()), 0);
    }
    bool exists(const QString& name) const { return flush() && QFile::exists(path(name)); }
};

} // namespace

TEST_F(DataFilesTest, OnlyTheOwnerMayReadFilesAndDirectory) {
    store().loadHistory();
    ASSERT_TRUE(flush());
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
    EXPECT_EQ(store().history().back().record->id, "M-199");
}

TEST_F(DataFilesTest, AnUnreadableFileIsCopiedBeforeItIsOverwritten) {
    put("history.json", "[{\"id\": \"from a newer version\"}]");
    put("history.json.unreadable", "an earlier one");
    put("settings.json", "{\"port\": 8765.5}");
    EXPECT_EQ(store().history().size(), 3u) << "seeded as on a first start";
    EXPECT_EQ(content("history.json.unreadable"), "an earlier one");
    EXPECT_EQ(content("history.json.unreadable.2"), "[{\"id\": \"from a newer version\"}]");
    EXPECT_EQ(store().settings(), Settings{});
    EXPECT_FALSE(exists("settings.json.unreadable")) << "the file was not overwritten yet";
    EXPECT_TRUE(savesPort(1));
    EXPECT_EQ(content("settings.json.unreadable"), "{\"port\": 8765.5}");
    EXPECT_TRUE(savesPort(2));
    restart();
    EXPECT_TRUE(savesPort(3));
    EXPECT_FALSE(exists("settings.json.unreadable.2"));
}

TEST_F(DataFilesTest, AFileReplacedFromOutsideIsCopiedBeforeItIsOverwritten) {
    store();
    put("settings.json", "on a mount that came late");
    EXPECT_TRUE(savesPort(1));
    EXPECT_EQ(content("settings.json.replaced"), "on a mount that came late");
    const QByteArray ours = content("settings.json");
    QByteArray restored = ours;
    moveOver("settings.json", restored.replace("\"port\":1", "\"port\":7"));
    EXPECT_TRUE(savesPort(2));
    EXPECT_EQ(content("settings.json.replaced.2"), restored);
    moveOver("settings.json", content("settings.json"));
    EXPECT_TRUE(savesPort(3)) << "the same content";
    ASSERT_TRUE(QFile::remove(path("settings.json")));
    EXPECT_TRUE(savesPort(4));
    restart();
    EXPECT_TRUE(savesPort(5)) << "what was read is known, too";
    EXPECT_FALSE(exists("settings.json.replaced.3"));
}

TEST_F(DataFilesTest, AFileReplacedRightAfterASaveIsCopiedAndOneRemovedBeforeIsNot) {
    put("settings.json", "not ours");
    DataFiles files(QDir(directory()), [this](const QString& file, std::string_view bytes) {
        const auto stamp = replaceFile(file, bytes);
        if (file.endsWith("settings.json") && !QFile::exists(path("settings.json.replaced")))
            put("settings.json", "theirs");
        return stamp;
    });
    EXPECT_FALSE(files.loadSettings());
    ASSERT_TRUE(QFile::remove(path("settings.json")));
    for (int save = 0; save < 2; ++save) {
        files.saveSettings({});
        EXPECT_TRUE(files.flush(std::chrono::minutes(1)));
    }
    EXPECT_EQ(content("settings.json.replaced"), "theirs");
    EXPECT_FALSE(exists("settings.json.unreadable"));
}

TEST_F(DataFilesTest, AHistoryReadInAThreadIsTheSame) {
    const auto read = [](DataFiles& files) {
        std::promise<void> done;
        files.readHistoryInThread([&] { done.set_value(); });
        done.get_future().wait();
        return files.loadHistory();
    };
    put("history.json", QByteArray::fromStdString(*encode(records(3))));
    DataFiles good(QDir(path("")));
    EXPECT_EQ(read(good), records(3));
    put("history.json", "from a newer version");
    DataFiles files(QDir(path("")));
    EXPECT_FALSE(read(files));
    files.saveHistory({});
    EXPECT_TRUE(files.flush(std::chrono::seconds(5)));
    EXPECT_EQ(content("history.json.unreadable"), "from a newer version");
}

TEST_F(DataFilesTest, APipeInPlaceOfAFileIsLeftAlone) {
    QDir().mkpath(directory());
    ASSERT_EQ(mkfifo(path("settings.json").toUtf8(), 0600), 0);
    EXPECT_FALSE(DataFiles(QDir(directory())).loadSettings()) << "and the start does not wait";
}

TEST_F(DataFilesTest, NothingIsOverwrittenIfItsCopyFails) {
    put("settings.json", "not ours");
    bool full = true;
    DataFiles files(QDir(directory()), [&](const QString& file, std::string_view bytes) {
        return full && file.contains("settings.json.") ? std::nullopt : replaceFile(file, bytes);
    });
    EXPECT_FALSE(files.loadSettings());
    files.saveSettings({});
    EXPECT_FALSE(files.flush(std::chrono::minutes(1)));
    EXPECT_EQ(content("settings.json"), "not ours");
    full = false;
    files.saveSettings({});
    EXPECT_TRUE(files.flush(std::chrono::minutes(1)));
    EXPECT_EQ(content("settings.json").toStdString(), encode(Settings{}));
    EXPECT_EQ(content("settings.json.unreadable"), "not ours");
}

TEST_F(DataFilesTest, WherePermissionsCannotBeSetOneCopyIsKept) {
    const auto savesWithOneCopy = [this] {
        if (!denyPermissions() || QFile::setPermissions(home.path(), QFileDevice::ReadOwner))
            return false;
        put("settings.json", "not ours");
        return savesPort(1) && savesPort(2) && content("settings.json.unreadable") == "not ours" &&
               !exists("settings.json.unreadable.2");
    };
    EXPECT_EXIT(_exit(savesWithOneCopy() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(DataFilesTest, ABlockedDiskDelaysNobody) {
    std::promise<void> disk;
    const auto released = disk.get_future().share();
    DataFiles files(QDir(directory()), [&](const QString& file, std::string_view bytes) {
        released.wait();
        return replaceFile(file, bytes);
    });
    History history(files);
    history.add(records(300));
    files.saveSettings({});
    while (history.entries().size() > 3)
        history.remove(history.entries().back().key);
    EXPECT_FALSE(files.flush(std::chrono::milliseconds(1)));
    EXPECT_FALSE(exists("history.json"));
    disk.set_value();
    EXPECT_TRUE(files.flush(std::chrono::minutes(1)));
    EXPECT_EQ(content("history.json").toStdString(), encode(records(3)));
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
    EXPECT_FALSE(exists("history.json.unreadable"));
}

TEST_F(DataFilesTest, RunsWithoutAWritableDirectory) {
    QFile(home.path() + "/data").open(QIODevice::WriteOnly);
    EXPECT_EQ(store().history().size(), 3u);
    linked();
    EXPECT_TRUE(store().settings().linkMode);
}

} // namespace velmora
