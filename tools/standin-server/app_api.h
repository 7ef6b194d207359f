#pragma once

#include "standin-server/simulated_site.h"

#include <QByteArray>

#include <functional>

namespace velmora::standin {

/// The app API over a simulated site, without the network.
class AppApi {
public:
    struct Answer {
        int status = 200;
        QByteArray body;
    };

    /// `clock` tells the present moment. `site` must outlive the API.
    AppApi(SimulatedSite& site, std::function<Date()> clock);

    /// GET state: the site as it is now.
    Answer state();
    /// POST command: 200, or 400 for a body that is not a command.
    Answer command(const QByteArray& body);

private:
    SimulatedSite& site_;
    std::function<Date()> clock_;
};

} // namespace velmora::standin
