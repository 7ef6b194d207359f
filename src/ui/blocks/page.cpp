#include "ui/blocks/page.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QHBoxLayout>

namespace velmora {

Page::Page(const Parts& parts, QWidget* parent)
    : QWidget(parent),
      headline_(new Headline(parts.headline, Type::headline, false, this)),
      width_(parts.width) {
    auto* frame = new QWidget(this);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(Measure::pageMargins);
    column->setSpacing(0);
    heading_ = buildHeading(parts);
    column->addWidget(heading_);
    column->addWidget(parts.content, parts.fills ? 1 : 0);
    if (!parts.fills)
        column->addStretch(1);
    setContentGap(parts.contentGap);
    area_ = new ScrollArea(this);
    area_->setWidget(frame);
}

QWidget* Page::buildHeading(const Parts& parts) {
    auto* heading = new QWidget(this);
    auto* row = bareLayout<QHBoxLayout>(heading, Measure::gap24);
    auto* words = new QVBoxLayout;
    words->setSpacing(Measure::gap4);
    words->addWidget(new Eyebrow(parts.eyebrow, false, heading));
    words->addWidget(headline_);
    if (parts.lede) {
        lede_ = new Text(*parts.lede, Type::lede, SB::body, heading);
        lede_->setWrapWidth(parts.ledeWidth > 0 ? parts.ledeWidth : Measure::ledeWidth);
        words->addWidget(lede_);
    }
    row->addLayout(words, 1);
    if (parts.trailing) {
        auto* right = new QVBoxLayout;
        right->addSpacing(Measure::gap12);
        right->addWidget(parts.trailing);
        right->addStretch(1);
        row->addLayout(right);
    }
    return heading;
}

/// Without a layout of its own the page limits its content before the content is laid out.
void Page::resizeEvent(QResizeEvent*) {
    const int width = width_ > 0 ? width_ : Measure::pageWidthIn(window()->width());
    area_->widget()->setMaximumWidth(width + Measure::pageMargins.left() + Measure::pageMargins.right());
    area_->setGeometry(rect());
}

void Page::scrollToTop() {
    area_->verticalScrollBar()->setValue(0);
}

void Page::setContentGap(int gap) {
    heading_->layout()->setContentsMargins(0, 0, 0, gap);
}

void Page::setHeadline(const Sentence& headline) {
    headline_->setSentence(headline);
}

void Page::setLede(const QString& lede) {
    lede_->setText(lede);
}

} // namespace velmora
