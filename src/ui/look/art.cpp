#include "ui/look/art.h"

#include <QImageReader>
#include <QRegularExpression>

#include <future>
#include <map>
#include <utility>

namespace velmora::Art {

namespace {

constexpr qint64 maximumPixels = 64'000'000;

std::optional<QDir>& ownersDirectory() {
    static std::optional<QDir> directory;
    return directory;
}

bool isName(const QString& name) {
    static const QRegularExpression pattern(QStringLiteral("\\A[A-Za-z0-9_-][A-Za-z0-9._-]*\\z"));
    return pattern.match(name).hasMatch();
}

QImage readImage(const QString& path) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > maximumPixels)
        return {};
    return reader.read();
}

QImage load(const QDir& directory, const QString& name) {
    for (const char* suffix : {"png", "jpg", "jpeg", "webp"})
        if (const QString file = directory.filePath(name + '.' + QLatin1String(suffix)); QFile::exists(file))
            if (QImage image = readImage(file); !image.isNull())
                return image;
    return {};
}

QImage loadOwners(const QString& name) {
    return ownersDirectory() ? load(*ownersDirectory(), name) : QImage();
}

QImage loadAny(const QString& name) {
    const QImage owners = loadOwners(name);
    return owners.isNull() ? load(QDir(QStringLiteral(":/art")), name) : owners;
}

/// Pictures of findAhead(). Used by the main thread only.
struct Ahead {
    std::map<QString, std::future<QImage>> pictures; ///< by name
    std::future<void> thread;
};

Ahead& ahead() {
    static Ahead pictures;
    return pictures;
}

} // namespace

void setDirectory(const QDir& directory) {
    ownersDirectory() = directory;
}

QImage find(const QString& name) {
    if (!isName(name))
        return {};
    if (auto found = ahead().pictures.extract(name))
        return found.mapped().get();
    return loadAny(name);
}

void findAhead(const QStringList& names) {
    std::map<QString, std::promise<QImage>> promises;
    for (const QString& name : names)
        ahead().pictures[name] = promises[name].get_future();
    ahead().thread = std::async(std::launch::async, [names, promises = std::move(promises)]() mutable {
        for (const QString& name : names)
            promises[name].set_value(loadAny(name));
    });
}

void dropUnused() {
    ahead() = {};
}

std::optional<QPointF> focusOf(const QString& name) {
    // measured in the pictures, in pixels of 1280 x 720
    static const std::map<QString, QPointF> visitors{{QStringLiteral("snapshot-driveway"), {533, 312}},
                                                     {QStringLiteral("snapshot-front"), {740, 430}},
                                                     {QStringLiteral("snapshot-garden"), {817, 373}}};
    const auto visitor = visitors.find(name);
    if (visitor == visitors.end() || !loadOwners(name).isNull())
        return std::nullopt;
    return QPointF(visitor->second.x() / 1280, visitor->second.y() / 720);
}

} // namespace velmora::Art
