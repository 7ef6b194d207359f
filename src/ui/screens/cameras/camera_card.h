#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class Chip;
class StatusDot;
class Switch;
class Text;
class ToggleRow;

/// One camera: its picture, whether it is online, and the switches for what triggers an alert there.
class CameraCard : public QWidget {
    Q_OBJECT

public:
    CameraCard(AppStore& store, const CameraInfo& cam, QWidget* parent);

    const std::string& id() const { return cam_.id; }
    void refresh(const CameraInfo& cam);

private:
    using Switches = std::map<std::string, bool> Settings::*;

    QWidget* buildName();
    ToggleRow* toggleRow(const QString& title, const QString& detail, Switches which);
    void turn(Switches which, bool on);
    void showConnection();
    bool isOn(Switches which, bool defaultValue) const;

    AppStore& store_;
    CameraInfo cam_;
    ArtImage* picture_;
    Chip* lastSeen_; ///< on the picture of an offline camera
    Text* name_;
    Text* alerts_;
    StatusDot* dot_;
    Text* online_;
    ToggleRow* faces_;
    ToggleRow* people_;
};

} // namespace velmora
