#include "ui/linked_ui_fixture.h"
#include "ui/look/words.h"

#include <QAbstractButton>

namespace velmora {

namespace {

const QString faces = QStringLiteral("Faces it doesn't recognise"),
              people = QStringLiteral("Any person, even without a face");

class CamerasTest : public LinkedUiTest {
protected:
    void look() {
        store().setSection(Section::cameras);
        window();
    }
    /// Returns the switch of a camera, or null.
    QAbstractButton* theSwitch(const QString& title, const QString& camera) {
        for (auto* button : window().findChildren<QAbstractButton*>())
            if (button->isVisible() && button->accessibleName() == title &&
                button->accessibleDescription().startsWith(camera + ", "))
                return button;
        return nullptr;
    }
    int count(const QString& name) {
        int found = 0;
        for (auto* widget : window().findChildren<QWidget*>())
            found += widget->isVisible() && widget->accessibleName() == name ? 1 : 0;
        return found;
    }
};

TEST_F(CamerasTest, ShowingTheScreenWritesNothingAndUsesTheDefaults) {
    const QByteArray before = content("settings.json");
    look();
    for (const QString camera : {"Driveway", "Front lawn", "East garden"}) {
        ASSERT_TRUE(theSwitch(faces, camera) && theSwitch(people, camera)) << camera.toStdString();
        EXPECT_TRUE(theSwitch(faces, camera)->isChecked());
        EXPECT_FALSE(theSwitch(people, camera)->isChecked());
    }
    EXPECT_EQ(content("settings.json"), before);
}

TEST_F(CamerasTest, TurningASwitchWritesOnlyItsEntry) {
    look();
    QTest::mouseClick(theSwitch(people, "East garden"), Qt::LeftButton);
    settle();
    using Entries = std::map<std::string, bool>;
    EXPECT_EQ(store().settings().alertPeople, (Entries{{"garden", true}}));
    EXPECT_EQ(store().settings().alertUnknownFaces, Entries{});
    EXPECT_FALSE(theSwitch(people, "Driveway")->isChecked());
    EXPECT_TRUE(content("settings.json").contains(R"("alertPeople":{"garden":true})"));

    QTest::keyClick(theSwitch(faces, "Driveway"), Qt::Key_Space);
    EXPECT_EQ(store().settings().alertUnknownFaces, (Entries{{"driveway", false}}));
    EXPECT_FALSE(theSwitch(faces, "Driveway")->isChecked());
    QTest::keyClick(theSwitch(faces, "Driveway"), Qt::Key_Space);
    EXPECT_EQ(store().settings().alertUnknownFaces, (Entries{{"driveway", true}}))
        << "the entry stays in the settings";
}

TEST_F(CamerasTest, ClickingTheTextTurnsTheSwitch) {
    look();
    click("More alerts at night");
    EXPECT_EQ(store().settings().alertPeople.size(), 1u);
    click(people);
    EXPECT_EQ(store().settings().alertPeople.at("driveway"), false);
}

TEST_F(CamerasTest, ShowsStoredEntriesAndKeepsThoseOfOtherCameras) {
    Settings settings = store().settings();
    settings.alertUnknownFaces = {{"front", false}};
    settings.alertPeople = {{"front", true}, {"long gone", true}};
    store().setSettings(settings);
    look();
    EXPECT_FALSE(theSwitch(faces, "Front lawn")->isChecked());
    EXPECT_TRUE(theSwitch(people, "Front lawn")->isChecked());
    QTest::mouseClick(theSwitch(people, "Front lawn"), Qt::LeftButton);
    EXPECT_TRUE(store().settings().alertPeople.at("long gone")) << "entries of other cameras are kept";
}

TEST_F(CamerasTest, ACardShowsNameConnectionAndAlerts) {
    store().applyLinkMode(true);
    look();
    LiveState state = LiveState::initial();
    state.site.cameras[2].online = false;
    serve(state);
    EXPECT_EQ(count("Online"), 2);
    EXPECT_EQ(count("Offline"), 1);
    EXPECT_EQ(count("1 alert in the history"), 3);
    store().clearDemoHistory();
    settle();
    EXPECT_EQ(count("No alerts in the history"), 3);
}

TEST_F(CamerasTest, CardsSurviveStateChangesAndFollowTheSite) {
    store().applyLinkMode(true);
    look();
    LiveState state = LiveState::initial();
    serve(state);
    QAbstractButton* before = theSwitch(faces, "Driveway");
    state.site.cameras[0].online = false;
    serve(state);
    EXPECT_EQ(theSwitch(faces, "Driveway"), before) << "the card is not recreated";

    state.site.cameras = {{"gate", "Gate", {10, 10}, 0, "", true}, state.site.cameras[1]};
    serve(state);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(count("Online"), 2);
    QTest::mouseClick(theSwitch(people, "Gate"), Qt::LeftButton);
    EXPECT_TRUE(store().settings().alertPeople.at("gate"));

    state.site.cameras.clear();
    serve(state);
    EXPECT_TRUE(shows("No cameras yet"));
    click("Connection settings");
    EXPECT_EQ(store().section(), Section::settings);
}

TEST_F(CamerasTest, AnOfflineCameraSaysWhatItMeansAndWhenItWasLastOnline) {
    const QString warning = "Will not alert while offline";
    store().applyLinkMode(true);
    look();
    LiveState state = LiveState::initial();
    state.site.cameras[2].online = false;
    serve(state);
    EXPECT_FALSE(shows("Last seen " + dayAndTime(now, now))) << "it never was online";
    state.site.cameras[2].online = true;
    serve(state);
    EXPECT_EQ(count(warning), 0);
    const Date seen = now;
    state.site.cameras[2].online = false;
    for (int i = 0; i < 300; ++i)
        serve(state);
    EXPECT_EQ(count(warning), 2);
    EXPECT_TRUE(shows("Last seen " + dayAndTime(seen, now)));
    QAbstractButton* alerts = theSwitch(faces, "East garden");
    EXPECT_TRUE(alerts->accessibleDescription().endsWith(warning));
    QTest::mouseClick(alerts, Qt::LeftButton);
    EXPECT_FALSE(store().settings().alertUnknownFaces.at("garden")) << "the switches still work";
    state.site.cameras[2].online = true;
    serve(state);
    EXPECT_EQ(count(warning), 0);
    EXPECT_FALSE(shows("Last seen " + dayAndTime(seen, now)));
}

} // namespace

} // namespace velmora
