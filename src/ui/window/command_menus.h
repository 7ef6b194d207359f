#pragma once

#include "store/app_store.h"

#include <QMenuBar>

namespace velmora {

/// The window's menus "Velmora", "Demo" and "Drone", enabled by what the live state allows.
class CommandMenus : public QMenuBar {
    Q_OBJECT

public:
    explicit CommandMenus(AppStore& store, QWidget* parent);

signals:
    void aboutRequested();
    void quitRequested();
    /// "Launch (approve)" or "Ignore alert": the window asks whether the alert may be answered yet.
    void answered(velmora::Command answer);

private:
    void buildVelmora();
    void buildDemo();
    void buildDrone();
    void refresh();
    void closeMenus();
    QAction* addCommand(QMenu* menu, const QString& text, const QKeySequence& shortcut);

    AppStore& store_;
    QList<QAction*> visits_;
    std::optional<std::string> alert_; ///< that waits
    QAction* approve_ = nullptr;
    QAction* ignore_ = nullptr;
};

} // namespace velmora
