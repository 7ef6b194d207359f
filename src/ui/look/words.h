#pragma once

#include "language/stored_text.h"
#include "model/live_state.h"
#include "model/settings.h"

#include <QString>

namespace velmora {

/// Wraps right-to-left text in Unicode isolates so that it does not reorder the rest of the line.
QString isolated(const QString& words);

/// Display name of the phase, such as "Coming home".
QString phaseWord(Phase phase);

/// "velmora did not confirm “Return home”. The connection timed out."; for AppStore::commandFailed.
QString failureText(Command command, const QString& reason);
/// The same where the command is evident: "The connection timed out. Try again."
QString failureText(const QString& reason);
/// The text of a command's button until the server's state shows the command's effect.
QString sentText();

/// Why a low battery is one: "under your return level of 30".
QString batteryReason(const Settings& settings);
/// Why the wind is too strong: "over your limit of 30".
QString windReason(const Settings& settings);

/// Title of the demo visit, such as "Visitor on the driveway".
QString scenarioTitle(Scenario scenario);

/// The label of a person, or "Unknown person" without one.
QString personName(std::string_view label);

/// Display name of the camera, or "a camera" for an id that the site does not have.
QString cameraName(const Site& site, std::string_view id);

/// The integer nearest to the value, halves away from zero.
QString rounded(double value);
/// With one decimal, "3.2"; the decimal point is the chosen language's.
QString oneDecimal(double value);
/// The fraction in percent, rounded to an integer.
QString percent(double fraction);

/// "1:28"; from one hour on "1:02:03". A negative time counts as 0.
QString clockTime(Seconds elapsed);
/// The local time of day, "14:31:42".
QString timeOfDay(Date date);
/// "Today", "Yesterday", or "Wednesday 19 November", with the year when it is another one.
QString dayName(Date date, Date now);
/// Short: "14:31" today, "Yesterday 22:47", "Wed 06:12" within a week, else "19 Nov 2025".
QString dayAndTime(Date date, Date now);
/// Long: "Today 14:31" or "Wednesday 19 November 22:47".
QString dayNameAndTime(Date date, Date now);
/// "2 min 20 s", "14 s" or "1 h 5 min".
QString duration(Seconds length);
/// An age that keeps growing: "12 s", "3 min" or "2 h".
QString age(Seconds length);

} // namespace velmora
