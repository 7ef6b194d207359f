#include "store_fixture.h"

#include "model/json.h"
#include "model/notice_texts.h"
#include "support/time_zone.h"

#include <QSignalSpy>

#include <cmath>

namespace velmora {

namespace {

std::vector<MissionRecord> recordsIn(const QByteArray& json) {
    return decode<std::vector<MissionRecord>>(json.toStdString())
        .value.value_or(std::vector<MissionRecord>{});
}

} // namespace

TEST_F(StoreTest, AFreshStartSeedsThreeDemoMissionsAndShowsTheWelcome) {
    EXPECT_TRUE(store().showWelcome());
    EXPECT_EQ(store().linkStatus().text(), "Demo mode");
    ASSERT_EQ(store().history().size(), 3u);
    EXPECT_EQ(store().history()[0].record->outcome, Outcome::visitorLeft);
    EXPECT_EQ(store().history()[1].record->outcome, Outcome::returnedByYou);
    EXPECT_EQ(store().history()[2].record->outcome, Outcome::ignored);
    EXPECT_EQ(store().history()[2].record->end, store().history()[2].record->start + Seconds{14});
    EXPECT_TRUE(std::ranges::all_of(recorded(), &MissionRecord::demo));
    EXPECT_EQ(recordsIn(content("history.json")).size(), 3u);
    EXPECT_FALSE(QFile::exists(path("settings.json"))) << "defaults are not written back";
}

TEST_F(StoreTest, TheDemoMissionsAreAtTheirCamerasTimesAndAnswers) {
    const TimeZone zone("UTC"); // it is 22:14:02 on 14 November 2023
    const struct {
        const char *start, *camera, *notices;
    } missions[] = {{"2023-11-13T22:47:00Z", "driveway", "approved after 9 s"},
                    {"2023-11-12T06:12:00Z", "garden", "approved after 6 s, asked home after 70 s"},
                    {"2023-11-10T19:31:00Z", "front", ""}};
    ASSERT_EQ(store().history().size(), std::size(missions));
    for (std::size_t i = 0; i < std::size(missions); ++i) {
        const MissionRecord& record = *store().history()[i].record;
        EXPECT_EQ(dateText(record.start), missions[i].start);
        EXPECT_EQ(record.cameraId, missions[i].camera);
        std::string notices;
        for (const Notice& notice : record.notices) {
            const auto kind = readNotice(notice.text).value().kind;
            const bool asked = kind == NoticeKind::comingHomeAsked;
            if (asked || kind == NoticeKind::approved)
                notices += (notices.empty() ? "" : ", ") + std::string(asked ? "asked home" : "approved") +
                           " after " + std::to_string(std::lround((notice.time - record.start).count())) +
                           " s";
        }
        EXPECT_EQ(notices, missions[i].notices);
    }
}

TEST_F(StoreTest, AnApprovedVisitFliesLandsAndIsSaved) {
    store().simulate(Scenario::driveway);
    EXPECT_EQ(phase(), Phase::awaitingApproval) << "visible at once, before the next tick";
    QSignalSpy attention(&store(), &AppStore::attentionRequested);
    pass(2);
    EXPECT_EQ(attention.count(), 1);
    ASSERT_EQ(notifier.posted.size(), 1u);
    EXPECT_EQ(notifier.posted[0].identifier, "M-42");
    EXPECT_EQ(notifier.posted[0].title, "Someone you don't know is at the driveway");
    EXPECT_EQ(notifier.posted[0].body, "Launch the drone to keep an eye on them?");

    respond(Command::approve);
    EXPECT_EQ(phase(), Phase::launching);
    EXPECT_EQ(store().section(), Section::overview) << "the section changes with the next tick";
    pass(0.05);
    EXPECT_EQ(store().section(), Section::live);
    EXPECT_EQ(notifier.withdrawn, QStringList{"M-42"});

    pass(40);
    store().send(Command::returnHome, CommandSource::live);
    pass(60);
    EXPECT_EQ(phase(), Phase::docked);
    ASSERT_EQ(store().history().size(), 4u);
    EXPECT_EQ(store().history()[0].record->outcome, Outcome::returnedByYou);
    EXPECT_FALSE(store().history()[0].record->demo);
    EXPECT_EQ(recordsIn(content("history.json"))[0].id, "M-42");
}

TEST_F(StoreTest, WithNotificationsOffAnAlertStillRequestsAttention) {
    Settings settings = store().settings();
    settings.notifyMac = false;
    store().setSettings(settings);
    QSignalSpy attention(&store(), &AppStore::attentionRequested);
    store().simulate(Scenario::garden);
    pass(0.05);
    EXPECT_TRUE(notifier.posted.empty());
    EXPECT_EQ(attention.count(), 1);
}

TEST_F(StoreTest, LongGapsCountAsFiveSecondsAndStepsEndNow) {
    store().simulate(Scenario::driveway);
    tickAfter(12);
    const P start{14, 88};
    EXPECT_NEAR(distance(start, live().visitor->pos), 5 * 1.45, 1e-9);

    respond(Command::ignore);
    EXPECT_EQ(store().history()[0].record->end, now);
    tickAfter(-3600);
    EXPECT_EQ(phase(), Phase::docked) << "a clock that jumps back moves nothing";
}

TEST_F(StoreTest, ArmingAddsANoticeAndADisarmedDetectionIsOnlyLogged) {
    store().setArmed(false);
    EXPECT_FALSE(live().armed);
    EXPECT_EQ(live().notices[0].text, "System disarmed — detections will be logged only");
    EXPECT_EQ(live().notices[0].level, Notice::Level::caution);
    store().simulate(Scenario::front);
    EXPECT_EQ(phase(), Phase::docked);
    EXPECT_EQ(store().history()[0].record->outcome, Outcome::disarmed);
    for (int i = 0; i < 60; ++i)
        store().setArmed(i % 2 == 0);
    EXPECT_EQ(live().notices.size(), 40u);
}

TEST_F(StoreTest, OnlyChangedSettingsAreSavedAndApplied) {
    Settings settings = store().settings();
    store().setSettings(settings);
    EXPECT_EQ(content("settings.json"), "");

    settings.approvalSeconds = 30;
    settings.onboarded = true;
    store().setSettings(settings);
    store().simulate(Scenario::driveway);
    EXPECT_EQ(live().approvalDeadline, now + Seconds{30});
    restart();
    EXPECT_EQ(store().settings(), settings);
    EXPECT_FALSE(store().showWelcome());
}

TEST_F(StoreTest, SettingTheSameValueEmitsNoSignal) {
    QSignalSpy section(&store(), &AppStore::sectionChanged),
        record(&store(), &AppStore::selectedRecordChanged), welcome(&store(), &AppStore::showWelcomeChanged),
        state(&store(), &AppStore::stateChanged), history(&store(), &AppStore::historyChanged);
    store().setSection(Section::overview);
    store().setSelectedRecord(std::nullopt);
    store().setShowWelcome(true);
    store().send(Command::hold, CommandSource::live);
    EXPECT_EQ(section.count() + record.count() + welcome.count() + state.count(), 0);
    store().setSelectedRecord(store().history().front().key);
    EXPECT_EQ(record.count(), 1);
    store().clearDemoHistory();
    store().clearDemoHistory();
    EXPECT_EQ(history.count(), 2) << "historyChanged is emitted for every call";
}

TEST_F(StoreTest, ClearingTheDemoHistoryKeepsTheOwnersMissionsAfterARestart) {
    store().simulate(Scenario::driveway);
    respond(Command::ignore);
    store().clearDemoHistory();
    ASSERT_EQ(store().history().size(), 1u);
    EXPECT_FALSE(store().history()[0].record->demo);
    restart();
    EXPECT_EQ(store().history().size(), 1u);
    store().clearDemoHistory();
    EXPECT_EQ(recordsIn(content("history.json")).size(), 1u);
}

TEST_F(StoreTest, AnExportThatCannotBeWrittenKeepsTheFileAndNamesIt) {
    MissionRecord record = *store().history()[0].record;
    const QString file = path("export.json");
    ASSERT_TRUE(flush()) << "creates the directory";
    EXPECT_EQ(store().exportRecord(record, file), "");
    const QByteArray before = content("export.json");
    EXPECT_EQ(recordsIn('[' + before + ']').front().dronePath, record.dronePath);
    record.confidence = std::nan("");
    EXPECT_EQ(store().exportRecord(record, file), file + " could not be written: it would be empty.");
    EXPECT_EQ(content("export.json"), before);
    EXPECT_NE(store().exportPicture({}, file), "");
    EXPECT_TRUE(store().exportPaths(record, path("no/such/folder.csv")).startsWith(path("no/such")));
    EXPECT_EQ(content("export.json"), before);
}

} // namespace velmora
