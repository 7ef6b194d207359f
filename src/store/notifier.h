#pragma once

#include "model/live_state.h"

#include <QString>

namespace velmora {

/// Content of a desktop notification about a detection.
struct DetectionNotification {
    QString identifier; ///< a later one with the same identifier replaces it
    QString title;
    QString body;
    QString picture; ///< name of the artwork shown as the camera's view; may be unknown
    AlertId alert;   ///< the alert that its actions answer
};

/// The desktop's notification service. If there is none, nothing is shown; the window shows the alert anyway.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Does not block; failures are silent.
    virtual void post(const DetectionNotification& notification) = 0;
    /// Closes every notification posted.
    virtual void withdrawAll() = 0;
};

} // namespace velmora
