#include "store_fixture.h"

#include "model/json.h"

#include <csignal>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <thread>

namespace velmora {

namespace {

class DiskFaultsTest : public StoreTest {
protected:
    void TearDown() override {
        restart();
        if (mounted_)
            umount2(directory().toUtf8().constData(), MNT_DETACH);
    }

    /// Mounts a file system over the data directory; false if that is not permitted.
    bool mounted(const char* source, unsigned long flags, const char* options = "") {
        QDir().mkpath(directory());
        mounted_ = mount(source, directory().toUtf8().constData(), "tmpfs", flags, options) == 0;
        return mounted_;
    }
    /// Changes a setting and ends a mission.
    void changeBoth() {
        Settings settings = store().settings();
        ++settings.port;
        store().setSettings(settings);
        now += Seconds{1};
        store().simulate(Scenario::driveway);
        respond(Command::ignore);
    }
    /// Settings and history as the next start would read them.
    auto onFile() const {
        flush();
        DataFiles files{QDir(directory())};
        return std::pair(files.loadSettings(), files.loadHistory());
    }
    /// Whether the files hold what the store holds.
    bool isSaved() {
        return content("settings.json").toStdString() == encode(store().settings()) &&
               content("history.json").toStdString() == encode(recorded());
    }
    QStringList names() const {
        flush();
        return QDir(directory()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

private:
    bool mounted_ = false;
};

} // namespace

TEST_F(DiskFaultsTest, AFullDiskKeepsTheOldFiles) {
    if (!mounted("tmpfs", 0, "size=512k"))
        GTEST_SKIP() << "mounting is not permitted here";
    changeBoth();
    ASSERT_TRUE(isSaved());
    const auto before = onFile();
    const QStringList files = names();
    QFile ballast(path("ballast"));
    ASSERT_TRUE(ballast.open(QIODevice::WriteOnly));
    while (ballast.write(QByteArray(4096, 'x')) > 0 && ballast.flush())
        ;
    changeBoth();
    EXPECT_EQ(onFile(), before);
    ballast.close();
    ASSERT_TRUE(QFile::remove(path("ballast")));
    EXPECT_EQ(names(), files) << "no partial file is left";
    changeBoth();
    EXPECT_TRUE(isSaved()) << "the next change tries again";
}

TEST_F(DiskFaultsTest, AReadOnlyDirectoryKeepsItsFilesAndTheStoreGoesOn) {
    changeBoth();
    const auto before = onFile();
    const QByteArray itself = directory().toUtf8();
    if (!mounted(itself.constData(), MS_BIND) ||
        mount(nullptr, itself.constData(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        GTEST_SKIP() << "mounting is not permitted here";
    changeBoth();
    EXPECT_EQ(onFile(), before);
    EXPECT_NE(recorded(), before.second);
}

TEST_F(DiskFaultsTest, ARemovedDirectoryIsCreatedAgainAndADirectoryNamedLikeAFileIsKept) {
    changeBoth();
    flush();
    ASSERT_TRUE(QDir(directory()).removeRecursively());
    changeBoth();
    EXPECT_TRUE(isSaved());
    for (const char* name : {"settings.json", "history.json"})
        EXPECT_TRUE(QFile::remove(path(name)) && QDir(directory()).mkpath(QString(name) + "/kept"));
    changeBoth();
    EXPECT_FALSE(flush());
    restart();
    changeBoth();
    EXPECT_TRUE(QDir(path("settings.json/kept")).exists() && QDir(path("history.json/kept")).exists());
}

TEST_F(DiskFaultsTest, SymlinksStayAndTheirTargetsAreWritten) {
    const QString elsewhere = home.path() + "/elsewhere";
    QDir().mkpath(directory());
    QDir().mkpath(elsewhere);
    ASSERT_TRUE(QFile::link(elsewhere + "/second.json", elsewhere + "/first.json") &&
                QFile::link(elsewhere + "/first.json", path("settings.json")) &&
                QFile::link("../../elsewhere/history.json", path("history.json")));
    for (const char* pass : {"dangling", "working"}) {
        changeBoth();
        EXPECT_TRUE(isSaved()) << pass;
        EXPECT_TRUE(QFileInfo(path("settings.json")).isSymLink() &&
                    QFileInfo(path("history.json")).isSymLink());
        EXPECT_TRUE(QFileInfo(elsewhere + "/first.json").isSymLink()) << pass;
        EXPECT_EQ(QDir(elsewhere).entryList(QDir::Files).size(), 3) << pass;
        restart();
    }
}

TEST_F(DiskFaultsTest, AHistoryOfAnotherVersionIsReadOrCopiedUnchanged) {
    changeBoth();
    QByteArray newer = content("history.json");
    restart();
    put("history.json", newer.replace("{\"id\"", "{\"rotors\":[4,{}],\"id\""));
    EXPECT_EQ(store().history().size(), 4u) << "unknown keys are ignored";
    changeBoth();
    EXPECT_EQ(onFile().second.value().size(), 5u);
    restart();
    newer.replace("You ignored the alert", "You waved back");
    put("history.json", newer);
    EXPECT_EQ(store().history().size(), 3u) << "seeded";
    changeBoth();
    EXPECT_EQ(content("history.json.unreadable"), newer);
}

/// Kills a saving child process two hundred times. Each one starts with the files of the one before, and
/// reports each mission that is confirmed on file.
TEST_F(DiskFaultsTest, AKillAtAnyMomentKeepsWhatWasConfirmed) {
    std::mt19937 chance(1);
    std::uniform_int_distribution<int> moment(0, 6000); // microseconds after the first save
    changeBoth();
    auto before = onFile();
    for (int kill = 0; kill < 200; ++kill) {
        restart();
        now += Seconds{1000};
        int reports[2];
        ASSERT_EQ(pipe(reports), 0);
        const pid_t child = fork();
        close(reports[child == 0 ? 0 : 1]);
        const bool isChild = child == 0;
        while (isChild) {
            changeBoth();
            if (!flush() || write(reports[1], &now, sizeof now) != sizeof now)
                _exit(1);
        }
        Date confirmed;
        ASSERT_EQ(read(reports[0], &confirmed, sizeof confirmed), sizeof confirmed);
        std::this_thread::sleep_for(std::chrono::microseconds(moment(chance)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        int missions = 1;
        while (read(reports[0], &confirmed, sizeof confirmed) == sizeof confirmed)
            ++missions;
        close(reports[0]);
        const auto after = onFile();
        ASSERT_TRUE(after.first && after.second);
        EXPECT_GE(after.first->port, before.first->port + missions);
        EXPECT_GE(after.second->front().start, confirmed);
        const auto known = std::ranges::find(*after.second, before.second->front());
        ASSERT_GE(known - after.second->begin(), missions);
        EXPECT_TRUE(std::equal(known, after.second->end(), before.second->begin()));
        before = after;
    }
    restart();
    changeBoth();
    EXPECT_EQ(names().size(), 3) << names().join(' ').toStdString();
}

} // namespace velmora
