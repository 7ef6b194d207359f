#include "desktop/desktop_notifier.h"
#include "desktop/notification_service.h"
#include "desktop/virtual_display.h"
#include "store/store_fixture.h"

#include <QDBusArgument>

#include <tuple>

namespace velmora {

namespace {

NotificationPicture pictureOf(const QString& name) {
    return name.isEmpty() ? NotificationPicture{} : NotificationPicture{1, 1, 4, QByteArray("\1\2\3\4", 4)};
}

/// A notifier on the bus of the tests, and the signals that it emitted.
class NotifierTest : public testing::Test {
protected:
    void SetUp() override {
        QObject::connect(&notifier, &DesktopNotifier::answered,
                         [this](Command answer) { answers.push_back(answer); });
        QObject::connect(&notifier, &DesktopNotifier::windowRequested,
                         [this](const QString& token) { tokens.append(token); });
    }

    /// A service whose capabilities the notifier has asked for.
    NotificationService& service(const QStringList& capabilities = {"actions", "body-markup"}) {
        if (!service_) {
            service_ = std::make_unique<NotificationService>(capabilities);
            EXPECT_TRUE(waitUntil([&] { return service_->asked > 0; }));
            settle();
        }
        return *service_;
    }
    /// Waits until every pending message has arrived. The bus keeps the order, so the reply to this call
    /// comes after the replies to earlier calls of the same connection.
    static void settle() {
        const QString name = QStringLiteral("org.freedesktop.Notifications");
        const QDBusMessage call = QDBusMessage::createMethodCall(
            name, QStringLiteral("/org/freedesktop/Notifications"), name, QStringLiteral("GetCapabilities"));
        EXPECT_EQ(replyTo(call, QDBusConnection::sessionBus()).type(), QDBusMessage::ReplyMessage);
        QCoreApplication::processEvents();
    }
    const NotificationService::Shown& post(const QString& identifier = "M-1", const QString& title = "Title",
                                           const AlertId& alert = {}) {
        const std::size_t before = service().shown.size();
        notifier.post({identifier, title, "Body", "snapshot-driveway", alert});
        EXPECT_TRUE(waitUntil([&] { return service().shown.size() > before; }));
        settle();
        return service().shown.back();
    }

    std::vector<Command> answers;
    QStringList tokens;
    DesktopNotifier notifier{QDBusConnection::sessionBus(), pictureOf};
    std::unique_ptr<NotificationService> service_;
};

TEST_F(NotifierTest, ANotificationHasActionsHintsAndAPicture) {
    const auto shown = post("M-1", QString::fromUtf8("Someone at the <gate>\n&\a"));
    EXPECT_EQ(shown.summary, "Someone at the <gate>&");
    EXPECT_EQ(shown.body, "Body");
    EXPECT_EQ(shown.actions,
              QStringList({"default", "Open Velmora", "LAUNCH", "Launch drone", "IGNORE", "Ignore"}));
    EXPECT_EQ(shown.timeout, 0);
    EXPECT_EQ(shown.hints["category"].toString(), "x-velmora.detection");
    EXPECT_EQ(shown.hints["urgency"].metaType(), QMetaType::fromType<uchar>());
    EXPECT_EQ(shown.hints["urgency"].toInt(), 2);
    EXPECT_TRUE(shown.hints["resident"].toBool());
    EXPECT_EQ(shown.hints["sound-name"].toString(), "alarm-clock-elapsed");
    EXPECT_EQ(shown.hints["desktop-entry"].toString(), "org.velmora.Velmora");
    const auto picture = shown.hints["image-data"].value<QDBusArgument>();
    int width = 0, height = 0, rowStride = 0, bitsPerSample = 0, channels = 0;
    bool hasAlpha = false;
    QByteArray pixels;
    picture.beginStructure();
    picture >> width >> height >> rowStride >> hasAlpha >> bitsPerSample >> channels >> pixels;
    picture.endStructure(); // without it Qt leaks its reader
    EXPECT_EQ(std::tuple(width, height, rowStride, hasAlpha, bitsPerSample, channels, pixels),
              std::tuple(1, 1, 4, true, 8, 4, QByteArray("\1\2\3\4", 4)));
}

TEST_F(NotifierTest, AServiceWithoutActionsGetsNone) {
    service({"body"});
    EXPECT_TRUE(post().actions.isEmpty());
}

TEST_F(NotifierTest, ANotificationReplacesTheOneOfTheSameMission) {
    const uint first = post("M-1").id;
    EXPECT_EQ(post("M-1").replaces, first);
    EXPECT_EQ(post("det").replaces, 0U);
}

TEST_F(NotifierTest, AnotherAlertWithTheSameIdentifierGetsANewNotification) {
    const AlertId atTheGate{{}, {}, {}, "gate"}, inTheGarden{{}, {}, {}, "garden"};
    std::vector<AlertId> answered;
    QObject::connect(&notifier, &DesktopNotifier::answered,
                     [&](Command, const AlertId& alert) { answered.push_back(alert); });
    const uint first = post("det", "Title", atTheGate).id;
    const auto second = post("det", "Title", inTheGarden);
    EXPECT_EQ(second.replaces, 0U);
    EXPECT_EQ(service().closed, std::vector{first});
    service().invoke(first, "LAUNCH");
    service().invoke(second.id, "LAUNCH");
    ASSERT_TRUE(waitUntil([&] { return !answered.empty(); }));
    settle();
    EXPECT_EQ(answered, std::vector{inTheGarden});
}

TEST_F(NotifierTest, LaunchAnswersOnceAndOnlyForItsOwnNotification) {
    const uint id = post().id;
    service().invoke(id + 7, "LAUNCH");
    service().invoke(id, "something else");
    service().giveToken(id, "token");
    service().invoke(id, "LAUNCH");
    service().invoke(id, "LAUNCH");
    ASSERT_TRUE(waitUntil([&] { return !answers.empty(); }));
    settle();
    EXPECT_EQ(answers, std::vector{Command::approve});
    EXPECT_EQ(tokens.back(), "token");
}

TEST_F(NotifierTest, AClickOnTheBodyOnlyShowsTheWindow) {
    service().invoke(post().id, "default");
    ASSERT_TRUE(waitUntil([&] { return !tokens.isEmpty(); }));
    settle();
    EXPECT_TRUE(answers.empty());
}

TEST_F(NotifierTest, OnlyDismissingAnUnansweredAlertShowsTheWindow) {
    const uint answered = post("M-1").id, expired = post("M-2").id, dismissed = post("M-3").id;
    service().giveToken(expired, "expired");
    service().giveToken(dismissed, "dismissed");
    service().invoke(answered, "IGNORE");
    service().dismiss(answered, 2);
    service().dismiss(expired, 1);
    service().dismiss(dismissed, 2);
    service().dismiss(dismissed, 2);
    ASSERT_TRUE(waitUntil([&] { return !tokens.isEmpty(); }));
    settle();
    EXPECT_EQ(tokens, QStringList("dismissed"));
}

TEST_F(NotifierTest, AWithdrawnNotificationCloses) {
    const uint id = post().id;
    notifier.withdraw("M-1");
    EXPECT_TRUE(waitUntil([&] { return service().closed == std::vector{id}; }));
    service().invoke(id, "LAUNCH");
    settle();
    EXPECT_TRUE(answers.empty());

    notifier.post({"M-2", "Title", "Body", {}, AlertId{}}); // withdrawn before its id is known
    notifier.withdraw("M-2");
    EXPECT_TRUE(waitUntil([&] { return service().closed.size() == 2; }));
}

TEST_F(NotifierTest, AnOutageIsNotUrgentAndAnswersNothing) {
    service();
    notifier.post({"outage", "Velmora can't reach your server", "No answer since 14:02."});
    ASSERT_TRUE(waitUntil([&] { return !service().shown.empty(); }));
    const auto shown = service().shown.back();
    EXPECT_EQ(shown.actions, QStringList({"default", "Open Velmora"}));
    EXPECT_EQ(shown.hints["urgency"].toInt(), 1);
    EXPECT_FALSE(shown.hints.contains("resident") || shown.hints.contains("sound-name"));
    settle();
    service().invoke(shown.id, "LAUNCH"); // by a service that sends what it was not given
    service().invoke(shown.id, "default");
    service().dismiss(shown.id, 2);
    settle();
    EXPECT_TRUE(answers.empty());
    EXPECT_FALSE(tokens.isEmpty());
}

TEST_F(NotifierTest, NoNotificationOutlivesTheProgram) {
    service();
    auto program = std::make_unique<DesktopNotifier>(QDBusConnection::sessionBus(), pictureOf);
    program->post({"M-1", "Title", "Body", {}, AlertId{}});
    program->post({"outage", "Title", "Body"});
    ASSERT_TRUE(waitUntil([&] { return service().shown.size() == 2; }));
    settle();
    program.reset();
    EXPECT_TRUE(waitUntil([&] { return service().closed.size() == 2; }));
}

TEST_F(NotifierTest, WorksAfterAServiceThatRefusedOrRestarted) {
    service().refuses = true;
    notifier.post({"M-1", "Title", "Body", {}, AlertId{}});
    settle();
    service().refuses = false;
    const auto shown = post();
    EXPECT_EQ(shown.replaces, 0U) << "the refused one has no id";
    const uint id = shown.id;
    service_.reset();
    notifier.post({"M-2", "Title", "Body", {}, AlertId{}}); // while no service runs
    notifier.withdraw("M-2");
    service({"body"});
    service().invoke(id, "LAUNCH"); // an id of the old service
    settle();
    EXPECT_TRUE(answers.empty());
    EXPECT_EQ(post().replaces, 0U);
    EXPECT_TRUE(service().shown.back().actions.isEmpty()) << "the capabilities were queried again";
}

TEST_F(NotifierTest, DoesNotWaitForAHangingService) {
    service().hangs = true;
    notifier.post({"M-1", "Title", "Body", {}, AlertId{}});
    ASSERT_TRUE(waitUntil([&] { return service().held.size() == 1; }));
    notifier.post({"M-1", "Later title", "Body", {}, AlertId{}});
    notifier.withdraw("M-1");
    service().hangs = false;
    service().answerHeld();
    EXPECT_TRUE(waitUntil([&] { return service().closed.size() == 1; })) << "closed after the late reply";
    EXPECT_EQ(post().replaces, 0U);
}

TEST_F(NotifierTest, DoesNothingWithoutABus) {
    DesktopNotifier alone(QDBusConnection(QStringLiteral("nowhere")), pictureOf);
    alone.post({"M-1", "Title", "Body"});
    alone.withdraw("M-1");
}

TEST_F(NotifierTest, AFloodOfForeignSignalsAnswersNothing) {
    const uint id = post().id;
    for (uint i = 0; i < 1000; ++i) {
        service().invoke(id + 1 + i, i % 2 == 0 ? "LAUNCH" : "IGNORE");
        service().invoke(id, QString("LAUNCH").repeated(int(i % 4) + 2));
    }
    service().invoke(id, "LAUNCH");
    ASSERT_TRUE(waitUntil([&] { return !answers.empty(); }));
    settle();
    EXPECT_EQ(answers, std::vector{Command::approve});
}

/// Real: runs the notification service dunst on a virtual display.
class RealServiceTest : public NotifierTest {
protected:
    void expectBothAnswers(Dunst& real) {
        notifier.post({"M-1", "At the <driveway>", "Launch?", {}, AlertId{}});
        ASSERT_TRUE(real.choose("Launch drone"));
        EXPECT_TRUE(waitUntil([&] { return answers == std::vector{Command::approve}; }));
        notifier.withdraw("M-1");
        notifier.post({"M-2", "At the garden", "Launch?", {}, AlertId{}});
        ASSERT_TRUE(real.choose("Ignore"));
        EXPECT_TRUE(waitUntil([&] { return answers.size() == 2 && answers.back() == Command::ignore; }));
        notifier.withdraw("M-2");
        answers.clear();
    }

    VirtualDisplay display;
};

TEST_F(RealServiceTest, DunstReportsAnswersAndMayDieWithANotificationShown) {
    auto dunst = std::make_unique<Dunst>(display);
    expectBothAnswers(*dunst);
    notifier.post({"M-3", "At the gate", "Launch?", {}, AlertId{}});
    EXPECT_TRUE(waitUntil([&] { return dunst->shown() == 1; }));
    dunst.reset();
    EXPECT_TRUE(waitUntil([] { return !Dunst::isRunning(); }));
    notifier.post({"M-3", "At the gate", "Launch?", {}, AlertId{}});
    dunst = std::make_unique<Dunst>(display);
    expectBothAnswers(*dunst);
    EXPECT_TRUE(waitUntil([&] { return dunst->shown() == 0; }));
}

/// An answer in a notification, up to the simulator.
class NotifiedStoreTest : public StoreTest {};

TEST_F(NotifiedStoreTest, LaunchInTheNotificationLaunchesTheDrone) {
    NotificationService service({"actions"});
    DesktopNotifier real(QDBusConnection::sessionBus(), pictureOf);
    AppStore store({[this] { return now; }, random, QDir(directory()), real, loginItem, link});
    QObject::connect(&real, &DesktopNotifier::answered, &store, [&](Command command, const AlertId& alert) {
        store.answer(command, alert, CommandSource::notification);
    });
    ASSERT_TRUE(waitUntil([&] { return service.asked > 0; }));
    QCoreApplication::processEvents();
    store.simulate(Scenario::driveway);
    now += Seconds{0.05};
    store.tick();
    ASSERT_TRUE(waitUntil([&] { return !service.shown.empty(); }));
    EXPECT_EQ(service.shown.front().summary, "Someone you don't know is at the driveway");
    EXPECT_TRUE(waitUntil([&] {
        service.invoke(service.shown.front().id, "LAUNCH");
        return store.knownState()->phase == Phase::launching;
    }));
    now += Seconds{0.05};
    store.tick();
    EXPECT_TRUE(waitUntil([&] { return !service.closed.empty(); }));
}

} // namespace

} // namespace velmora
