#include "ui/blocks/art_image.h"

#include "ui/look/art.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double faintOpacity = 0.4;

} // namespace

ArtImage::ArtImage(const QString& name, Mode mode, double radius, QWidget* parent)
    : QWidget(parent), name_(name), mode_(mode), radius_(radius) {}

void ArtImage::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    loadedFor_ = {-1, 0};
    update();
}

void ArtImage::setCrop(const Crop& crop) {
    if (crop == crop_)
        return;
    crop_ = crop;
    loadedFor_ = {-1, 0};
    update();
}

int ArtImage::heightForWidth(int width) const {
    return ratio_ > 0 ? static_cast<int>(std::lround(width / ratio_)) : -1;
}

void ArtImage::setSquareBottom(bool square) {
    squareBottom_ = square;
    update();
}

void ArtImage::setFaint(bool faint) {
    if (faint == faint_)
        return;
    faint_ = faint;
    update();
}

void ArtImage::load() {
    const QSize pixels = size() * devicePixelRatioF();
    if (pixels == loadedFor_)
        return;
    loadedFor_ = pixels;
    picture_ = {};
    const QImage image = Art::find(name_);
    if (image.isNull() || pixels.isEmpty())
        return;
    focus_ = Art::focusOf(name_);
    const QSizeF shown = mode_ == Mode::fill ? sizeToFill(image.size())
                                             : QSizeF(image.size()).scaled(size(), Qt::KeepAspectRatio);
    picture_ = QPixmap::fromImage(image.scaled((shown * devicePixelRatioF()).toSize(), Qt::IgnoreAspectRatio,
                                               Qt::SmoothTransformation));
    picture_.setDevicePixelRatio(devicePixelRatioF());
}

/// Large enough to cover the widget, to show no more than the share, and to bring the focus to its point
/// without a gap at the right.
QSizeF ArtImage::sizeToFill(QSizeF picture) const {
    const double covering = std::max(width() / picture.width(), height() / picture.height());
    const double cropping = width() / (crop_.share * picture.width());
    const double reaching = (1 - crop_.at.x()) * width() / ((1 - focus_.x()) * picture.width());
    return picture * std::max({covering, cropping, crop_.share < 1 ? reaching : 0});
}

QPointF ArtImage::cornerOf(QSizeF shown) const {
    if (mode_ == Mode::fit || crop_.share == 1)
        return {(width() - shown.width()) / 2, (height() - shown.height()) / 2};
    const auto along = [](double length, double focus, double room, double at) {
        return std::clamp(at * room - focus * length, std::min(room - length, 0.0), 0.0);
    };
    return {along(shown.width(), focus_.x(), width(), crop_.at.x()),
            along(shown.height(), focus_.y(), height(), crop_.at.y())};
}

void ArtImage::paintEvent(QPaintEvent*) {
    load();
    QPainter painter(this);
    const double below = squareBottom_ ? radius_ : 0; // moves the bottom corners outside the widget
    if (picture_.isNull()) {
        fillRounded(painter, QRectF(rect()).adjusted(0, 0, 0, below), radius_, SB::panel);
        paintIcon(painter, QRectF(rect()).center(), Measure::missingPictureIcon, Icon::cameras, SB::rule);
        return;
    }
    if (faint_) {
        fillRounded(painter, rect(), radius_, SB::navy);
        painter.setOpacity(faintOpacity);
    }
    const QSizeF shown = picture_.deviceIndependentSize();
    const QPointF corner = cornerOf(shown);
    QBrush brush(picture_);
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y()));
    fillRounded(painter, (QRectF(corner, shown) & QRectF(rect())).adjusted(0, 0, 0, below), radius_, brush);
}

} // namespace velmora
