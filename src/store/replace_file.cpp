#include "store/replace_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace velmora {

namespace {

constexpr int longestChain = 40; // links, as many as the kernel follows
constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString withoutLinks(QString path) {
    for (int i = 0; i < longestChain && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

/// Until the disk has it; some file systems cannot tell.
bool sync(const QFile& file) {
    return ::fsync(file.handle()) == 0 || errno == EINVAL;
}

/// Flushed before it counts as written: the last bytes are buffered, and a full disk refuses them only then.
bool writeNew(const QString& path, std::string_view bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerFile) &&
           file.write(bytes.data(), size) == size && file.flush() && sync(file);
}

} // namespace

/// Through a file beside it and a rename. That file always has the same name, so that kills leave no more
/// than one behind, until the next change.
bool replaceFile(const QString& path, std::string_view bytes) {
    const QString target = withoutLinks(path);
    const QString part = target + QStringLiteral(".part");
    QFile::remove(part);
    if (writeNew(part, bytes) && std::rename(QFile::encodeName(part), QFile::encodeName(target)) == 0)
        return true;
    QFile::remove(part);
    return false;
}

} // namespace velmora
