#include "ui/screens/screen.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"

#include <QVBoxLayout>

namespace velmora {

Screen::Screen(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    connect(&due_, &UiTimer::timeout, this, &Screen::refreshIfVisible);
    connect(&everyMinute_, &UiTimer::timeout, this, &Screen::refreshIfVisible);
}

void Screen::refreshOn(std::initializer_list<Change> changes) {
    for (const Change change : changes)
        connect(&store_, change, this, &Screen::refreshIfVisible);
}

void Screen::followMotion() {
    connect(&store_, &AppStore::moved, this, &Screen::showMotion);
}

void Screen::setPage(Page* page) {
    page_ = page;
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(page_);
}

/// In a minimised window isVisible() stays true.
bool Screen::canBeSeen() const {
    return isVisible() && !window()->isMinimized();
}

void Screen::refreshIfVisible() {
    if (canBeSeen())
        refreshNow();
}

void Screen::refreshNow() {
    due_.stop();
    refreshedAt_ = store_.now();
    refresh();
}

/// Numbers that change twenty times a second cannot be read, and cost more than the map.
void Screen::showMotion() {
    if (!canBeSeen())
        return;
    const Seconds age = store_.now() - refreshedAt_;
    if (age < Seconds::zero() || age >= due_.interval()) {
        refreshNow();
        return;
    }
    follow();
    due_.setActive(true);
}

/// A restored window can show its widgets before it counts as restored.
void Screen::showEvent(QShowEvent*) {
    refreshNow();
    everyMinute_.start();
}

void Screen::hideEvent(QHideEvent*) {
    everyMinute_.stop();
    due_.stop();
}

} // namespace velmora
