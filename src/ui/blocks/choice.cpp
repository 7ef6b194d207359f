#include "ui/blocks/choice.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QHBoxLayout>

#include <cmath>

namespace velmora {

RadioChoice::RadioChoice(const QString& text, QWidget* parent) : QRadioButton(text, parent) {
    setAccessibleName(text);
    setFixedHeight(Measure::radioRow);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    FocusRing::setRingStyle(this, {Measure::thumbnailRadius});
}

QSize RadioChoice::sizeHint() const {
    const double width = Measure::radioCircle + Measure::radioGap + textWidth(text(), Type::compactRow);
    return {static_cast<int>(std::ceil(width)) + 1, Measure::radioRow};
}

bool RadioChoice::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void RadioChoice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPointF center(Measure::radioCircle / 2.0, height() / 2.0);
    if (isChecked())
        fillDisc(painter, center, Measure::radioCircle, SB::page, SB::teal, Measure::radioRing);
    else
        fillDisc(painter, center, Measure::radioCircle, SB::page, underMouse() ? SB::muted : SB::edge);
    const QRectF words(Measure::radioCircle + Measure::radioGap, 0, width(), height());
    drawText(painter, words, text(), Type::compactRow, SB::ink, Qt::AlignVCenter);
}

/// One option of a segmented choice.
class SegmentedChoice::Segment : public QAbstractButton {
public:
    Segment(const QString& text, QWidget* parent) : QAbstractButton(parent) {
        setText(text);
        setAccessibleName(text);
        setCheckable(true);
        setAutoExclusive(true);
        setFocusPolicy(Qt::StrongFocus);
        FocusRing::setRingStyle(this, {.radius = Measure::buttonRadius, .roundParent = true});
    }

    QSize sizeHint() const override {
        const double words = textWidth(text(), Type::segmentChosen);
        return {static_cast<int>(std::ceil(words)) + 2 * Measure::segmentPadding,
                Measure::segmentedHeight - 2 * Measure::segmentInset};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (isChecked())
            fillRounded(painter, rect(), Measure::thumbnailRadius, SB::page, SB::edge);
        drawText(painter, rect(), text(), isChecked() ? Type::segmentChosen : Type::segment,
                 isChecked() || underMouse() ? SB::ink : SB::muted, Qt::AlignCenter);
    }
};

SegmentedChoice::SegmentedChoice(const QString& name, const QStringList& options, bool wide, QWidget* parent)
    : QWidget(parent) {
    declareRole(this, QAccessible::Grouping);
    setAccessibleName(name);
    setFixedHeight(Measure::segmentedHeight);
    setSizePolicy(wide ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::segmentInset, Measure::segmentInset, Measure::segmentInset,
                            Measure::segmentInset);
    row->setSpacing(0);
    for (const QString& option : options) {
        const int index = static_cast<int>(segments_.size());
        auto* segment = new Segment(option, this);
        row->addWidget(segment, wide ? 1 : 0);
        connect(segment, &QAbstractButton::toggled, this, [this, index](bool on) {
            if (!on || index == currentIndex_)
                return;
            currentIndex_ = index;
            emit activated(index);
        });
        segments_.push_back(segment);
    }
    setCurrentIndex(0);
}

void SegmentedChoice::setCurrentIndex(int index) {
    currentIndex_ = index;
    segments_[static_cast<std::size_t>(index)]->setChecked(true);
}

void SegmentedChoice::focusChosen(Qt::FocusReason reason) {
    segments_[static_cast<std::size_t>(currentIndex_)]->setFocus(reason);
}

void SegmentedChoice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::buttonRadius, SB::panel, SB::edge);
}

} // namespace velmora
