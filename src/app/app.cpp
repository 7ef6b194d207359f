#include "app/app.h"

#include "app/self_check.h"
#include "desktop/activation.h"
#include "ui/look/art.h"
#include "ui/look/words.h"

#include <QApplication>
#include <QIcon>

namespace velmora {

namespace {

constexpr int notificationWidth = 320;                               // pixels
const QString failureIdentifier = QStringLiteral("velmora-failure"); // no mission id of a server

NotificationPicture pictureOf(const QString& name) {
    const QImage picture = Art::find(name);
    if (picture.isNull())
        return {};
    const QImage small = picture.scaledToWidth(notificationWidth, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGBA8888);
    return {small.width(), small.height(), static_cast<int>(small.bytesPerLine()),
            QByteArray(reinterpret_cast<const char*>(small.constBits()), small.sizeInBytes())};
}

/// Before the window is built: chooses the section that it builds first.
AppStore& prepared(AppStore& store, const Options& options) {
    store.setSection(options.section.value_or(store.section()));
    return store;
}

Date systemClock() {
    return Date(std::chrono::system_clock::now());
}

QIcon programIcon() {
    QIcon icon(QStringLiteral(":/icons/app/velmora-128.png"));
    icon.addFile(QStringLiteral(":/icons/app/velmora-48.png"));
    return icon;
}

} // namespace

App::App(AppService& service, const Options& options, const QDir& directory)
    : notifier_(QDBusConnection::sessionBus(), pictureOf),
      autostart_(Autostart::defaultDirectory()),
      store_({systemClock, random_, directory, notifier_, autostart_, link_}),
      window_(prepared(store_, options)),
      tray_(store_) {
    store_.start();
    SelfCheck::runIfRequested(store_);
    connect(&notifier_, &DesktopNotifier::answered, &store_, [this](Command command, const AlertId& alert) {
        store_.answer(command, alert, CommandSource::notification);
    });
    connect(&window_, &MainWindow::started, this, [] { QApplication::setWindowIcon(programIcon()); });
    connect(&notifier_, &DesktopNotifier::windowRequested, this, &App::showWindow);
    connect(&service, &AppService::windowRequested, this, &App::showWindow);
    connect(&service, &AppService::sectionRequested, &store_, &AppStore::setSection);
    connect(&store_, &AppStore::commandFailed, this, &App::notifyOfFailure);
    connect(&store_, &AppStore::pendingCommandChanged, this, [this] {
        if (store_.pendingCommand())
            notifier_.withdraw(failureIdentifier);
    });
    connect(&tray_, &Tray::openRequested, this, &App::showWindow);
    connect(&tray_, &Tray::quitRequested, qApp, &QCoreApplication::quit);
    if (options.hidden)
        window_.buildSections();
    else
        showWindow();
}

/// An active window shows the failure itself.
void App::notifyOfFailure(Command command, const QString& reason) {
    if (!QApplication::activeWindow())
        notifier_.post({failureIdentifier, tr("Velmora"), failureText(command, reason)});
}

void App::showWindow(const QString& activationToken) {
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8()); // read by Qt's Wayland plugin
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    window_.show();
    const bool asked = Activation::activate(window_.winId(), activationToken);
    window_.raise();
    if (!asked)
        window_.activateWindow();
}

} // namespace velmora
