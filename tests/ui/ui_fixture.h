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

/// The window with a store whose clock only the test advances. Widgets are found by their accessible names.
class UiTest : public StoreTest {
protected:
    void SetUp() override {
        Settings settings = store().settings();
        settings.onboarded = true;
        store().setSettings(settings);
        store().setShowWelcome(false);
    }

    /// Returns the window; the first call opens it at its default size.
    MainWindow& window() {
        if (!window_) {
            window_ = std::make_unique<MainWindow>(store());
            window_->buildSections();
            window_->show();
            settle();
        }
        return *window_;
    }

    /// Processes pending events.
    static void settle() { QApplication::processEvents(); }

    /// Advances the user interface's clock until the condition holds; false after five seconds of that clock.
    template <class Condition>
    bool waitUntil(Condition condition) {
        const auto end = clock.now() + std::chrono::seconds(5);
        while (!condition() && clock.now() < end)
            clock.advance(std::chrono::milliseconds(20));
        return condition();
    }

    /// Returns the visible widget with this accessible name inside `inside`, or null.
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
    /// Clicks at the position of the widget; a widget that covers it receives the click.
    void clickThrough(const QString& name) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        mouse(QEvent::MouseButtonPress, *widget);
        mouse(QEvent::MouseButtonRelease, *widget);
        settle();
    }
    /// Sends an event of the left button to the window, at the centre of the widget or just outside its
    /// corner. A widget that covers it receives the event.
    void mouse(QEvent::Type type, QWidget& widget, bool outside = false) {
        const QPoint at = outside ? QPoint(-9, -9) : widget.rect().center();
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, widget.mapTo(widget.window(), at), widget.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget.window()->windowHandle(), &event);
    }
    /// Presses and releases a key in the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        clock.advance(std::chrono::milliseconds(1)); // otherwise the press counts as a repeat
        QTest::keyClick(window().windowHandle(), key, modifiers);
        settle();
    }
    /// Triggers the press action of a widget, as a screen reader does. A button clicks 100 ms later.
    void pressByAccessibility(const QString& name) {
        QWidget* widget = find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QAccessible::queryAccessibleInterface(widget)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !button->isDown(); }));
        settle();
    }
    /// Waits until the guard accepts answers to the alert.
    void outwaitGuard() {
        const auto& guard = *window().findChild<AnswerGuard*>();
        EXPECT_TRUE(waitUntil([&] { return guard.isOpen(); }));
        settle();
    }

    /// Starts a visit, which opens the approval card.
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
