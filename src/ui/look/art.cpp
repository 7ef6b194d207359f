#include "ui/look/art.h"

#include <QImageReader>
#include <QRegularExpression>

#include <optional>

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

QImage load(const QString& name) {
    QList<QDir> directories;
    if (ownersDirectory())
        directories.append(*ownersDirectory());
    directories.append(QDir(QStringLiteral(":/art")));
    for (const QDir& directory : directories)
        for (const char* suffix : {"png", "jpg", "jpeg", "webp"})
            if (const QString file = directory.filePath(name + '.' + QLatin1String(suffix));
                QFile::exists(file))
                if (QImage image = readImage(file); !image.isNull())
                    return image;
    return {};
}

} // namespace

void setDirectory(const QDir& directory) {
    ownersDirectory() = directory;
}

QImage find(const QString& name) {
    return isName(name) ? load(name) : QImage();
}

} // namespace velmora::Art
