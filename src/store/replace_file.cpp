#include "store/replace_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr int longestChain = 40; // links, the limit of the kernel
constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString withoutLinks(QString path) {
    for (int i = 0; i < longestChain && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

/// Waits until the bytes are on disk. EINVAL: the file system does not support fsync.
bool sync(const QFile& file) {
    return ::fsync(file.handle()) == 0 || errno == EINVAL;
}

/// Flushes and syncs, because a full disk may refuse buffered bytes only then.
bool writeNew(const QString& path, std::string_view bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerFile) &&
           file.write(bytes.data(), size) == size && file.flush() && sync(file);
}

/// Waits until the name of a new file is on disk. Errors are ignored: the file has its new content already.
void syncDirectoryOf(const QString& path) {
    const QByteArray directory = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

/// Writes path + ".part" and renames it. The fixed name means that a killed process leaves at most one stray
/// file, which the next save replaces.
bool replaceFile(const QString& path, std::string_view bytes) {
    const QString target = withoutLinks(path);
    const QString part = target + QStringLiteral(".part");
    QFile::remove(part);
    if (writeNew(part, bytes) && std::rename(QFile::encodeName(part), QFile::encodeName(target)) == 0) {
        syncDirectoryOf(target);
        return true;
    }
    QFile::remove(part);
    return false;
}

} // namespace velmora
