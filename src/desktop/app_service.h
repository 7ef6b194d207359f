#pragma once

#include "model/enums.h"

#include <QDBusConnection>
#include <QLockFile>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace velmora {

/// Makes this process the single running instance. A second start, the desktop's launcher and its actions
/// reach it over org.freedesktop.Application. No call of that interface can launch the drone.
class AppService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Result of trying to become the single running instance.
    enum class Claim {
        granted,
        handedOver, ///< another instance runs; it shows its window unless the start was hidden
        refused     ///< another instance uses the same data and cannot be reached
    };

    explicit AppService(const QDBusConnection& bus);

    /// The section that the desktop entry's action of this name opens; nullopt if there is no such action.
    static std::optional<Section> sectionOfAction(const QString& action);

    /// Takes the bus name and the lock of the data directory, and keeps them. If another instance runs, asks
    /// it to show its window, with `section` if that is given, unless `hidden`. Its window takes the
    /// focus with the launcher's `activationToken`, or one made now if that is empty. Waits for an instance
    /// that is quitting, up to seven seconds for its name and two for its lock.
    Claim claim(const QString& dataDirectory, bool hidden, std::optional<Section> section,
                const QString& activationToken);
    /// Gives up the bus name, so that the next start takes it.
    void release();

signals:
    /// The window should come to the front. `activationToken` allows it to, on desktops that require a token;
    /// it may be empty.
    void windowRequested(const QString& activationToken);
    void sectionRequested(velmora::Section section);

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    bool takeName();
    bool handOver(bool hidden, std::optional<Section> section, const QString& activationToken);

    QDBusConnection bus_;
    std::optional<QLockFile> lock_;
};

} // namespace velmora
