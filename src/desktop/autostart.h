#pragma once

#include "store/login_item.h"

#include <QString>

namespace velmora {

/// The login item as an entry in the desktop's autostart directory.
class Autostart final : public LoginItem {
public:
    /// `directory` holds the entry, `org.velmora.Velmora.desktop`.
    explicit Autostart(QString directory);

    /// $XDG_CONFIG_HOME/autostart, by default ~/.config/autostart.
    static QString defaultDirectory();

    /// Reads the entry; false if it is missing, hidden or disabled.
    bool isOn() const override;
    bool setOn(bool on) override;

private:
    QString path() const;

    QString directory_;
};

} // namespace velmora
