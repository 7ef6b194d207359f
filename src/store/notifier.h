#pragma once

#include "model/live_state.h"

#include <QString>

namespace velmora {

/// What a desktop notification about a detection says.
struct DetectionNotification {
    QString identifier; ///< a later one with the same identifier replaces it
    QString title;
    QString body;
    QString picture; ///< artwork of the camera's view; may name nothing
    AlertId alert;   ///< that its actions answer
};

/// The desktop's notification service as the store uses it. A desktop that has none shows nothing; the window
/// carries the alert all the same.
class Notifier {
public:
    virtual ~Notifier() = default;

    virtual void post(const DetectionNotification& notification) = 0;
    /// Takes back every notification posted.
    virtual void withdrawAll() = 0;
};

/// For a desktop without a notification service.
class SilentNotifier final : public Notifier {
public:
    void post(const DetectionNotification&) override {}
    void withdrawAll() override {}
};

} // namespace velmora
