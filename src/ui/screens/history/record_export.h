#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QWidget;

namespace velmora {

/// A file that the owner may save.
struct ExportFile {
    QString title;  ///< of the dialog
    QString name;   ///< proposed
    QString filter; ///< of the dialog, such as "JSON (*.json)"
    QByteArray bytes;
};

/// Asks where to save the file and writes it, whole or not at all. An error is told in a dialog of the
/// window.
void saveExport(const ExportFile& file, QWidget* parent);

} // namespace velmora
