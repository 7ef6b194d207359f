#include "ui/screens/history/record_export.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QSaveFile>
#include <QStandardPaths>

#include <optional>
#include <utility>

namespace velmora {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("RecordExport", text);
}

/// What went wrong; nothing if the file was written. A full disk may refuse only what is flushed.
std::optional<QString> write(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return std::nullopt;
    return tr("%1 could not be written: %2.").arg(path, file.errorString());
}

} // namespace

void saveExport(const ExportFile& file, QWidget* window, std::function<void(const QString&)> failed) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(window, file.title, documents, file.filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(file.name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QFileDialog::fileSelected, window,
                     [bytes = file.bytes, failed = std::move(failed)](const QString& path) {
                         if (const auto why = write(path, bytes))
                             failed(*why);
                     });
    dialog->open();
}

} // namespace velmora
