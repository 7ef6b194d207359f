#pragma once

#include "model/mission_record.h"

#include <QString>

#include <optional>

namespace velmora {

/// Selects the records that the history shows.
struct HistoryFilter {
    enum class Flight { all, flown, stayedDocked };
    enum class Demo { with, without, only };
    enum class Span { week, month, year, all };
    /// Hours of one day of the week, in local time.
    struct Hours {
        int weekday = 0; ///< from Monday, 0, to Sunday, 6
        int from = 0;
        int to = 0; ///< the first hour that does not count

        bool operator==(const Hours&) const = default;
    };

    QString text; ///< searched in camera, label, outcome, notices and id, ignoring case
    Flight flight = Flight::all;
    QString camera; ///< camera name; empty for all
    Span span = Span::all;
    Demo demo = Demo::with;
    std::optional<Outcome> outcome;
    std::optional<Hours> hours; ///< in which the visit began
    std::optional<P> place;     ///< which the visitor passed within two metres

    bool operator==(const HistoryFilter&) const = default;

    bool matches(const MissionRecord& record, Date now) const;
    /// Whether the record began within the span of time up to `now`.
    bool spans(const MissionRecord& record, Date now) const;
};

} // namespace velmora
