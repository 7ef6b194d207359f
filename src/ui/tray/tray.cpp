#include "ui/tray/tray.h"

#include "ui/look/words.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QPainter>
#include <QSvgRenderer>

namespace velmora {

namespace {

const QString trayService = QStringLiteral("org.kde.StatusNotifierWatcher");
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

void setText(QAction* action, const QString& text) {
    if (action->text() != text)
        action->setText(text);
}

} // namespace

Tray::Tray(AppStore& store, QObject* parent)
    : QObject(parent),
      store_(store),
      trayWatcher_(trayService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration) {
    buildMenu();
    connect(&store_, &AppStore::stateChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::linkStatusChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::pendingCommandChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::outageChanged, this, &Tray::refresh);
    connect(&store_, &AppStore::commandFailed, this, [this](Command command, const QString& reason) {
        if (icon_ && !QApplication::activeWindow()) // an active window shows the failure itself
            icon_->showMessage(tr("Velmora"), failureText(command, reason), QSystemTrayIcon::Warning);
    });
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
    home_ = addCommand(tr("Return home"), [this] { store_.send(Command::returnHome); });
    afterHome_ = menu_.addSeparator();
    arming_ = addCommand({}, [this] { store_.setArmed(!isArmed()); });
    addCommand(tr("Open Velmora"), [this] { emit openRequested(); });
    menu_.addSeparator();
    addCommand(tr("Quit Velmora"), [this] { emit quitRequested(); });
    connect(&menu_, &QMenu::aboutToShow, this, [this] { openedFor_ = store_.waitingAlert(); });
}

bool Tray::isArmed() const {
    return store_.knownState() && store_.knownState()->armed;
}

/// If the alert changed since the menu was opened, does not answer it but shows the window.
void Tray::answer(Command command) {
    if (!openedFor_ || !store_.answer(command, *openedFor_))
        emit openRequested();
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

/// Qt checks only once whether there is a tray, so create the icon when one is registered on the bus. If none
/// appears for a while, try a legacy X11 tray; Wayland has none, so there the icon waits for the bus.
void Tray::watchForTray() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && bus.interface()->isServiceRegistered(trayService)) {
        showIcon();
        return;
    }
    connect(&trayWatcher_, &QDBusServiceWatcher::serviceRegistered, this, &Tray::showIcon);
    if (QGuiApplication::platformName() != QStringLiteral("xcb"))
        return;
    connect(&legacyTrayTimer_, &UiTimer::timeout, this, &Tray::showIcon);
    legacyTrayTimer_.start();
}

void Tray::showIcon() {
    legacyTrayTimer_.stop();
    if (icon_)
        return;
    icon_ = std::make_unique<QSystemTrayIcon>();
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit openRequested();
    });
    shownIcon_.clear();
    refresh();
    icon_->show();
}

/// Hides and shows lines instead of rebuilding the menu, which may be open.
void Tray::refresh() {
    const Phase phase = store_.phase();
    const QString status =
        tr("Velmora — ") + (store_.knownState() ? phaseWord(phase) : tr("Waiting for velmora"));
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
    if (!icon_)
        return;
    QStringList tip{status};
    if (store_.settings().linkMode)
        tip.append(store_.linkStatus().text());
    if (store_.outage())
        tip.append(toQString(outageTitle(*store_.outage()).toStdString()));
    if (icon_->toolTip() != tip.join('\n'))
        icon_->setToolTip(tip.join('\n'));
    const QString icon = iconFor(phase, store_.outage());
    if (icon == shownIcon_)
        return;
    shownIcon_ = icon;
    icon_->setIcon(pixmapsOf(icon));
}

} // namespace velmora
