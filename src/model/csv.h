#pragma once

#include "model/mission_record.h"

#include <string>
#include <vector>

namespace velmora {

/// The record's paths and notices as CSV (RFC 4180, UTF-8): seconds since the start, who ("visitor", "drone"
/// or "notice"), x and y in metres, and the notice's text.
std::string pathsCsv(const MissionRecord& record);

/// A header, then one line for each record: id, start, end, camera, label, outcome, confidence, battery used,
/// furthest out, demo.
std::string recordsCsv(const std::vector<MissionRecord>& records);

} // namespace velmora
