#pragma once

#include "model/date.h"
#include "model/truncated.h"

#include <QDateTime>

namespace velmora {

/// The instant in local time, fractions of a millisecond dropped.
inline QDateTime localDateTime(Date date) {
    return QDateTime::fromMSecsSinceEpoch(truncated(secondsSince1970(date) * 1000));
}

} // namespace velmora
