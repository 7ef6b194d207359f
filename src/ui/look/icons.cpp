#include "ui/look/icons.h"

#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace velmora {

namespace {

QString fileOf(Icon icon) {
    static const char* const names[] = {"overview",    "live",        "history", "cameras", "settings",
                                        "minimise",    "maximise",    "restore", "close",   "check",
                                        "paper-plane", "broken-link", "drone",   "chevron", "export",
                                        "delete",      "play",        "pause"};
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(names[static_cast<std::size_t>(icon)]));
}

struct Key {
    Icon icon;
    int pixels;
    QRgb color;

    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed) {
    return qHashMulti(seed, static_cast<int>(key.icon), key.pixels, key.color);
}

QImage render(const Key& key) {
    QImage image(key.pixels, key.pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(fileOf(key.icon)).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(key.color));
    return image;
}

} // namespace

void paintIcon(QPainter& painter, const QRectF& rect, Icon icon, const QColor& color) {
    static QHash<Key, QImage> cache;
    const double scale = painter.device()->devicePixelRatioF();
    const Key key{icon, static_cast<int>(std::ceil(rect.width() * scale)), color.rgba()};
    if (!cache.contains(key))
        cache.insert(key, render(key));
    painter.drawImage(rect, cache.value(key));
}

} // namespace velmora
