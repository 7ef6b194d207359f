#include "ui/screens/screen.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"

#include <QVBoxLayout>

namespace velmora {

Screen::Screen(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {}

void Screen::refreshOn(std::initializer_list<Change> changes) {
    for (const Change change : changes)
        connect(&store_, change, this, &Screen::refreshIfVisible);
}

void Screen::setPage(Page* page) {
    page_ = page;
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(page_);
}

/// In a minimised window isVisible() stays true.
void Screen::refreshIfVisible() {
    if (isVisible() && !window()->isMinimized())
        refresh();
}

void Screen::showEvent(QShowEvent*) {
    refreshIfVisible();
}

} // namespace velmora
