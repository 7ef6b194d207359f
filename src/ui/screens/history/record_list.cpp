#include "ui/screens/history/record_list.h"

#include "ui/blocks/focus_ring.h"
#include "ui/blocks/overlay_scroll_bar.h"
#include "ui/look/measures.h"
#include "ui/screens/history/record_delegate.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace velmora {

RecordList::RecordList(AppStore& store, QWidget* parent)
    : QListView(parent), store_(store), model_(new HistoryModel(store, this)) {
    setModel(model_);
    setItemDelegate(new RecordDelegate(*model_, this));
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Visits"));
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAutoScroll(false); // showSelection() scrolls
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    FocusRing::setRingStyle(this, {Measure::buttonRadius});
    auto* overlay = new QHBoxLayout(this);
    overlay->setContentsMargins(0, 0, Measure::scrollBarEdge, 0);
    overlay->addWidget(new OverlayScrollBar(verticalScrollBar(), this), 0, Qt::AlignRight);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& chosen) { // assistive technology selects only
                if (!chosen.isEmpty())
                    setCurrentIndex(chosen.indexes().front());
            });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
        if (const auto key = model_->keyAt(index); key && key != store_.selectedRecord())
            emit moved(*key);
    });
    connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, &RecordList::saveScrollPosition);
    connect(model_, &QAbstractItemModel::modelReset, this, [this] {
        showSelection();
        restoreScrollPosition();
    });
}

void RecordList::showSelection() {
    const auto& key = store_.selectedRecord();
    const QModelIndex index = key ? model_->indexOf(*key) : QModelIndex();
    setCurrentIndex(index);
    if (isVisible() && std::exchange(highlighted_, key) != key)
        reveal(index);
}

void RecordList::revealSelection() {
    scrollToTop();
    reveal(currentIndex());
}

/// Also reveals the day's caption when scrolling to the first record of a day.
void RecordList::reveal(const QModelIndex& index) {
    const QModelIndex above = index.siblingAtRow(index.row() - 1);
    if (above.isValid() && !model_->keyAt(above))
        scrollTo(above);
    scrollTo(index);
}

void RecordList::saveScrollPosition() {
    scrollPosition_.reset();
    if (verticalScrollBar()->value() == 0)
        return;
    QModelIndex first = indexAt({0, 0});
    if (first.isValid() && !model_->keyAt(first))
        first = first.siblingAtRow(first.row() + 1);
    if (const auto key = model_->keyAt(first))
        scrollPosition_ = {*key, visualRect(first).top()};
}

void RecordList::restoreScrollPosition() {
    const QModelIndex index = scrollPosition_ ? model_->indexOf(scrollPosition_->record) : QModelIndex();
    if (!index.isValid())
        return;
    doItemsLayout();
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(bar.value() + visualRect(index).top() - scrollPosition_->top);
}

void RecordList::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(event->key()))
        QListView::keyPressEvent(event);
}

bool RecordList::handleKey(int key) {
    const int last = model_->rowCount() - 1;
    switch (key) {
    case Qt::Key_Space:
        emit playRequested();
        return true;
    case Qt::Key_Delete:
        if (const auto record = model_->keyAt(currentIndex()))
            emit deleteRequested(*record);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit opened();
        return true;
    case Qt::Key_Home: // row 0 is a day's caption
        setCurrentIndex(model_->index(std::min(1, last)));
        scrollToTop();
        return true;
    case Qt::Key_End:
        setCurrentIndex(model_->index(last));
        scrollToBottom();
        return true;
    case Qt::Key_Escape:
        emit escaped();
        return true;
    default:
        return false;
    }
}

} // namespace velmora
