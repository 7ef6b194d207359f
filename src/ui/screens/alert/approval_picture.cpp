#include "ui/screens/alert/approval_picture.h"

#include "ui/blocks/art_image.h"
#include "ui/blocks/chip.h"
#include "ui/blocks/layouts.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QPainter>
#include <QVBoxLayout>

namespace velmora {

/// The countdown bar; its right end moves left.
class ApprovalPicture::Bar : public QWidget {
public:
    using QWidget::QWidget;

    void setShare(double share) {
        if (share == share_)
            return;
        share_ = share;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), SB::rule2);
        painter.fillRect(QRectF(0, 0, width() * share_, height()), SB::gradientLight(0, width()));
    }

private:
    double share_ = 1;
};

ApprovalPicture::ApprovalPicture(QWidget* parent)
    : QWidget(parent),
      picture_(new ArtImage({}, ArtImage::Mode::fill, Measure::overlayRadius, this)),
      chip_(new Chip(picture_)),
      bar_(new Bar(this)) {
    picture_->setFixedHeight(Measure::approvalPicture);
    picture_->setSquareBottom(true);
    bar_->setFixedHeight(Measure::approvalBar);
    auto* onPicture = new QVBoxLayout(picture_);
    onPicture->setContentsMargins(Measure::chipInset, Measure::chipInset, Measure::chipInset,
                                  Measure::chipInset);
    onPicture->addWidget(chip_, 0, Qt::AlignTop | Qt::AlignLeft);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(picture_);
    column->addWidget(bar_);
}

void ApprovalPicture::setAlert(const QString& picture, const QString& chip) {
    picture_->setName(picture);
    chip_->setText(chip);
}

void ApprovalPicture::setTimeLeft(double share) {
    bar_->setShare(share);
}

} // namespace velmora
