#pragma once

#include "store/app_store.h"
#include "ui/tray/xembed_icon.h"

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace velmora {

/// The tray icon and its menu: the phase, the answers to an alert, "Return home". The icon appears as soon as
/// the desktop has a tray: one on the bus (StatusNotifier) or else, on X11, one of the old kind (XEmbed).
class Tray : public QObject {
    Q_OBJECT

public:
    explicit Tray(AppStore& store, QObject* parent = nullptr);

signals:
    /// The owner wants to see the window; the token lets it take the focus.
    void openRequested(const QString& activationToken);
    void quitRequested();

private slots:
    /// Shows the icon in the tray on the bus or, if there is none, in one of the old kind.
    void findTray();

private:
    void buildMenu();
    QAction* addLine();
    template <class Action>
    QAction* addCommand(const QString& text, Action action);
    void watchForTray();
    void createIcon();
    void setXEmbedIconShown(bool shown);
    void refresh();
    void showStatus();
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
    std::unique_ptr<QSystemTrayIcon> icon_;  ///< in the tray on the bus; null until there was one
    std::unique_ptr<XEmbedIcon> xembedIcon_; ///< on X11, while there is no tray on the bus
    QString iconFile_;
    QString toolTip_;
    std::optional<AlertId> openedFor_; ///< the alert that waited when the menu was opened
};

} // namespace velmora
