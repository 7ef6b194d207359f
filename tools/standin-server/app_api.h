#pragma once

#include "standin-server/simulated_site.h"

#include <QByteArray>

#include <functional>

namespace velmora::standin {

/// The app API for a simulated site, independent of the network.
class AppApi {
public:
    struct Answer {
        int status = 200;
        QByteArray body;
    };

    /// `clock` returns the current time. `site` must outlive the API.
    AppApi(SimulatedSite& site, std::function<Date()> clock);

    /// GET state: returns the current state of the site.
    Answer state();
    /// POST command: returns 200, or 400 if the body is not a command.
    Answer command(const QByteArray& body);

private:
    SimulatedSite& site_;
    std::function<Date()> clock_;
};

} // namespace velmora::standin
