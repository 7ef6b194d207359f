#pragma once

#include "store/store_fixture.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QWidget>

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
            window_ = std::make_unique<MainWindow>(store(), Autostart(home.path() + "/autostart"));
            window_->show();
            settle();
        }
        return *window_;
    }

    /// Lets everything that is due happen.
    static void settle() { QApplication::processEvents(); }

    /// Waits until the condition holds; false when it has not after five seconds.
    template <class Condition>
    static bool waitUntil(Condition condition) {
        QDeadlineTimer deadline(5000);
        while (!condition() && !deadline.hasExpired())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
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
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), key, modifiers);
        settle();
    }

    /// Someone appears; the approval card opens.
    void visit(Scenario scenario) {
        store().simulate(scenario);
        tickAfter(0.05);
        settle();
    }
    void approve() {
        store().send(Command::approve);
        tickAfter(0.05);
        settle();
    }
    void fly(double seconds) {
        pass(seconds);
        settle();
    }

private:
    std::unique_ptr<MainWindow> window_;
};

} // namespace velmora
