#include "ui/screens/approval_picture.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

/// The camera's name and the time of the detection.
class ApprovalPicture::Chip : public QWidget {
public:
    explicit Chip(QWidget* parent) : QWidget(parent) {
        declareRole(this, QAccessible::StaticText);
        move(Measure::chipInset, Measure::chipInset);
    }

    void setText(const QString& text) {
        setAccessibleName(text);
        const double words = textWidth(text, Type::caption);
        resize(static_cast<int>(std::ceil(textX + words)) + Measure::chipPadding, Measure::chipHeight);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(SB::faded(SB::navy, 0.72));
        painter.drawRoundedRect(rect(), Measure::thumbnailRadius, Measure::thumbnailRadius);
        paintStatusDot(painter, {Measure::chipPadding + Measure::statusDotInRow / 2, height() / 2.0},
                       {.color = SB::dTeal, .diameter = Measure::statusDotInRow});
        drawText(painter, QRectF(textX, 0, width() - textX, height()), accessibleName(),
                 Type::caption.withTabularDigits(), SB::dTitle, Qt::AlignVCenter);
    }

private:
    static constexpr double textX = Measure::chipPadding + Measure::statusDotInRow + Measure::gap8;
};

/// The time that is left, shrinking to the left.
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
      chip_(new Chip(this)),
      bar_(new Bar(this)) {
    setFixedSize(Measure::approvalCard, Measure::approvalPicture + Measure::approvalBar);
    picture_->setGeometry(0, 0, width(), Measure::approvalPicture);
    picture_->setSquareBottom(true);
    bar_->setGeometry(0, Measure::approvalPicture, width(), Measure::approvalBar);
}

void ApprovalPicture::setAlert(const QString& picture, const QString& chip) {
    picture_->setName(picture);
    chip_->setText(chip);
}

void ApprovalPicture::setTimeLeft(double share) {
    bar_->setShare(share);
}

} // namespace velmora
