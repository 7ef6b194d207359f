#include "ui/screens/history/record_export.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardPaths>

namespace velmora {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("RecordExport", text);
}

void write(const QString& path, const QByteArray& bytes, QWidget* parent) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return;
    auto* message = new QMessageBox(QMessageBox::Warning, tr("Not saved"),
                                    tr("The file could not be saved: %1").arg(file.errorString()),
                                    QMessageBox::Ok, parent);
    message->setTextFormat(Qt::PlainText);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
}

} // namespace

void saveExport(const ExportFile& file, QWidget* parent) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(parent, file.title, documents, file.filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(file.name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QFileDialog::fileSelected, parent,
                     [bytes = file.bytes, parent](const QString& path) { write(path, bytes, parent); });
    dialog->open();
}

} // namespace velmora
