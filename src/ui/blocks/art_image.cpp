#include "ui/blocks/art_image.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/art.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double faintOpacity = 0.4;

/// Of a picture in the format ARGB32.
QRect withoutTransparentEdges(const QImage& pixels) {
    QRect content;
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        const auto isVisible = [](QRgb pixel) { return qAlpha(pixel) > 0; };
        const QRgb* end = row + pixels.width();
        const QRgb* first = std::find_if(row, end, isVisible);
        if (first == end)
            continue;
        const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(row), isVisible);
        content |= QRect(QPoint(static_cast<int>(first - row), y),
                         QPoint(static_cast<int>(last.base() - row) - 1, y));
    }
    return content;
}

/// A part of a picture in the format ARGB32, without a copy: valid while the picture is.
QImage partOf(const QImage& pixels, const QRect& part) {
    const auto* first = reinterpret_cast<const QRgb*>(pixels.constScanLine(part.y())) + part.x();
    return {reinterpret_cast<const uchar*>(first), part.width(), part.height(), pixels.bytesPerLine(),
            pixels.format()};
}

} // namespace

ArtImage::ArtImage(const QString& name, Mode mode, double radius, QWidget* parent)
    : QWidget(parent), name_(name), mode_(mode), radius_(radius) {
    declareRole(this, QAccessible::Graphic);
}

void ArtImage::setDescription(const QString& description) {
    if (description != accessibleName())
        setAccessibleName(description);
}

void ArtImage::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    loadedFor_ = {-1, 0};
    update();
}

void ArtImage::setRadius(double radius) {
    if (radius == radius_)
        return;
    radius_ = radius;
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

void ArtImage::setOpacity(double opacity) {
    if (opacity == opacity_)
        return;
    opacity_ = opacity;
    update();
}

void ArtImage::load() {
    const QSize pixels = size() * devicePixelRatioF();
    if (pixels == loadedFor_)
        return;
    loadedFor_ = pixels;
    picture_ = {};
    QImage whole = Art::find(name_);
    if (mode_ == Mode::trimmed)
        whole = whole.convertToFormat(QImage::Format_ARGB32);
    const QImage image = mode_ == Mode::trimmed ? partOf(whole, withoutTransparentEdges(whole)) : whole;
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
    if (!focus_ || crop_.share == 1)
        return picture * covering;
    const double cropping = width() / (crop_.share * picture.width());
    const double reaching = (1 - crop_.at.x()) * width() / ((1 - focus_->x()) * picture.width());
    return picture * std::max({covering, cropping, reaching});
}

QPointF ArtImage::cornerOf(QSizeF shown) const {
    if (mode_ != Mode::fill || !focus_ || crop_.share == 1)
        return {(width() - shown.width()) / 2, (height() - shown.height()) / 2};
    const auto along = [](double length, double focus, double room, double at) {
        return std::clamp(at * room - focus * length, std::min(room - length, 0.0), 0.0);
    };
    return {along(shown.width(), focus_->x(), width(), crop_.at.x()),
            along(shown.height(), focus_->y(), height(), crop_.at.y())};
}

void ArtImage::paintEvent(QPaintEvent*) {
    load();
    QPainter painter(this);
    painter.setOpacity(opacity_);
    const double below = squareBottom_ ? radius_ : 0; // moves the bottom corners outside the widget
    if (picture_.isNull()) {
        fillRounded(painter, QRectF(rect()).adjusted(0, 0, 0, below), radius_, SB::panel);
        paintIcon(painter, QRectF(rect()).center(), Measure::missingPictureIcon, Icon::cameras, SB::rule);
        return;
    }
    if (faint_) {
        fillRounded(painter, rect(), radius_, SB::navy);
        painter.setOpacity(opacity_ * faintOpacity);
    }
    const QSizeF shown = picture_.deviceIndependentSize();
    const QPointF corner = cornerOf(shown);
    const QRectF area = (QRectF(corner, shown) & QRectF(rect())).adjusted(0, 0, 0, below);
    painter.translate(corner); // a transform of the brush would count in device pixels
    fillRounded(painter, area.translated(-corner), radius_, QBrush(picture_));
}

} // namespace velmora
