#include "desktop/app_service.h"

#include "store/data_files.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>

namespace velmora {

namespace {

const QString busName = QStringLiteral("org.velmora.Velmora");
const QString objectPath = QStringLiteral("/org/velmora/Velmora");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
constexpr int handOverTime = 5000; // milliseconds

/// The sections that the desktop entry's actions open.
constexpr Section actionSections[] = {Section::overview, Section::live, Section::history};

QString tokenFrom(const QVariantMap& platformData) {
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? platformData.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

} // namespace

AppService::AppService(const QDBusConnection& bus) : bus_(bus) {}

/// Registers the object before the name, so that a client that sees the name can call it at once.
AppService::Claim AppService::claim(const QString& dataDirectory, bool hidden) {
    if (bus_.isConnected()) {
        bus_.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
        const auto reply =
            bus_.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService,
                                              QDBusConnectionInterface::DontAllowReplacement);
        if (reply.isValid() && reply.value() != QDBusConnectionInterface::ServiceRegistered)
            return hidden || handOver() ? Claim::handedOver : Claim::refused;
    }
    DataFiles::makeDirectory(QDir(dataDirectory));
    lock_.emplace(dataDirectory + QStringLiteral("/lock"));
    lock_->setStaleLockTime(0);
    const bool taken = !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
    return taken ? Claim::refused : Claim::granted; // an unwritable directory does not prevent the start
}

bool AppService::handOver() {
    QDBusMessage activate =
        QDBusMessage::createMethodCall(busName, objectPath, interfaceName, QStringLiteral("Activate"));
    activate << QVariantMap{
        {QStringLiteral("activation-token"), qEnvironmentVariable("XDG_ACTIVATION_TOKEN")},
        {QStringLiteral("desktop-startup-id"), qEnvironmentVariable("DESKTOP_STARTUP_ID")}};
    return bus_.call(activate, QDBus::Block, handOverTime).type() == QDBusMessage::ReplyMessage;
}

void AppService::Activate(const QVariantMap& platformData) {
    emit windowRequested(tokenFrom(platformData));
}

void AppService::Open(const QStringList&, const QVariantMap& platformData) {
    emit windowRequested(tokenFrom(platformData));
}

void AppService::ActivateAction(const QString& action, const QVariantList&, const QVariantMap& platformData) {
    const auto section = fromRawValue<Section>(action.toStdString());
    if (section && std::ranges::find(actionSections, *section) != std::end(actionSections)) {
        emit sectionRequested(*section);
        emit windowRequested(tokenFrom(platformData));
    }
}

} // namespace velmora
