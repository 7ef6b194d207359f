#pragma once

#include <QSaveFile>
#include <QString>

namespace velmora {

/// A file that an export writes, as a whole or piece by piece. Until finish() it is unchanged, and it stays
/// so if the export is deleted before or fails. QSaveFile keeps the permissions of an existing file.
class ExportFile {
public:
    /// Opens the file for writing. If that fails, finish() reports it.
    explicit ExportFile(const QString& path);

    /// What is written here becomes the file's content.
    QIODevice& device() { return file_; }
    /// Whether the file could not be opened or a write has failed.
    bool hasFailed() const { return !file_.isOpen() || file_.error() != QFileDevice::NoError; }
    /// Completes the file. Returns an empty text, or names the file and the reason of the failure in words
    /// for the owner.
    QString finish();

private:
    QSaveFile file_;
};

} // namespace velmora
