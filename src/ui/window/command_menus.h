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
    /// "Launch (approve)" or "Ignore alert" was chosen.
    void answered(velmora::Command answer);

private:
    void buildVelmora();
    void buildDemo();
    void buildDrone();
    void refresh();
    QAction* addCommand(QMenu* menu, const QString& text, const QKeySequence& shortcut);

    AppStore& store_;
    QList<QAction*> visits_;
    QAction* approve_ = nullptr;
    QAction* ignore_ = nullptr;
};

} // namespace velmora
