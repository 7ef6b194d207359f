#pragma once

#include "store/login_item.h"

#include <QString>

namespace velmora {

/// An entry in the desktop's autostart folder.
class Autostart final : public LoginItem {
public:
    /// The entry is made as `org.velmora.Velmora.desktop` in this directory.
    explicit Autostart(QString directory);

    /// $XDG_CONFIG_HOME/autostart, by default ~/.config/autostart.
    static QString defaultDirectory();

    /// What the file really says: an entry that is hidden or disabled is off.
    bool isOn() const override;
    bool setOn(bool on) override;

private:
    QString path() const;

    QString directory_;
};

} // namespace velmora
