#pragma once

#include "store/store_fixture.h"
#include "ui/guard/answer_guard.h"
#include "ui/manual_clock.h"
#include "ui/window/main_window.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace velmora {

/// The window over a store whose time only the test moves. Widgets are found by what assistive technology
/// calls them.
class UiTest : public StoreTest {
protected:
    void SetUp() override {
        Settings settings = store().settings();
        settings.onboarded = true;
        store().setSettings(settings);
        store().setShowWelcome(false);
    }

    /// Opens the window at its default size.
    MainWindow& window() {
        if (!window_) {
            window_ = std::make_unique<MainWindow>(store());
            window_->show();
            settle();
        }
        return *window_;
    }

    /// Lets everything that is due happen.
    static void settle() { QApplication::processEvents(); }

    /// Moves the user interface's clock until the condition holds; false when it does not within five seconds
    /// of that clock.
    template <class Condition>
    bool waitUntil(Condition condition) {
        const auto end = clock.now() + std::chrono::seconds(5);
        while (!condition() && clock.now() < end)
            clock.advance(std::chrono::milliseconds(20));
        return condition();
    }

    /// The visible widget with this accessible name inside a widget; null when there is none.
    template <class Widget = QWidget>
    static Widget* find(QWidget& inside, const QString& name) {
        for (Widget* widget : inside.findChildren<Widget*>())
            if (widget->isVisible() && widget->accessibleName() == name)
                return widget;
        return nullptr;
    }
    template <class Widget = QWidget>
    Widget* find(const QString& name) {
        return find<Widget>(window(), name);
    }
    bool shows(const QString& name) { return find(name) != nullptr; }

    void click(const QString& name) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QTest::mouseClick(widget, Qt::LeftButton);
        settle();
    }
    /// Clicks where the widget is seen, so that whatever lies over it takes the click.
    void clickThrough(const QString& name) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        mouse(QEvent::MouseButtonPress, *widget);
        mouse(QEvent::MouseButtonRelease, *widget);
        settle();
    }
    /// Lets the left button do this in the middle of the widget, or beside its corner, through the window:
    /// what lies over the widget takes it.
    void mouse(QEvent::Type type, QWidget& widget, bool beside = false) {
        const QPoint at = beside ? QPoint(-9, -9) : widget.rect().center();
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, widget.mapTo(widget.window(), at), widget.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget.window()->windowHandle(), &event);
    }
    /// Presses and lets go of a key, through the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        clock.advance(std::chrono::milliseconds(1)); // a press at the very moment of a release is a repeat
        QTest::keyClick(window().windowHandle(), key, modifiers);
        settle();
    }
    /// Presses a widget as a screen reader does. A button acts on it a tenth of a second later.
    void pressByAccessibility(const QString& name) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QAccessible::queryAccessibleInterface(widget)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !button->isDown(); }));
        settle();
    }
    /// Waits until the card, or what else answers an alert, takes a press.
    void outwaitGuard() {
        const auto& guard = *window().findChild<AnswerGuard*>();
        EXPECT_TRUE(waitUntil([&] { return guard.isOpen(); }));
        settle();
    }

    /// Someone appears; the approval card opens.
    void visit(Scenario scenario) {
        store().simulate(scenario);
        tickAfter(0.05);
        settle();
    }
    void approve() {
        respond(Command::approve);
        tickAfter(0.05);
        settle();
    }
    void fly(double seconds) {
        pass(seconds);
        settle();
    }

    ManualClock clock;

private:
    std::unique_ptr<MainWindow> window_;
};

} // namespace velmora
