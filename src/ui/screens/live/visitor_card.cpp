#include "ui/screens/live/visitor_card.h"

#include "ui/blocks/art_image.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/visitor_words.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace velmora {

VisitorCard::VisitorCard(QWidget* parent) : QWidget(parent) {
    picture_ = new ArtImage({}, ArtImage::Mode::fill, Measure::thumbnailRadius, this);
    picture_->setFixedSize(Measure::visitorPicture);
    label_ = new Text({}, Type::rowTitleStrong, SB::ink, this);
    camera_ = new Text({}, Type::label2, SB::muted, this);
    certainty_ = new Text({}, Type::label2, SB::muted, this);
    inside_ = new Text(tr("inside your boundary"), Type::label2, SB::muted, this);
    outside_ = new Text(tr("outside your boundary"), Type::label2Strong, SB::ink, this);
    picture_->setCrop({.share = Measure::visitorCrop});

    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    for (Text* text : {label_, camera_, certainty_, inside_, outside_})
        words->addWidget(text);
    auto* row = bareLayout<QHBoxLayout>(this, Measure::visitorGap);
    row->addWidget(picture_, 0, Qt::AlignVCenter);
    row->addLayout(words, 1);
}

void VisitorCard::setVisitor(const Visitor& visitor, const Site& site) {
    picture_->setName(visitorPicture(visitor, site));
    label_->setText(personName(visitor.label));
    camera_->setText(visitorCamera(visitor, site));
    picture_->setDescription(tr("Picture of %1").arg(camera_->text()));
    certainty_->setText(certaintyText(visitor) + QStringLiteral(" ·"));
    inside_->setVisible(visitor.inside);
    outside_->setVisible(!visitor.inside);
}

void VisitorCard::setDimmed(bool dimmed) {
    picture_->setOpacity(dimmed ? Measure::staleOpacity : 1);
    label_->setColor(dimmed ? SB::muted : SB::ink);
}

} // namespace velmora
