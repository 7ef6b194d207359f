#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"
#include "model/settings.h"

#include <QString>

#include <optional>

namespace velmora {

/// "Page 2 of 3".
QString pageNumber(int page, int pages);

/// "Thursday 19 November 2026".
QString fullDate(Date date);

/// What local time is ahead of UTC: "UTC+0", "UTC+5:30".
QString utcOffset(Date date);

/// When a visit began and ended: "Thursday 19 November 2026, 20:24:10 to 20:26:30 (UTC+0)".
QString visitTimes(const MissionRecord& record);

/// "Driveway camera", with a long name elided.
QString cameraWords(const MissionRecord& record);

/// How the alert was answered, in whole sentences. `answer` is nullopt if nobody did.
QString answerSentences(const MissionRecord& record, const std::optional<GivenAnswer>& answer);

/// When the drone took off, reached the visitor, turned back and landed. Empty if it did not fly.
QString flightSentences(const MissionRecord& record);

/// What the lines of the map mean.
QString mapKey(const MissionRecord& record, const Settings& settings);

/// "Made by Velmora 1.0.0 on 21 November 2026, 10:12 (UTC+0)".
QString madeBy(Date now);

} // namespace velmora
