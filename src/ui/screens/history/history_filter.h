#pragma once

#include "model/mission_record.h"

#include <QString>

namespace velmora {

/// Which records the list shows.
struct HistoryFilter {
    enum class Flight { all, flown, stayedDocked };
    enum class Demo { with, without, only };

    QString text; ///< found in camera, label, outcome, notices or id, whatever its case
    Flight flight = Flight::all;
    QString camera; ///< its name; empty for all
    Demo demo = Demo::with;

    bool operator==(const HistoryFilter&) const = default;

    bool matches(const MissionRecord& record) const;
};

} // namespace velmora
