#pragma once

#include "model/live_state.h"

#include <QString>

namespace velmora {

/// Content of a desktop notification. A click on it shows the window.
struct Notification {
    QString identifier; ///< a later one with the same identifier replaces it
    QString title;
    QString body;
    QString picture = {};                        ///< name of the artwork shown with it; may be unknown
    std::optional<AlertId> alert = std::nullopt; ///< the alert that its actions answer; it is urgent then
};

/// The desktop's notification service. If there is none, nothing is shown; the window shows the same anyway.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Does not block; failures are silent.
    virtual void post(const Notification& notification) = 0;
    /// Closes the notification with this identifier, if there is one.
    virtual void withdraw(const QString& identifier) = 0;
    /// Whether it was posted and neither withdrawn nor closed by the owner.
    virtual bool isShown(const QString& identifier) const = 0;
};

} // namespace velmora
