#include "ui/ui_fixture.h"

#include <QAbstractButton>
#include <QSignalSpy>

namespace velmora {

namespace {

const QString explore = QStringLiteral("Explore in demo mode"),
              connectTo = QStringLiteral("Connect to velmora");

class WelcomeTest : public UiTest {
protected:
    void SetUp() override {}
};

TEST_F(WelcomeTest, TheFirstStartShowsTheWelcomeUntilTheOwnerExplores) {
    store().applyLinkMode(true);
    window();
    EXPECT_TRUE(shows("Welcome to Velmora"));
    EXPECT_TRUE(shows("A second pair of eyes over your grounds."));
    click(explore);
    EXPECT_FALSE(shows("Welcome to Velmora"));
    EXPECT_EQ(store().section(), Section::overview);
    EXPECT_TRUE(shows("Waiting for velmora."));
    EXPECT_TRUE(store().settings().linkMode) << "exploring does not leave link mode";
    EXPECT_TRUE(content("settings.json").contains(R"("onboarded":true)"));
}

TEST_F(WelcomeTest, ConnectingOpensTheSettingsAndKeepsDemoMode) {
    window();
    click(connectTo);
    EXPECT_FALSE(store().showWelcome());
    EXPECT_TRUE(store().settings().onboarded);
    EXPECT_FALSE(store().settings().linkMode);
    EXPECT_EQ(store().section(), Section::settings);
    EXPECT_TRUE(shows("How the drone behaves."));

    store().setShowWelcome(true);
    settle();
    QSignalSpy sections(&store(), &AppStore::sectionChanged);
    click(connectTo);
    EXPECT_TRUE(store().settings().onboarded);
    EXPECT_FALSE(shows(connectTo));
    EXPECT_EQ(sections.count(), 0);
}

TEST_F(WelcomeTest, ItsButtonsWorkWithTheKeyboard) {
    window();
    const auto reach = [&](const QString& button) {
        for (int i = 0; i < 12 && QApplication::focusWidget() != find(button); ++i)
            press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), find(button)) << button.toStdString();
    };
    reach(explore);
    reach(connectTo);
    press(Qt::Key_Return);
    EXPECT_EQ(store().section(), Section::settings);
}

TEST_F(WelcomeTest, CoveredSectionsCannotBeReached) {
    window();
    EXPECT_FALSE(shows("Live flight"));
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_3, Qt::Key_5}) {
        press(key, Qt::ControlModifier);
        EXPECT_EQ(store().section(), Section::overview);
    }
    EXPECT_TRUE(store().showWelcome());
}

TEST_F(WelcomeTest, AnAlertAppearsOverItAndItStaysAfterwards) {
    window();
    visit(Scenario::driveway);
    ASSERT_TRUE(waitUntil([&] { return shows("Launch drone"); }));
    QWidget* card = find("Launch drone");
    QWidget* top = window().childAt(card->mapTo(&window(), card->rect().center()));
    EXPECT_EQ(top, card);
    respond(Command::ignore);
    EXPECT_TRUE(waitUntil([&] { return !shows("Launch drone"); }));
    EXPECT_TRUE(shows(explore));
}

} // namespace

} // namespace velmora
