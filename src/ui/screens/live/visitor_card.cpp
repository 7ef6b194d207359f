#include "ui/screens/live/visitor_card.h"

#include "ui/blocks/art_image.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

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
    const CameraInfo* camera = findCamera(site, visitor.cameraId);
    picture_->setName(camera ? toQString(camera->snapshot) : QString());
    label_->setText(visitor.label.empty() ? tr("Unknown person") : toQString(visitor.label));
    camera_->setText(camera ? tr("%1 camera").arg(toQString(camera->name))
                            : cameraName(site, visitor.cameraId));
    certainty_->setText(tr("%1% sure it's no one you know ·").arg(percent(visitor.confidence)));
    inside_->setVisible(visitor.inside);
    outside_->setVisible(!visitor.inside);
}

void VisitorCard::setDimmed(bool dimmed) {
    label_->setColor(dimmed ? SB::muted : SB::ink);
}

} // namespace velmora
