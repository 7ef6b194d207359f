#include "ui/tray/tray.h"

#include "desktop/activation.h"
#include "ui/look/words.h"
#include "x11/x11.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPainter>
#include <QSvgRenderer>

namespace velmora {

namespace {

const QString trayService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString trayPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int iconSizes[] = {16, 18, 22, 24, 32, 48, 64};

QString iconFor(Phase phase, const std::optional<Outage>& outage) {
    if (outage && outage->serverIsSilent)
        return QStringLiteral(":/icons/app/tray-outage.svg");
    if (phase == Phase::awaitingApproval)
        return QStringLiteral(":/icons/app/tray-waiting.svg");
    if (outage)
        return QStringLiteral(":/icons/app/tray-outage.svg");
    return airborne(phase) ? QStringLiteral(":/icons/app/tray-airborne.svg")
                           : QStringLiteral(":/icons/app/tray-docked.svg");
}

/// Renders the file to pixmaps, because a tray need not support SVG.
QIcon pixmapsOf(const QString& file) {
    QSvgRenderer drawing(file);
    QIcon icons;
    for (const int size : iconSizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icons.addPixmap(pixmap);
    }
    return icons;
}

bool hasTrayService() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(trayService);
}

void setText(QAction* action, const QString& text) {
    if (action->text() != text)
        action->setText(text);
}

} // namespace

Tray::Tray(AppStore& store, QObject* parent)
    : QObject(parent),
      store_(store),
      trayWatcher_(trayService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
    buildMenu();
    connect(&store_, &AppStore::stateChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::linkStatusChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::pendingCommandChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::outageChanged, this, &Tray::refresh);
    refresh();
    watchForTray();
}

void Tray::buildMenu() {
    phase_ = addLine();
    armed_ = addLine();
    menu_.addSeparator();
    launch_ = addCommand(tr("Launch drone"), [this] { answer(Command::approve); });
    ignore_ = addCommand(tr("Ignore"), [this] { answer(Command::ignore); });
    afterAnswers_ = menu_.addSeparator();
    home_ = addCommand(tr("Return home"), [this] { store_.send(Command::returnHome, CommandSource::tray); });
    afterHome_ = menu_.addSeparator();
    arming_ = addCommand({}, [this] { store_.setArmed(!isArmed()); });
    addCommand(tr("Open Velmora"), [this] { emit openRequested(Activation::tokenOfNow()); });
    menu_.addSeparator();
    addCommand(tr("Quit Velmora"), [this] { emit quitRequested(); });
    connect(&menu_, &QMenu::aboutToShow, this, [this] { openedFor_ = store_.waitingAlert(); });
}

bool Tray::isArmed() const {
    return store_.knownState() && store_.knownState()->armed;
}

/// If the alert changed since the menu was opened, does not answer it but shows the window.
void Tray::answer(Command command) {
    if (!openedFor_ || !store_.answer(command, *openedFor_, CommandSource::tray))
        emit openRequested(Activation::tokenOfNow());
}

QAction* Tray::addLine() {
    QAction* line = menu_.addAction(QString());
    line->setEnabled(false);
    return line;
}

template <class Action>
QAction* Tray::addCommand(const QString& text, Action action) {
    QAction* line = menu_.addAction(text);
    connect(line, &QAction::triggered, this, action);
    return line;
}

void Tray::watchForTray() {
    connect(&trayWatcher_, &QDBusServiceWatcher::serviceOwnerChanged, this, &Tray::findTray);
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        QDBusConnection::sessionBus().connect(trayService, trayPath, trayService, QString::fromLatin1(signal),
                                              this, SLOT(findTray()));
    findTray();
}

/// Qt checks only once whether the bus has a tray with a host, so create its icon when there is one.
void Tray::findTray() {
    if (!hasTrayService()) {
        setXEmbedIconShown(true);
        return;
    }
    QDBusMessage question = QDBusMessage::createMethodCall(
        trayService, trayPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << trayService << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QVariant> reply = *watcher;
        const bool hasHost = reply.isValid() && reply.value().toBool();
        if (hasHost && !icon_)
            createIcon();
        setXEmbedIconShown(!hasHost);
        watcher->deleteLater();
    });
}

void Tray::createIcon() {
    icon_ = std::make_unique<QSystemTrayIcon>();
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit openRequested(Activation::tokenOfNow());
    });
    showStatus();
    icon_->show();
}

void Tray::setXEmbedIconShown(bool shown) {
    if (!shown)
        xembedIcon_.reset();
    if (!shown || xembedIcon_ || !X11::connection())
        return;
    xembedIcon_ = std::make_unique<XEmbedIcon>();
    connect(xembedIcon_.get(), &XEmbedIcon::clicked, this,
            [this](std::uint32_t time) { emit openRequested(Activation::tokenOf(time)); });
    connect(xembedIcon_.get(), &XEmbedIcon::menuRequested, this, [this] { menu_.popup(QCursor::pos()); });
    showStatus();
}

/// Hides and shows lines instead of rebuilding the menu, which may be open.
void Tray::refresh() {
    const Phase phase = store_.phase();
    const QString status =
        tr("Velmora — %1").arg(store_.knownState() ? phaseWord(phase) : tr("Waiting for velmora"));
    setText(phase_, status);
    setText(armed_, isArmed() ? tr("Armed") : tr("Disarmed"));
    armed_->setVisible(store_.knownState());
    for (QAction* action : {launch_, ignore_, afterAnswers_})
        action->setVisible(phase == Phase::awaitingApproval);
    for (QAction* action : {launch_, ignore_})
        action->setEnabled(store_.waitingAlert().has_value());
    for (QAction* action : {home_, afterHome_})
        action->setVisible(airborne(phase));
    setText(arming_, isArmed() ? tr("Disarm") : tr("Arm"));
    QStringList tip{status};
    if (store_.settings().linkMode)
        tip.append(store_.linkStatus().text());
    if (store_.outage())
        tip.append(outageTitle(*store_.outage()));
    const QString icon = iconFor(phase, store_.outage());
    if (tip.join('\n') == toolTip_ && icon == iconFile_)
        return;
    toolTip_ = tip.join('\n');
    iconFile_ = icon;
    showStatus();
}

void Tray::showStatus() {
    if (!icon_ && !xembedIcon_)
        return;
    const auto show = [icon = pixmapsOf(iconFile_), this](auto& trayIcon) {
        trayIcon.setToolTip(toolTip_);
        trayIcon.setIcon(icon);
    };
    if (icon_)
        show(*icon_);
    if (xembedIcon_)
        show(*xembedIcon_);
}

} // namespace velmora
