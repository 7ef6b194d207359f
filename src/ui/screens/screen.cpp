#include "ui/screens/screen.h"

#include "ui/blocks/page.h"

namespace velmora {

Screen::Screen(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {}

void Screen::refreshOn(std::initializer_list<Change> changes) {
    for (const Change change : changes)
        connect(&store_, change, this, &Screen::refreshIfSeen);
}

void Screen::setPage(Page* page) {
    page_ = page;
    page_->setParent(this);
}

/// The widgets of a minimised window stay visible.
void Screen::refreshIfSeen() {
    if (isVisible() && !window()->isMinimized())
        refresh();
}

void Screen::showEvent(QShowEvent*) {
    refreshIfSeen();
}

void Screen::resizeEvent(QResizeEvent*) {
    if (page_)
        page_->setGeometry(rect());
}

} // namespace velmora
