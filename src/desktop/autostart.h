#pragma once

#include <QString>

namespace velmora {

/// Whether Velmora starts, hidden, when the owner logs in: an entry in the desktop's autostart folder.
class Autostart {
public:
    /// The entry is made as `org.velmora.Velmora.desktop` in this directory.
    explicit Autostart(QString directory);

    /// $XDG_CONFIG_HOME/autostart, by default ~/.config/autostart.
    static QString defaultDirectory();

    /// What the file really says: an entry that is hidden or disabled is off.
    bool isOn() const;
    /// False when the entry cannot be written or removed.
    bool setOn(bool on) const;

private:
    QString path() const;

    QString directory_;
};

} // namespace velmora
