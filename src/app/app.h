#pragma once

#include "app/options.h"
#include "desktop/app_service.h"
#include "desktop/autostart.h"
#include "desktop/desktop_notifier.h"
#include "link/http_link.h"
#include "sim/random.h"
#include "store/app_store.h"
#include "ui/tray/tray.h"
#include "ui/window/main_window.h"

#include <chrono>

namespace velmora {

/// Creates and connects the store, the window, the tray and the desktop services.
class App : public QObject {
    Q_OBJECT

public:
    App(AppService& service, const Options& options, const QDir& directory);

    /// Waits until everything is on file, at most ten seconds.
    void saveFiles() { store_.flush(longestSave); }
    void withdrawNotifications() { notifier_.withdrawAll(); }

private:
    static constexpr std::chrono::seconds longestSave{10};

    void notifyOfFailure(Command command, const QString& reason);
    /// Brings the window to the front. `activationToken` lets it take the focus; it may be empty.
    void showWindow(const QString& activationToken = {});

    SystemRandom random_;
    HttpLink link_;
    DesktopNotifier notifier_;
    Autostart autostart_;
    AppStore store_;
    MainWindow window_;
    Tray tray_;
};

} // namespace velmora
