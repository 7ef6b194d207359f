#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace velmora {

/// The tray icon and its menu: the phase, the answers to an alert, "Return home". The icon appears as soon as
/// the desktop has a tray.
class Tray : public QObject {
    Q_OBJECT

public:
    explicit Tray(AppStore& store, QObject* parent = nullptr);

signals:
    void openRequested();
    void quitRequested();

private:
    void buildMenu();
    QAction* addLine();
    template <class Action>
    QAction* addCommand(const QString& text, Action action);
    void watchForTray();
    void showIcon();
    void refresh();
    void answer(Command command);
    bool isArmed() const;

    AppStore& store_;
    QMenu menu_;
    QAction* phase_;
    QAction* armed_;
    QAction* launch_;
    QAction* ignore_;
    QAction* afterAnswers_;
    QAction* home_;
    QAction* afterHome_;
    QAction* arming_;
    QDBusServiceWatcher trayWatcher_;
    UiTimer legacyTrayTimer_{std::chrono::minutes(1),
                             UiTimer::Mode::singleShot}; ///< until the icon tries a legacy X11 tray
    std::unique_ptr<QSystemTrayIcon> icon_;
    QString shownIcon_;
    std::optional<AlertId> openedFor_; ///< the alert that waited when the menu was opened
};

} // namespace velmora
