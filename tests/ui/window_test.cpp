#include "ui/look/motion.h"
#include "ui/look/style.h"
#include "ui/look/tokens.h"
#include "ui/served_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace velmora {

namespace {

const QString alertCard = QStringLiteral("Someone you don't know is at the driveway camera.");
const QStringList visits{"Visitor on the driveway", "Visitor in the east garden",
                         "Visitor crossing the front lawn"};

class WindowTest : public ServedTest {
protected:
    QAction* command(const QString& text) {
        for (QAction* action : window().findChildren<QAction*>())
            if (action->text() == text)
                return action;
        return nullptr;
    }
    bool offers(const QString& text) {
        const QAction* action = command(text);
        EXPECT_NE(action, nullptr) << text.toStdString();
        return action && action->isEnabled();
    }
    void expectMenus(bool canStage, bool canAnswer) {
        for (const QString& visit : visits)
            EXPECT_EQ(offers(visit), canStage) << visit.toStdString();
        EXPECT_EQ(offers("Launch (approve)"), canAnswer);
        EXPECT_EQ(offers("Ignore alert"), canAnswer);
        for (const char* opens : {"About Velmora", "Show welcome"})
            EXPECT_EQ(offers(opens), !canAnswer) << opens << " would open below the card";
        for (const char* always : {"Hold position", "Return home", "Quit Velmora"})
            EXPECT_TRUE(offers(always)) << always;
    }
    /// Presses every shortcut that opens something in the window.
    void tryShortcuts() {
        for (const Qt::Key key : {Qt::Key_1, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_2})
            press(key, Qt::ControlModifier);
        press(Qt::Key_F10);
    }
    bool menuIsActive() { return window().findChild<QMenuBar*>()->activeAction() != nullptr; }
};

TEST_F(WindowTest, DemoMenusFollowThePhase) {
    window();
    expectMenus(true, false);
    visit(Scenario::driveway);
    expectMenus(false, true);
    approve();
    expectMenus(false, false);
    fly(200);
    ASSERT_EQ(phase(), Phase::docked);
    expectMenus(true, false);
}

TEST_F(WindowTest, LinkModeMenusStageNothingAndAnswerOnlyServerAlerts) {
    visit(Scenario::driveway);
    store().applyLinkMode(true);
    window();
    expectMenus(false, false);
    serve(mission(Phase::awaitingApproval));
    expectMenus(false, true);
    serve(mission(Phase::docked));
    expectMenus(false, false);
}

TEST_F(WindowTest, EachVisitIsStagedInFrontOfItsCamera) {
    for (const auto& [scenario, camera] : rawValuesOf<Scenario>) {
        command(visits[static_cast<int>(scenario)])->trigger();
        ASSERT_TRUE(live().visitor.has_value());
        EXPECT_EQ(live().visitor->cameraId, camera);
        respond(Command::ignore);
    }
}

TEST_F(WindowTest, ShortcutsSendTheDronesCommands) {
    window();
    serve(mission(Phase::following));
    press(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(lastPosted(), Command::hold);
    press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(lastPosted(), Command::returnHome);
    press(Qt::Key_Return, Qt::ControlModifier);
    press(Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_EQ(link.posts.size(), 2U);
}

TEST_F(WindowTest, AFailedCommandIsReportedInEverySection) {
    window();
    serve(mission(Phase::following));
    for (const auto& [section, id] : rawValuesOf<Section>) {
        store().setSection(section);
        press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        link.posts.back().done(LinkError{QString::fromUtf8(id.data()) + ": timed out"});
        settle();
        EXPECT_TRUE(shows(QString::fromUtf8("velmora did not confirm “Return home”. ") +
                          QString::fromUtf8(id.data()) + ": timed out."))
            << id;
    }
}

TEST_F(WindowTest, AMenuHasAWholeBorderAndItsShadowMovesNothing) {
    QMenu menu;
    menu.addAction("Line");
    menu.ensurePolished();
    const QPoint at = window().mapToGlobal(QPoint(300, 300));
    menu.popup(at);
    settle();
    const QRect panel = menu.contentsRect();
    EXPECT_EQ(menu.mapToGlobal(panel.topLeft()), at);
    const QImage shot = menu.grab().toImage();
    for (const QPoint& edge : {QPoint(panel.left(), panel.center().y()),
                               {panel.right(), panel.center().y()},
                               {panel.center().x(), panel.top()},
                               {panel.center().x(), panel.bottom()}})
        EXPECT_EQ(shot.pixelColor(edge), SB::rule);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, {panel.center().x(), panel.bottom() + 4});
    EXPECT_FALSE(menu.isVisible()) << "a click on the shadow is one beside the menu";
}

TEST_F(WindowTest, SectionsOpenByNumberAndByClick) {
    const QStringList rows{"Overview", "Live flight", "History", "Cameras", "Settings"};
    window();
    for (const auto& [section, id] : rawValuesOf<Section>) {
        const int index = static_cast<int>(section);
        press(Qt::Key(Qt::Key_1 + index), Qt::ControlModifier);
        EXPECT_EQ(store().section(), section);
        EXPECT_TRUE(find<QAbstractButton>(rows[index])->isChecked()) << id;
        clickThrough(rows[4 - index]);
        EXPECT_EQ(static_cast<int>(store().section()), 4 - index);
    }
}

TEST_F(WindowTest, TheFirstKeyTriggersNothingAndTabContinuesInTheSection) {
    window();
    press(Qt::Key_Space);
    EXPECT_TRUE(live().armed);
    press(Qt::Key_3, Qt::ControlModifier);
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_Space);
    EXPECT_TRUE(live().armed) << "the focused list was hidden";
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find("Disarm"));
}

TEST_F(WindowTest, CtrlQQuitsAndCtrlWCloses) {
    window();
    QTimer::singleShot(0, [this] { press(Qt::Key_Q, Qt::ControlModifier); });
    QTimer::singleShot(5000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    window().show();
    window().activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window().isActiveWindow(); }));
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(WindowTest, OnlyTheTitleStripCanBeReachedBehindTheAlert) {
    window();
    visit(Scenario::driveway);
    outwaitGuard();
    clickThrough("Settings");
    tryShortcuts();
    EXPECT_EQ(store().section(), Section::overview);
    EXPECT_TRUE(menuIsActive());
    press(Qt::Key_Escape);
    EXPECT_FALSE(menuIsActive());
    clickThrough("Maximise");
    EXPECT_TRUE(window().isMaximized());
    press(Qt::Key_Escape);
    EXPECT_EQ(phase(), Phase::awaitingApproval);
    EXPECT_TRUE(shows(alertCard));

    respond(Command::ignore);
    ASSERT_TRUE(waitUntil([&] { return !shows(alertCard); }));
    clickThrough("Settings");
    EXPECT_EQ(store().section(), Section::settings);
}

TEST_F(WindowTest, NothingMovesIfTheDesktopDisablesAnimations) {
    class StillStyle final : public Style {
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* returned) const override {
            return hint == SH_Widget_Animation_Duration ? 0
                                                        : Style::styleHint(hint, option, widget, returned);
        }
    };
    QApplication::setStyle(new StillStyle);
    window();
    visit(Scenario::driveway);
    EXPECT_TRUE(shows("Launch drone")) << "the card appears at once";
    respond(Command::ignore);
    EXPECT_FALSE(shows("Launch drone"));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr)
        << "the focus moves to no control behind the card";
    store().setSection(Section::live);
    visit(Scenario::driveway);
    approve();
    fly(10);
    clock.advance(std::chrono::seconds(1)); // the words have followed the flight
    const auto look = [&] {
        clock.advance(Motion::frame * 5);
        return window().grab().toImage();
    };
    EXPECT_EQ(look(), look()) << "nothing pulses";
    QApplication::setStyle(new Style);
}

TEST_F(WindowTest, TheEdgesResizeTheWindowUnlessItFillsTheScreen) {
    const int right = window().width() - 1, bottom = window().height() - 1;
    const auto shapeAt = [&](QPoint at) { return window().childAt(at)->cursor().shape(); };
    for (const int depth : {0, 5}) {
        const QPoint in(depth, depth);
        EXPECT_EQ(shapeAt(in), Qt::SizeFDiagCursor);
        EXPECT_EQ(shapeAt(QPoint(right, bottom) - in), Qt::SizeFDiagCursor);
        EXPECT_EQ(shapeAt({right - depth, depth}), Qt::SizeBDiagCursor);
        EXPECT_EQ(shapeAt({depth, bottom - depth}), Qt::SizeBDiagCursor);
        for (const int x : {depth, right - depth})
            EXPECT_EQ(shapeAt({x, bottom / 2}), Qt::SizeHorCursor);
        for (const int y : {depth, bottom - depth})
            EXPECT_EQ(shapeAt({right / 2, y}), Qt::SizeVerCursor);
    }
    EXPECT_EQ(shapeAt({6, bottom / 2}), Qt::ArrowCursor);
    visit(Scenario::driveway);
    EXPECT_EQ(shapeAt({0, bottom / 2}), Qt::SizeHorCursor) << "above the card";
    window().showMaximized();
    settle();
    EXPECT_EQ(shapeAt({0, window().height() / 2}), Qt::ArrowCursor);
    window().showNormal();
    settle();
    EXPECT_EQ(shapeAt({0, window().height() / 2}), Qt::SizeHorCursor);
}

/// As right after the start, before the other sections are built.
TEST_F(WindowTest, ASectionIsBuiltWhenItIsFirstWanted) {
    MainWindow fresh(store());
    const RecordKey record = store().history()[2].key;
    store().openRecord(record);
    EXPECT_EQ(store().selectedRecord(), record);
    fresh.show();
    EXPECT_NE(fresh.findChild<QLineEdit*>(), nullptr) << "the search of the history";
    store().simulate(Scenario::driveway);
    respond(Command::approve);
    fly(0.1);
    EXPECT_EQ(store().section(), Section::live);
    EXPECT_NE(find<QAbstractButton>(fresh, "Return home"), nullptr);
}

TEST_F(WindowTest, ACardBlocksTheSearchShortcut) {
    store().setSection(Section::history);
    window();
    visit(Scenario::driveway);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_NE(QApplication::focusWidget(), find("Search the history"));
}

TEST_F(WindowTest, ControlsBehindTheWelcomeCannotBeReached) {
    window();
    store().setShowWelcome(true);
    settle();
    tryShortcuts();
    EXPECT_EQ(store().section(), Section::overview);
    EXPECT_FALSE(shows("Settings"));
}

TEST_F(WindowTest, TheAlertClosesWhenItIsIgnoredAndWhenItExpires) {
    Settings settings = store().settings();
    settings.approvalSeconds = 15;
    store().setSettings(settings);
    window();
    visit(Scenario::driveway);
    ASSERT_TRUE(shows(alertCard));
    EXPECT_TRUE(waitUntil([&] { return shows("Expires in, 15 s"); }));
    pass(14.8);
    EXPECT_TRUE(waitUntil([&] { return shows("Expires in, 1 s"); }));
    pass(0.3);
    EXPECT_EQ(store().history().front().record->outcome, Outcome::expired);
    EXPECT_TRUE(waitUntil([&] { return !shows(alertCard); }));

    visit(Scenario::driveway);
    EXPECT_TRUE(shows(alertCard));
    respond(Command::ignore);
    EXPECT_TRUE(waitUntil([&] { return !shows(alertCard); }));
}

TEST_F(WindowTest, TheAlertDescribesTheVisitInIntegers) {
    Settings settings = store().settings();
    settings.flightHeight = 15.9;
    settings.followDistance = 12.99;
    store().setSettings(settings);
    LiveState state = mission(Phase::awaitingApproval);
    state.visitor->confidence = 0.865;
    state.drone.battery = 79.5;
    state.windKmh = 10.5;
    window();
    serve(state);
    EXPECT_TRUE(shows("Someone you don't know is at the front lawn camera."));
    const QString body =
        "Launch the drone to keep an eye on them? It will fly at 15 m, follow about 12 m back, "
        "stay inside your boundary and come home on its own.";
    for (const QString& text :
         {body, QString("Match, 87 % unknown"), QString("Battery, 80 %"), QString("Wind, 11 km/h")})
        EXPECT_TRUE(waitUntil([&] { return shows(text); })) << text.toStdString();

    state.visitor->cameraId = "attic";
    serve(state);
    EXPECT_TRUE(shows("Someone you don't know is at the grounds."));
}

TEST_F(WindowTest, TheAlertIsAboveOtherCardsAndReturnsTheFocus) {
    window();
    command("About Velmora")->trigger();
    ASSERT_TRUE(waitUntil([&] { return shows("Close") && find("About Velmora")->isVisible(); }));
    press(Qt::Key_Tab);
    QWidget* before = QApplication::focusWidget();
    visit(Scenario::driveway);
    ASSERT_TRUE(waitUntil([&] { return shows("Launch drone"); }));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find("Enlarge the picture"));
    respond(Command::ignore);
    ASSERT_TRUE(waitUntil([&] { return !shows(alertCard); }));
    EXPECT_EQ(QApplication::focusWidget(), before);
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !shows("About Velmora"); }));
}

TEST_F(WindowTest, TheSidebarShowsPhaseBatteryAndLink) {
    window();
    EXPECT_TRUE(shows("Docked, battery 92%"));
    EXPECT_TRUE(shows("Demo mode"));
    LiveState state = mission(Phase::returning);
    state.drone.battery = 30.5;
    serve(state);
    EXPECT_TRUE(shows("Coming home, battery 31%"));
    EXPECT_TRUE(shows("Linked to velmora 2.1"));
}

} // namespace

} // namespace velmora
