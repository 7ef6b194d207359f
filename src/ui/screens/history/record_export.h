#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QWidget;

namespace velmora {

/// A file that the owner may save.
struct ExportFile {
    QString title;  ///< of the dialog
    QString name;   ///< proposed
    QString filter; ///< of the dialog, such as "JSON (*.json)"
    QByteArray bytes;
};

/// Asks in a dialog of the window where to save the file and writes it, whole or not at all. `failed` gets a
/// sentence that says which file and why.
void saveExport(const ExportFile& file, QWidget* window, std::function<void(const QString&)> failed);

} // namespace velmora
