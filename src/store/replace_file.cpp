#include "store/replace_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
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

FileStamp stampFrom(const struct stat& info) {
    return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

/// Flushes and syncs, because a full disk may refuse buffered bytes only then.
std::optional<FileStamp> writeNew(const QString& path, std::string_view bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    struct stat info {};
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerFile) &&
        file.write(bytes.data(), size) == size && file.flush() && sync(file) &&
        ::fstat(file.handle(), &info) == 0)
        return stampFrom(info);
    return std::nullopt;
}

} // namespace

std::optional<FileStamp> stampOf(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) == 0)
        return stampFrom(info);
    return errno == ENOENT || errno == ENOTDIR ? std::nullopt : std::optional(FileStamp{});
}

void syncDirectoryOf(const QString& path) {
    const QByteArray directory = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

/// Writes path + ".part" and renames it. The fixed name means that a killed process leaves at most one stray
/// file, which the next save replaces. The stamp is that of the bytes written, even if another program
/// replaces the file right after the rename.
std::optional<FileStamp> replaceFile(const QString& path, std::string_view bytes) {
    const QString target = withoutLinks(path);
    const QString part = target + QStringLiteral(".part");
    QFile::remove(part);
    const auto stamp = writeNew(part, bytes);
    if (stamp && std::rename(QFile::encodeName(part), QFile::encodeName(target)) == 0) {
        syncDirectoryOf(target);
        return stamp;
    }
    QFile::remove(part);
    return std::nullopt;
}

} // namespace velmora
