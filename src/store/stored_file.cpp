#include "store/stored_file.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace velmora {

namespace {

/// nullopt also for what is not a regular file: reading a pipe could wait for ever.
std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

std::size_t hashOf(std::string_view bytes) {
    return qHashBits(bytes.data(), bytes.size());
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// `path`, or the first of `path`.2, .3 and so on that does not exist.
QString freeName(const QString& path) {
    QString name = path;
    for (int number = 2; QFile::exists(name); ++number)
        name = path + QStringLiteral(".%1").arg(number);
    return name;
}

} // namespace

StoredFile::StoredFile(const QString& path, ReplaceFile replace)
    : path_(path), replace_(std::move(replace)) {}

std::optional<QByteArray> StoredFile::read() {
    stamp_ = stampOf(path_);
    auto bytes = contentOf(path_);
    hash_ = bytes ? std::optional(hashOf(viewOf(*bytes))) : std::nullopt;
    unreadable_ = stamp_ && !bytes;
    return bytes;
}

bool StoredFile::replace(std::string_view bytes) {
    const auto stamp = keepCopy() ? replace_(path_, bytes) : std::nullopt;
    if (!stamp)
        return false;
    stamp_ = stamp;
    hash_ = hashOf(bytes);
    unreadable_ = false;
    return true;
}

/// Copies the file if its content would be lost. Compares the content, too, because some file systems change
/// inodes or times of a file that nobody touched. Returns whether the file may be overwritten.
bool StoredFile::keepCopy() {
    const auto current = stampOf(path_);
    if (!current || (current == stamp_ && !unreadable_))
        return true;
    const auto bytes = contentOf(path_);
    if (!bytes)
        return false;
    const std::size_t hash = hashOf(viewOf(*bytes));
    const QString suffix = current == stamp_ ? QStringLiteral(".unreadable") : QStringLiteral(".replaced");
    if ((unreadable_ || hash != hash_) && !replace_(freeName(path_ + suffix), viewOf(*bytes)))
        return false;
    stamp_ = current;
    hash_ = hash;
    unreadable_ = false;
    return true;
}

} // namespace velmora
