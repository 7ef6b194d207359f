#include "store_fixture.h"

#include <atomic>
#include <map>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>

namespace velmora {

namespace {

class JournalTest : public StoreTest {
protected:
    void TearDown() override {
        restart();
        if (mounted_)
            umount2(directory().toUtf8().constData(), MNT_DETACH);
    }

    bool mountSmallDisk() {
        QDir().mkpath(directory());
        mounted_ = mount("tmpfs", directory().toUtf8().constData(), "tmpfs", 0, "size=512k") == 0;
        return mounted_;
    }
    /// What is on disk now, without waiting; lines that cannot be read are left out.
    std::vector<JournalEntry> onDisk(const QString& name = "journal.jsonl") const {
        QFile file(path(name));
        file.open(QIODevice::ReadOnly);
        std::vector<JournalEntry> entries;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (const auto entry = decode<JournalEntry>(line.toStdString()))
                entries.push_back(*entry.value);
        return entries;
    }
    AlertId serveAlert(const std::string& id) {
        linked();
        while (link.fetches.empty())
            tickAfter(0.05);
        LiveState state = LiveState::initial();
        state.phase = Phase::awaitingApproval;
        state.missionId = id;
        std::exchange(link.fetches, {}).front()(FetchedState{state, "2.1"});
        return *alertId(state);
    }
    /// A demo visit that the owner ignores.
    void ignoreVisit(CommandSource source) {
        store().simulate(Scenario::driveway);
        pass(9);
        store().answer(Command::ignore, store().waitingAlert().value(), source);
    }

private:
    bool mounted_ = false;
};

} // namespace

TEST_F(JournalTest, HasEachCommandOnDiskBeforeItLeaves) {
    std::vector<JournalEntry> whenSent;
    link.onSend = [&] { whenSent = onDisk(); };
    const AlertId seen = serveAlert("M-7");
    ASSERT_TRUE(store().answer(Command::approve, seen, CommandSource::notification));
    const JournalEntry approved{dateFromSeconds(std::floor(secondsSince1970(now))),
                                Command::approve,
                                "M-7",
                                CommandSource::notification,
                                CommandResult::sent,
                                std::nullopt,
                                false};
    EXPECT_EQ(whenSent, std::vector{approved});
    store().send(Command::land, CommandSource::live);
    EXPECT_EQ(whenSent.size(), 2U);
}

TEST_F(JournalTest, TellsWhyACommandFailedOrWasDropped) {
    const AlertId first = serveAlert("M-1");
    ASSERT_TRUE(store().answer(Command::approve, first, CommandSource::card));
    store().answer(Command::approve, first, CommandSource::overview);
    link.posts.back().done(LinkError{"Verbindung abgelehnt", Failure::refused});
    serveAlert("M-2");
    store().answer(Command::approve, first, CommandSource::tray);
    now += Seconds{30};
    store().answer(Command::ignore, *store().shownAlert(), CommandSource::shortcut);
    flush();
    const auto expectResult = [](const JournalEntry& entry, CommandResult result, const char* reason) {
        EXPECT_EQ(entry.result, result);
        EXPECT_EQ(entry.reason, reason);
    };
    const auto entries = onDisk();
    ASSERT_EQ(entries.size(), 5U);
    EXPECT_EQ(entries[0].result, CommandResult::sent);
    expectResult(entries[1], CommandResult::dropped, "an answer is on its way");
    expectResult(entries[2], CommandResult::failed, "connection refused");
    EXPECT_EQ(entries[2].source, CommandSource::card);
    expectResult(entries[3], CommandResult::dropped, "another alert waits");
    EXPECT_EQ(entries[3].mission, "M-1");
    expectResult(entries[4], CommandResult::dropped, "the server is silent");
}

TEST_F(JournalTest, SkipsATornLineAndKeepsWhatWasThere) {
    const QByteArray torn = R"({"time":"2026-01-02T03:04:05Z","comma)";
    put("journal.jsonl", torn);
    QFile::setPermissions(path("journal.jsonl"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    ignoreVisit(CommandSource::card);
    EXPECT_TRUE(content("journal.jsonl").startsWith(torn + '\n'));
    EXPECT_EQ(onDisk().size(), 1U);
    struct stat info {};
    ASSERT_EQ(::stat(path("journal.jsonl").toUtf8().constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
}

TEST_F(JournalTest, StartsANewFileEachYearEvenAfterAWrongClock) {
    const Date today = now;
    const auto fly = [&](int years) {
        now = today + std::chrono::years(years);
        restart();
        ignoreVisit(CommandSource::card);
        flush();
    };
    for (const int years : {0, 70, 0, 1, 1})
        fly(years);
    const auto sizes = [&] {
        std::map<QString, std::size_t> found;
        for (const QString& name : QDir(directory()).entryList({"journal*"}))
            found[name] = onDisk(name).size();
        return found;
    };
    EXPECT_EQ(sizes(), (std::map<QString, std::size_t>{{"journal-2023.jsonl", 1},
                                                       {"journal-2093.jsonl", 1},
                                                       {"journal-2023.2.jsonl", 1},
                                                       {"journal.jsonl", 2}}));
}

/// The answers are found again after a restart, also in the file of an earlier year; a deleted record does
/// not touch them.
TEST_F(JournalTest, TellsHowTheAlertOfARecordWasAnswered) {
    const auto answer = [this] { return store().answerTo(*store().history().front().record); };
    ignoreVisit(CommandSource::notification);
    const Date when = now;
    ASSERT_TRUE(answer());
    flush();
    restart();
    now += std::chrono::years(2);
    store().send(Command::hold, CommandSource::menu);
    flush();
    ASSERT_TRUE(answer()); // the file has been read
    EXPECT_EQ(answer()->command, Command::ignore);
    EXPECT_EQ(answer()->source, CommandSource::notification);
    EXPECT_LE(std::abs((answer()->time - when).count()), 1);
    MissionRecord other = *store().history().front().record;
    other.start += std::chrono::minutes(5);
    other.end = other.start + Seconds{14};
    EXPECT_EQ(store().answerTo(other).value().source, std::nullopt) << "another mission with the same id";
    const QByteArray before = content("journal-2023.jsonl");
    store().removeRecord(store().history().front().key);
    EXPECT_EQ(content("journal-2023.jsonl"), before);
}

/// An answer that failed is none.
TEST_F(JournalTest, AFailedAnswerIsNoAnswer) {
    const AlertId seen = serveAlert("M-1");
    ASSERT_TRUE(store().answer(Command::approve, seen, CommandSource::card));
    MissionRecord record;
    record.id = "M-1";
    record.start = now - Seconds{5};
    record.end = now + Seconds{60};
    record.outcome = Outcome::expired;
    EXPECT_TRUE(store().answerTo(record));
    link.posts.back().done(LinkError{"refused", Failure::refused});
    EXPECT_FALSE(store().answerTo(record));
    flush();
    restart();
    store();
    flush();
    EXPECT_FALSE(store().answerTo(record));
}

TEST_F(JournalTest, AFullDiskLosesNoLine) {
    if (!mountSmallDisk())
        GTEST_SKIP() << "mounting is not permitted here";
    ignoreVisit(CommandSource::card);
    flush(); // a file that is being replaced would free its blocks later
    QFile ballast(path("ballast"));
    ASSERT_TRUE(ballast.open(QIODevice::WriteOnly));
    while (ballast.write(QByteArray(4096, 'x')) > 0 && ballast.flush())
        ;
    for (int i = 0; i < 40; ++i) // more than the rest of a block
        ignoreVisit(CommandSource::overview);
    EXPECT_LT(onDisk().size(), 41U);
    ballast.close();
    ASSERT_TRUE(QFile::remove(path("ballast")));
    flush();
    EXPECT_EQ(onDisk().size(), 41U) << "written when the program quits";
}

TEST_F(JournalTest, APipeInPlaceOfTheFileHoldsNothingUp) {
    QDir().mkpath(directory());
    ASSERT_EQ(::mkfifo(path("journal.jsonl").toUtf8().constData(), 0600), 0);
    ignoreVisit(CommandSource::shortcut);
    EXPECT_EQ(store().history().front().record->outcome, Outcome::ignored);
    ASSERT_TRUE(QFile::remove(path("journal.jsonl")));
    flush();
    EXPECT_EQ(onDisk().size(), 1U);
}

/// Real: a hanging disk can only be played by a thread that really waits.
TEST_F(JournalTest, ADiskThatHangsIsWaitedForOnceAndOneThatRefusesGetsEachLineOnce) {
    std::atomic<bool> hangs = true, refuses = false;
    std::atomic<int> syncs = 0;
    Journal journal(QDir(directory()), [&](int) {
        ++syncs;
        while (hangs)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return !refuses;
    });
    JournalEntry entry;
    entry.time = now;
    const auto giveCommand = [&] {
        journal.append(entry);
        const auto start = std::chrono::steady_clock::now();
        journal.sync();
        return Seconds(std::chrono::steady_clock::now() - start).count();
    };
    const double first = giveCommand(), second = giveCommand();
    EXPECT_GE(first, 0.1);
    EXPECT_LT(second, first / 2);
    hangs = false;
    ASSERT_TRUE(journal.flush(std::chrono::minutes(1)));
    const int before = syncs;
    refuses = true;
    giveCommand();
    EXPECT_GT(syncs, before) << "waited for again";
    refuses = false;
    EXPECT_TRUE(journal.flush(std::chrono::minutes(1)));
    EXPECT_EQ(onDisk().size(), 3U);
}

} // namespace velmora
