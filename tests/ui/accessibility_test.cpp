#include "ui/served_fixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QSlider>

namespace velmora {

namespace {

class AccessibilityTest : public ServedTest {
protected:
    /// Expects a role and a name on every widget that the keyboard can reach in `inside`.
    void expectAllNamed(QWidget& inside, const std::string& where) {
        int reached = 0;
        for (QWidget* widget : inside.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
                continue;
            ++reached;
            QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
            const std::string what = where + ": " + widget->metaObject()->className();
            ASSERT_NE(seen, nullptr) << what;
            EXPECT_NE(seen->role(), QAccessible::Client) << what;
            EXPECT_FALSE(seen->text(QAccessible::Name).trimmed().isEmpty()) << what;
        }
        EXPECT_GT(reached, 0) << where;
    }
    void expectSectionsNamed(const std::string& when) {
        for (const auto& [section, id] : rawValuesOf<Section>) {
            store().setSection(section);
            settle();
            expectAllNamed(window(), when + ", " + std::string(id));
        }
    }
    void showPatterns() {
        store().setSection(Section::history);
        settle();
        click("Patterns");
    }
    void expectCardNamed(const QString& name, const QString& button) {
        ASSERT_TRUE(waitUntil([&] { return shows(name) && find(*find(name), button); }))
            << name.toStdString();
        QWidget* card = find(name);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(card)->role(), QAccessible::Dialog);
        expectAllNamed(*card, name.toStdString());
        press(Qt::Key_Escape);
    }
};

TEST_F(AccessibilityTest, EverySectionNamesWhatTheKeyboardReaches) {
    expectSectionsNamed("docked");
    showPatterns();
    expectAllNamed(window(), "patterns");
    store().clearDemoHistory();
    expectSectionsNamed("no history");
    serve(mission(Phase::following));
    expectSectionsNamed("flying");
    pass(10);
    expectSectionsNamed("stale");
    store().setShowWelcome(true);
    settle();
    expectAllNamed(window(), "welcome");
}

TEST_F(AccessibilityTest, EveryCardIsADialogOfNamedControls) {
    window();
    visit(Scenario::garden);
    expectCardNamed("Someone you don't know is at the east garden camera.", "Launch drone");
    approve();
    ASSERT_TRUE(waitUntil([&] { return !shows("Launch drone"); }));
    click("Land now");
    expectCardNamed("Land the drone where it is now?", "Keep flying");
    ASSERT_TRUE(waitUntil([&] { return !shows("Keep flying"); }));
    store().setSection(Section::history);
    settle();
    click("Clear demo history");
    expectCardNamed("Clear the demo history?", "Keep it");
    ASSERT_TRUE(waitUntil([&] { return !shows("Keep it"); }));
    for (QAction* action : window().findChildren<QAction*>())
        if (action->text() == "About Velmora")
            action->trigger();
    expectCardNamed("About Velmora", "Close");
}

TEST_F(AccessibilityTest, AccessibleActionsDoWhatTheMouseDoes) {
    window();
    const auto act = [&](const QString& name) {
        auto* widget = find<QAbstractButton>(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QAccessibleActionInterface* actions =
            QAccessible::queryAccessibleInterface(widget)->actionInterface();
        ASSERT_FALSE(actions->actionNames().isEmpty()) << name.toStdString();
        actions->doAction(actions->actionNames().front());
        settle();
    };
    act("Settings");
    EXPECT_EQ(store().section(), Section::settings);
    act("Alert on this computer");
    EXPECT_TRUE(content("settings.json").contains("\"notifyMac\":false"));
    act("DJI tracking hand-over");
    EXPECT_EQ(store().settings().tracking, TrackingMode::native);
    act("velmora on my network");
    EXPECT_TRUE(store().settings().linkMode);
    ASSERT_TRUE(waitUntil([&] { return find<QLineEdit>("Host"); }));
    QAccessible::queryAccessibleInterface(find<QLineEdit>("Host"))
        ->setText(QAccessible::Value, "grounds.local");
    EXPECT_EQ(store().settings().host, "grounds.local");
    QAccessible::queryAccessibleInterface(find<QSlider>("Flight height"))
        ->valueInterface()
        ->setCurrentValue(21);
    EXPECT_EQ(store().settings().flightHeight, 21);
    act("Demo mode (built-in simulation)");
    EXPECT_FALSE(store().settings().linkMode);
    act("Cameras");
    act("Any person, even without a face");
    EXPECT_TRUE(store().settings().alertPeople.contains("driveway"));
}

TEST_F(AccessibilityTest, EveryKindOfButtonActsOnAnAccessiblePress) {
    window();
    pressByAccessibility("Disarm");
    EXPECT_FALSE(live().armed);
    pressByAccessibility("All activity →");
    EXPECT_EQ(store().section(), Section::history);
    pressByAccessibility("All cameras");
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QApplication::activePopupWidget()->close();
    auto* time = find<QAbstractSlider>("Replay time");
    QAccessible::queryAccessibleInterface(time)->valueInterface()->setCurrentValue(2);
    EXPECT_TRUE(shows("0:01 / 2:20"));
    pressByAccessibility("Play");
    EXPECT_TRUE(shows("Pause"));
    pressByAccessibility("Pause");
    for (auto* notice : window().findChildren<QAbstractButton*>())
        if (notice->isVisible() && notice->accessibleName().endsWith("You approved the launch"))
            pressByAccessibility(notice->accessibleName());
    EXPECT_GT(time->value(), 2) << "the replay is at the notice";
}

TEST_F(AccessibilityTest, PaintedWidgetsHaveNamesAndRoles) {
    store().setSection(Section::live);
    LiveState state = mission(Phase::following);
    state.drone.altitude = 15.2;
    serve(state);
    const QString map =
        "Map of your grounds. The drone is at 15 m height, 13 m from its pad and 8 m from the boundary. "
        "Unknown person is 5 m from the drone, 4 m inside the boundary.";
    const std::pair<QString, QAccessible::Role> painted[] = {
        {"Height, 15 m", QAccessible::StaticText},
        {"Following at 5 m", QAccessible::Heading},
        {"Step 4 of 6: Following", QAccessible::StaticText},
        {map, QAccessible::Graphic}};
    for (const auto& [name, role] : painted) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->role(), role) << name.toStdString();
    }
}

struct Spoken {
    QObject* object;
    QString name;
};

/// What is visible, in the order in which a screen reader meets it.
void read(QAccessibleInterface* node, std::vector<Spoken>& spoken) {
    if (node->state().invisible)
        return;
    spoken.push_back({node->object(), node->text(QAccessible::Name)});
    EXPECT_TRUE(node->childCount() > 0 || !spoken.back().name.isEmpty())
        << "an empty " << node->object()->metaObject()->className();
    for (int i = 0; i < node->childCount(); ++i)
        read(node->child(i), spoken);
}

TEST_F(AccessibilityTest, TabAndScreenReadersFollowTheSameOrder) {
    QAccessibleInterface* all = QAccessible::queryAccessibleInterface(&window());
    EXPECT_EQ(all->role(), QAccessible::Window);
    const auto expectSameOrder = [&](std::string_view id) {
        std::vector<Spoken> spoken;
        read(all, spoken);
        const auto indexOfFocus = [&] {
            return std::ranges::find(spoken, QApplication::focusWidget(), &Spoken::object) - spoken.begin();
        };
        window().setFocus();
        press(Qt::Key_Tab);
        const auto first = indexOfFocus();
        for (auto index = first, next = first;; index = next) {
            press(Qt::Key_Tab);
            next = indexOfFocus();
            if (next <= index) {
                EXPECT_EQ(next, first) << id;
                break;
            }
            press(Qt::Key_Backtab);
            EXPECT_EQ(indexOfFocus(), index) << id;
            press(Qt::Key_Tab);
        }
        EXPECT_EQ(spoken[static_cast<std::size_t>(first)].object->parent()->metaObject()->className(),
                  std::string("velmora::Sidebar"));
    };
    for (const auto& [section, id] : rawValuesOf<Section>) {
        store().setSection(section);
        settle();
        expectSameOrder(id);
    }
    showPatterns();
    expectSameOrder("patterns");
}

TEST_F(AccessibilityTest, ScreenReadersReadFromTopToBottom) {
    std::vector<Spoken> spoken;
    read(QAccessible::queryAccessibleInterface(&window()), spoken);
    auto at = spoken.begin();
    for (const char* name :
         {"Minimise", "Velmora", "Overview", "Docked", "Your grounds are watched.", "3 cameras are", "Disarm",
          "Map of", "Recent activity", "All activity", "Wind, "}) {
        at = std::find_if(at, spoken.end(), [&](const Spoken& one) { return one.name.startsWith(name); });
        ASSERT_NE(at, spoken.end()) << name;
    }
}

/// In a group of choices, Tab reaches only one.
TEST_F(AccessibilityTest, TabReachesEverythingInEverySection) {
    const auto expectReached = [&](std::string_view id) {
        window().setFocus();
        std::set<QWidget*> visited;
        for (int i = 0; i < 60; ++i) {
            press(Qt::Key_Tab);
            visited.insert(QApplication::focusWidget());
        }
        for (QWidget* widget : window().findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool reachable = widget->isVisible() && widget->focusPolicy() & Qt::TabFocus;
            EXPECT_TRUE(!reachable || visited.contains(widget) || (button && button->autoExclusive()))
                << id << ": " << widget->accessibleName().toStdString();
        }
    };
    for (const auto& [section, id] : rawValuesOf<Section>) {
        store().setSection(section);
        expectReached(id);
    }
    showPatterns();
    expectReached("patterns");
}

} // namespace

} // namespace velmora
