#include "ui/report/report_pictures.h"

#include "ui/look/art.h"
#include "ui/look/tokens.h"
#include "ui/map/map_painting.h"

#include <QPainter>

namespace velmora {

namespace {

constexpr int largest = 4096;      // pixels
constexpr double groundsScale = 4; // pixels of the picture for one of the map: 384 dpi

} // namespace

const QImage& ReportPictures::camera(const QString& name) {
    const auto known = cameras_.constFind(name);
    if (known != cameras_.constEnd())
        return *known;
    QImage picture = Art::find(name);
    if (picture.width() > largest || picture.height() > largest)
        picture = picture.scaled(largest, largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return *cameras_.insert(name, picture);
}

const QImage& ReportPictures::grounds(const MapScene& scene, QSizeF size) {
    if (!grounds_.isNull())
        return grounds_;
    grounds_ = QImage((size * groundsScale).toSize(), QImage::Format_RGB32);
    grounds_.setDevicePixelRatio(groundsScale);
    grounds_.fill(SB::navy);
    QPainter painter(&grounds_);
    drawGrounds(painter, scene, size);
    return grounds_;
}

} // namespace velmora
