#include "desktop/autostart.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace velmora {

namespace {

constexpr const char* entry = "[Desktop Entry]\n"
                              "Type=Application\n"
                              "Name=Velmora\n"
                              "Exec=velmora --hidden\n"
                              "TryExec=velmora\n"
                              "Icon=org.velmora.Velmora\n"
                              "X-GNOME-Autostart-enabled=true\n";

} // namespace

Autostart::Autostart(QString directory) : directory_(std::move(directory)) {}

QString Autostart::defaultDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

QString Autostart::path() const {
    return directory_ + QStringLiteral("/org.velmora.Velmora.desktop");
}

bool Autostart::isOn() const {
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    while (!file.atEnd()) {
        QByteArray line = file.readLine().simplified().toLower();
        line.replace(" ", "");
        if (line == "hidden=true" || line == "x-gnome-autostart-enabled=false")
            return false;
    }
    return true;
}

bool Autostart::setOn(bool on) {
    if (!on)
        return !QFile::exists(path()) || QFile::remove(path());
    if (!QDir().mkpath(directory_))
        return false;
    QSaveFile file(path());
    return file.open(QIODevice::WriteOnly) && file.write(entry) > 0 && file.flush() && file.commit();
}

} // namespace velmora
