#pragma once

#include "model/journal_entry.h"

#include <QString>

namespace velmora {

/// Where a command was given, as a part of a sentence: "from the notification".
QString sourceText(CommandSource source);

/// "You approved from the notification, 6 s after the alert." `alerted` is the time of the alert.
QString answerText(const GivenAnswer& answer, Date alerted);

} // namespace velmora
