#pragma once

#include "model/live_state.h"

#include <QString>

namespace velmora {

/// A record's UTF-8 text as the screens use it: one line, without characters that control what stands around
/// it.
QString toQString(std::string_view text);

/// Words to stand within a line of others, whose order they leave alone though they may be read from right to
/// left.
QString isolated(const QString& words);

/// The phase as the owner reads it, such as "Coming home".
QString phaseWord(Phase phase);

/// "velmora did not confirm “Return home”. The connection timed out."
QString failureText(Command command, const QString& reason);

/// "Visitor on the driveway": the offer to stage the visit.
QString scenarioTitle(Scenario scenario);

/// Display name of the camera, or "a camera" for an id that the site does not have.
QString cameraName(const Site& site, std::string_view id);

/// The whole number nearest to the value, halves away from zero.
QString rounded(double value);
/// With one decimal place, as "%.1f" writes it.
QString oneDecimal(double value);
/// The fraction as a whole percent.
QString percent(double fraction);

/// "1:28"; from one hour "1:02:03". Negative times count as none.
QString clockTime(Seconds elapsed);
/// The local time of day, "14:31:42".
QString timeOfDay(Date date);
/// "Today", "Yesterday", or "Wednesday 19 November", with the year when it is another one.
QString dayName(Date date, Date now);
/// Short: "14:31" today, "Yesterday 22:47", "Wed 06:12" within a week, else "19 Nov 2025".
QString dayAndTime(Date date, Date now);
/// "2 min 20 s", "14 s" or "1 h 5 min".
QString duration(Seconds length);
/// "12 s", "3 min" or "2 h": an age that counts.
QString age(Seconds length);

} // namespace velmora
