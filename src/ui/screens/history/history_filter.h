#pragma once

#include "model/mission_record.h"

#include <QString>

namespace velmora {

/// Selects the records that the list shows.
struct HistoryFilter {
    enum class Flight { all, flown, stayedDocked };
    enum class Demo { with, without, only };

    QString text; ///< searched in camera, label, outcome, notices and id, ignoring case
    Flight flight = Flight::all;
    QString camera; ///< camera name; empty for all
    Demo demo = Demo::with;

    bool operator==(const HistoryFilter&) const = default;

    bool matches(const MissionRecord& record) const;
};

} // namespace velmora
