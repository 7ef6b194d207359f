#pragma once

#include "model/enums.h"

#include <QDBusConnection>
#include <QLockFile>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace velmora {

/// Makes this the one running Velmora, and lets a second start, the desktop's launcher and its actions reach
/// it over org.freedesktop.Application. Nothing that comes this way can launch the drone.
class AppService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// What became of the attempt to be the one.
    enum class Claim {
        granted,
        handedOver, ///< another one runs, and comes forward unless the start was hidden
        refused     ///< another one writes to the same data and cannot be reached
    };

    explicit AppService(const QDBusConnection& bus);

    /// Owns the bus name and the data directory from then on. A hidden start does not call the running
    /// window.
    Claim claim(const QString& dataDirectory, bool hidden);

signals:
    /// The window is asked for; the token lets it come to the front where the desktop wants one.
    void windowRequested(const QString& activationToken);
    void sectionRequested(velmora::Section section);

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    bool handOver();

    QDBusConnection bus_;
    std::optional<QLockFile> lock_;
};

} // namespace velmora
