#include "desktop/app_service.h"

#include "desktop/activation.h"
#include "store/data_files.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

namespace velmora {

namespace {

const QString busName = QStringLiteral("org.velmora.Velmora");
const QString objectPath = QStringLiteral("/org/velmora/Velmora");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
constexpr int handOverTime = 5000;  // milliseconds
constexpr int quitTime = 2000;      // milliseconds; an instance that quits is gone by then
constexpr unsigned long pause = 20; // milliseconds between two attempts

/// The sections that the desktop entry's actions open.
constexpr Section actionSections[] = {Section::overview, Section::live, Section::history};

QString tokenFrom(const QVariantMap& platformData) {
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? platformData.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

/// The call that shows the window of the running instance.
QDBusMessage showCall(std::optional<Section> section, const QString& activationToken) {
    const QString method = section ? QStringLiteral("ActivateAction") : QStringLiteral("Activate");
    QDBusMessage call = QDBusMessage::createMethodCall(busName, objectPath, interfaceName, method);
    if (section)
        call << QString::fromUtf8(rawValue(*section)) << QVariantList();
    const QString token = activationToken.isEmpty() ? Activation::tokenOfNow() : activationToken;
    call << QVariantMap{{QStringLiteral("activation-token"), token},
                        {QStringLiteral("desktop-startup-id"), token}};
    return call;
}

} // namespace

AppService::AppService(const QDBusConnection& bus) : bus_(bus) {}

std::optional<Section> AppService::sectionOfAction(const QString& action) {
    const auto section = fromRawValue<Section>(action.toStdString());
    const bool isAction = section && std::ranges::find(actionSections, *section) != std::end(actionSections);
    return isAction ? section : std::nullopt;
}

/// Registers the object before the name, so that a client that sees the name can call it at once.
AppService::Claim AppService::claim(const QString& dataDirectory, bool hidden, std::optional<Section> section,
                                    const QString& activationToken) {
    const QDeadlineTimer deadline(quitTime);
    if (bus_.isConnected()) {
        bus_.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
        for (bool last = false; !takeName(); last = deadline.hasExpired(), QThread::msleep(pause)) {
            if (last)
                return Claim::refused;
            if (handOver(hidden, section, activationToken))
                return Claim::handedOver;
        }
    }
    DataFiles::makeDirectory(QDir(dataDirectory));
    lock_.emplace(dataDirectory + QStringLiteral("/lock"));
    lock_->setStaleLockTime(0);
    const bool taken = !lock_->tryLock(quitTime) && lock_->error() == QLockFile::LockFailedError;
    return taken ? Claim::refused : Claim::granted; // an unwritable directory does not prevent the start
}

void AppService::release() {
    if (bus_.isConnected())
        bus_.interface()->unregisterService(busName);
}

/// Also true if the bus gives no answer, so that the start does not depend on it.
bool AppService::takeName() {
    const auto reply = bus_.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService,
                                                         QDBusConnectionInterface::DontAllowReplacement);
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

/// Returns whether the other instance has answered. A hidden start only asks whether it still does.
bool AppService::handOver(bool hidden, std::optional<Section> section, const QString& activationToken) {
    const QDBusMessage question = QDBusMessage::createMethodCall(
        busName, objectPath, QStringLiteral("org.freedesktop.DBus.Introspectable"),
        QStringLiteral("Introspect"));
    QDBusMessage call = hidden ? question : showCall(section, activationToken);
    call.setAutoStartService(false); // a name without an owner is free
    return bus_.call(call, QDBus::Block, handOverTime).type() == QDBusMessage::ReplyMessage;
}

void AppService::Activate(const QVariantMap& platformData) {
    emit windowRequested(tokenFrom(platformData));
}

void AppService::Open(const QStringList&, const QVariantMap& platformData) {
    emit windowRequested(tokenFrom(platformData));
}

void AppService::ActivateAction(const QString& action, const QVariantList&, const QVariantMap& platformData) {
    if (const auto section = sectionOfAction(action)) {
        emit sectionRequested(*section);
        emit windowRequested(tokenFrom(platformData));
    }
}

} // namespace velmora
