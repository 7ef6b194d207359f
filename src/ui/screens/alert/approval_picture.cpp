#include "ui/screens/alert/approval_picture.h"

#include "ui/blocks/art_image.h"
#include "ui/blocks/chip.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/layouts.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/alert/alert_inset.h"

#include <QPainter>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr double staleBar = 0.75, staleDot = 0.8; // opacities

} // namespace

/// The countdown bar; its right end moves left.
class ApprovalPicture::Bar : public QWidget {
public:
    enum class Tone { normal, urgent, stale };

    using QWidget::QWidget;

    void setShare(double share, Tone tone) {
        if (share == share_ && tone == tone_)
            return;
        share_ = share;
        tone_ = tone;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), SB::rule2);
        painter.fillRect(QRectF(0, 0, width() * share_, height()), brush());
    }

private:
    QBrush brush() const {
        switch (tone_) {
        case Tone::urgent:
            return SB::alert;
        case Tone::stale:
            return SB::faded(SB::muted, staleBar);
        case Tone::normal:
            break;
        }
        return SB::gradientLight(0, width());
    }

    double share_ = 1;
    Tone tone_ = Tone::normal;
};

ApprovalPicture::ApprovalPicture(QWidget* parent)
    : QAbstractButton(parent),
      picture_(new ArtImage({}, ArtImage::Mode::fill, Measure::overlayRadius, this)),
      chip_(new Chip(picture_)),
      inset_(new AlertInset(picture_)),
      bar_(new Bar(this)) {
    setFocusPolicy(Qt::StrongFocus);
    picture_->setSquareBottom(true);
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    bar_->setFixedHeight(Measure::approvalBar);
    constexpr int edge = Measure::insetEdge - AlertInset::margin;
    constexpr int beyond = Measure::chipInset - edge;
    auto* caption = new QVBoxLayout;
    caption->setContentsMargins(beyond, beyond, 0, 0);
    caption->addWidget(chip_);
    auto* onPicture = new QGridLayout(picture_);
    onPicture->setContentsMargins(edge, edge, edge, edge);
    onPicture->addLayout(caption, 0, 0, Qt::AlignTop | Qt::AlignLeft);
    onPicture->addWidget(inset_, 0, 0, Qt::AlignBottom | Qt::AlignRight);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(picture_);
    column->addWidget(bar_);
    setPictureSize({Measure::approvalCard, Measure::approvalPicture}, 0);
}

void ApprovalPicture::setState(const LiveState& state, const Settings& settings, Freshness freshness) {
    stale_ = freshness != Freshness::live;
    const CameraInfo* camera = state.visitor ? findCamera(state.site, state.visitor->cameraId) : nullptr;
    const QString location = camera ? isolated(shownText(camera->name)) : tr("Grounds");
    const QString time = state.missionStart ? timeOfDay(*state.missionStart) : QString();
    picture_->setName(camera ? toQString(camera->snapshot) : QString());
    chip_->setText(time.isEmpty() ? location : location + QStringLiteral(" · ") + time);
    chip_->setDot(stale_ ? SB::faded(SB::dLabel, staleDot) : SB::dTeal);
    inset_->setVisible(state.visitor.has_value());
    if (state.visitor)
        inset_->setState(state, settings, freshness);
}

void ApprovalPicture::setTimeLeft(const std::optional<TimeLeft>& left) {
    const Bar::Tone live = left && left->isShort() ? Bar::Tone::urgent : Bar::Tone::normal;
    bar_->setShare(left ? left->share : 0, stale_ ? Bar::Tone::stale : live);
}

void ApprovalPicture::setPictureSize(QSize size, double enlarged) {
    setAccessibleName(enlarged > 0 ? tr("Show the picture smaller") : tr("Enlarge the picture"));
    picture_->setFixedHeight(size.height());
    picture_->setCrop({std::lerp(Measure::approvalCrop, 1.0, enlarged), Measure::approvalFocus});
    const QSizeF map =
        QSizeF(Measure::insetMap) * (1 - enlarged) + QSizeF(Measure::insetMapEnlarged) * enlarged;
    inset_->setMapSize(map.toSize());
}

/// The focus ring lies inside the picture: around it, veil and countdown would hide it.
void ApprovalPicture::resizeEvent(QResizeEvent*) {
    constexpr int inside = Measure::gap8;
    FocusRing::setRingStyle(
        this, {.radius = Measure::overlayRadius - inside,
               .dark = true,
               .edged = true,
               .part = rect().adjusted(inside, inside, -inside, -inside - Measure::approvalBar)});
}

QSize ApprovalPicture::sizeHint() const {
    return layout()->sizeHint();
}

} // namespace velmora
