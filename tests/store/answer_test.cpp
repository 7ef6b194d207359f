#include "store/store_fixture.h"

namespace velmora {

namespace {

/// A server's alerts, and answers to what the owner saw.
class AnswerTest : public StoreTest {
protected:
    void serve(const LiveState& state) {
        linked();
        while (link.fetches.empty())
            tickAfter(0.05);
        std::exchange(link.fetches, {}).front()(FetchedState{state, "2.1"});
    }
    AlertId alert(const std::optional<std::string>& id, double secondsAgo = 0,
                  const std::optional<Date>& deadline = std::nullopt) {
        LiveState state = LiveState::initial();
        state.phase = Phase::awaitingApproval;
        state.missionId = id;
        state.missionStart = now - Seconds{secondsAgo};
        state.approvalDeadline = deadline;
        state.visitor.emplace().cameraId = "garden";
        serve(state);
        return store().waitingAlert().value_or(AlertId{});
    }
    bool answer(Command command, const AlertId& seen) {
        return store().answer(command, seen, CommandSource::card);
    }
};

TEST_F(AnswerTest, TheCommandCarriesTheMissionOfTheSeenAlert) {
    EXPECT_TRUE(answer(Command::approve, alert("M-1")));
    EXPECT_TRUE(answer(Command::ignore, alert(std::nullopt)));
    ASSERT_EQ(link.posts.size(), 2U);
    EXPECT_EQ(link.posts[0].command, Command::approve);
    EXPECT_EQ(link.posts[0].mission, "M-1");
    EXPECT_EQ(link.posts[1].mission, std::nullopt);
}

TEST_F(AnswerTest, DropsAnAnswerToAnotherOrAnEndedAlert) {
    const AlertId first = alert("M-1");
    alert("M-2");
    EXPECT_FALSE(answer(Command::approve, first));
    const AlertId withoutId = alert(std::nullopt, 9);
    alert(std::nullopt, 2);
    EXPECT_FALSE(answer(Command::approve, withoutId));
    const AlertId last = alert("M-3");
    serve(LiveState::initial());
    EXPECT_FALSE(answer(Command::approve, last));
    EXPECT_TRUE(link.posts.empty());
}

TEST_F(AnswerTest, AnEmptyMissionIdIdentifiesNothing) {
    const AlertId first = alert("", 9);
    EXPECT_NE(first, alert("", 2));
    EXPECT_FALSE(answer(Command::approve, first));
}

/// The owner is notified once, and the notification's answer counts, with the id.
TEST_F(AnswerTest, AMissionIdThatComesLateBelongsToTheSameAlert) {
    const Date deadline = now + Seconds{60}, start = now;
    const auto alertAt = [&](const char* id, Date end) { return alert(id, (now - start).count(), end); };
    const AlertId seen = alertAt("", deadline);
    tickAfter(0.5);
    EXPECT_TRUE(isSameAlert(seen, alertAt("M-1", deadline)));
    tickAfter(0.5);
    EXPECT_EQ(notifier.posted.size(), 1U);
    EXPECT_TRUE(answer(Command::approve, seen));
    EXPECT_EQ(link.posts.at(0).mission, "M-1");
    EXPECT_NE(alertAt("M-2", deadline), alertAt("M-1", deadline)) << "two ids are two alerts";
    EXPECT_FALSE(isSameAlert(seen, alertAt("M-1", deadline + Seconds{1})));
    EXPECT_FALSE(isSameAlert(alertAt("M-1", deadline), seen)) << "an id does not go away";
}

/// The failure of an answer whose effect was seen, or of one to an alert that was replaced, is no news.
TEST_F(AnswerTest, ReportsNoFailureOfAnAnswerThatIsNotPendingAnyMore) {
    int failures = 0;
    QObject::connect(&store(), &AppStore::commandFailed, [&] { ++failures; });
    ASSERT_TRUE(answer(Command::approve, alert("M-1")));
    alert("M-2");
    link.posts.back().done(LinkError{"timed out"});
    ASSERT_TRUE(answer(Command::approve, alert("M-2")));
    Settings other = store().settings();
    other.port += 1;
    store().setSettings(other);
    link.posts.back().done(LinkError{"timed out"});
    EXPECT_EQ(failures, 0);
}

TEST_F(AnswerTest, DropsAnAnswerWhileTheLinkIsNotLive) {
    const AlertId seen = alert("M-1");
    now += Seconds{65}; // the program was stopped and has not ticked yet
    EXPECT_FALSE(answer(Command::approve, seen));
    EXPECT_EQ(store().freshness(), Freshness::stale);
    alert("M-1");
    Settings other = store().settings();
    other.port += 1; // another server may use the same ids
    store().setSettings(other);
    EXPECT_FALSE(answer(Command::approve, seen));
    EXPECT_TRUE(link.posts.empty());
}

TEST_F(AnswerTest, ADemoAlertExpiresBeforeALateAnswer) {
    store().simulate(Scenario::driveway);
    const AlertId seen = store().waitingAlert().value();
    now += Seconds{65};
    EXPECT_FALSE(answer(Command::approve, seen));
    EXPECT_EQ(store().history().front().record->outcome, Outcome::expired);
}

TEST_F(AnswerTest, AnswerTakesOnlyAnswersAndSendOnlyFlightCommands) {
    const AlertId seen = alert("M-1");
    EXPECT_FALSE(answer(Command::land, seen));
    store().send(Command::approve, CommandSource::live);
    store().send(Command::ignore, CommandSource::live);
    EXPECT_TRUE(link.posts.empty());
    pass(9);
    store().send(Command::returnHome, CommandSource::live);
    EXPECT_EQ(link.posts.size(), 1U) << "flight commands are always sent";
}

/// While an answer is pending, nothing can be answered; each failure is reported once.
TEST_F(AnswerTest, AnAnswerIsPendingUntilThePhaseMovesItFailsOrFiveSecondsHavePassed) {
    QStringList failures;
    QObject::connect(&store(), &AppStore::commandFailed, [&](Command command, const QString& reason) {
        failures.append(QString::number(static_cast<int>(command)) + reason);
    });
    const auto stayAwaiting = [&](double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.5) {
            tickAfter(0.5);
            alert("M-1");
        }
    };
    const AlertId seen = alert("M-1");
    ASSERT_TRUE(answer(Command::approve, seen));
    EXPECT_EQ(store().pendingCommand(), Command::approve);
    EXPECT_EQ(store().waitingAlert(), std::nullopt);
    EXPECT_EQ(store().shownAlert(), seen);
    EXPECT_FALSE(answer(Command::ignore, seen));
    store().send(Command::hold, CommandSource::live);
    stayAwaiting(4);
    EXPECT_EQ(store().pendingCommand(), Command::approve) << "a flight command does not end it";
    stayAwaiting(1.5);
    EXPECT_EQ(store().waitingAlert(), seen);
    EXPECT_EQ(failures, QStringList{"0"});

    link.posts.clear();
    ASSERT_TRUE(answer(Command::approve, seen)) << "the owner tries again";
    ASSERT_EQ(link.posts.size(), 1U);
    link.posts.front().done(LinkError{"refused"});
    EXPECT_EQ(store().waitingAlert(), seen);
    EXPECT_EQ(failures, (QStringList{"0", "0refused"}));

    ASSERT_TRUE(answer(Command::approve, seen));
    const AlertId next = alert("M-2");
    EXPECT_EQ(store().waitingAlert(), next) << "another alert can be answered at once";
    stayAwaiting(6);
    EXPECT_EQ(failures.size(), 2);
}

TEST_F(AnswerTest, AFlightCommandIsPendingUntilThePhaseFollows) {
    const auto servePhase = [this](Phase phase) {
        LiveState state = LiveState::initial();
        state.phase = phase;
        serve(state);
    };
    using enum Phase;
    const std::tuple<Command, Phase, Phase> flights[] = {{Command::hold, following, holding},
                                                         {Command::resume, holding, enRoute},
                                                         {Command::returnHome, holding, returning},
                                                         {Command::returnHome, following, docked},
                                                         {Command::land, returning, landing}};
    for (const auto& [command, before, after] : flights) {
        servePhase(before);
        store().send(command, CommandSource::live);
        servePhase(before);
        EXPECT_EQ(store().pendingCommand(), command);
        servePhase(after);
        EXPECT_EQ(store().pendingCommand(), std::nullopt);
        store().send(command, CommandSource::live);
        EXPECT_EQ(store().pendingCommand(), std::nullopt) << "it has its effect already";
    }
    store().applyLinkMode(false);
    store().send(Command::returnHome, CommandSource::live);
    EXPECT_EQ(store().pendingCommand(), std::nullopt);
}

TEST_F(AnswerTest, ReportsAFailedCommand) {
    std::vector<std::pair<Command, QString>> failures;
    QObject::connect(&store(), &AppStore::commandFailed,
                     [&](Command command, const QString& reason) { failures.emplace_back(command, reason); });
    alert("M-1");
    store().send(Command::hold, CommandSource::live);
    store().send(Command::land, CommandSource::live);
    link.posts.at(0).done({});
    link.posts.at(1).done(LinkError{"The connection timed out"});
    EXPECT_EQ(failures, (std::vector{std::pair{Command::land, QString("The connection timed out")}}));
}

} // namespace

} // namespace velmora
