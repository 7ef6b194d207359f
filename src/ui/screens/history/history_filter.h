#pragma once

#include "model/mission_record.h"
#include "ui/charts/pattern_words.h"

#include <QString>

#include <optional>

namespace velmora {

/// Selects the records that the history shows.
struct HistoryFilter {
    enum class Flight { all, flown, stayedDocked };
    enum class Demo { with, without, only };
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
    VisitSpan span = VisitSpan::all;
    Demo demo = Demo::with;
    std::optional<Outcome> outcome;
    std::optional<Hours> hours; ///< in which the visit began
    std::optional<P> place;     ///< which the visitor passed within two metres

    bool operator==(const HistoryFilter&) const = default;

    /// Whether it selects by the span of time alone, if at all.
    bool isOnlySpan() const;
    bool matches(const MissionRecord& record, Date now) const;
    /// When the span of time that ends `now` begins; nullopt if it has no beginning.
    std::optional<Date> spanStart(Date now) const;
};

} // namespace velmora
