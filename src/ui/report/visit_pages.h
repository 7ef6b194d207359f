#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"
#include "model/settings.h"
#include "ui/report/report_pages.h"
#include "ui/report/report_pictures.h"

#include <memory>

namespace velmora {

/// A visit of a report.
struct ReportVisit {
    std::shared_ptr<const MissionRecord> record; ///< never null
    std::optional<GivenAnswer> answer;           ///< nullopt if nobody answered the alert
};

/// What all pages of a report have in common.
struct ReportSetting {
    Site site;
    Settings settings;
    Date madeAt;
    QPageSize paper;
};

/// The room for a map, in pixels at 96 dpi, and the gap to the column beside it.
inline constexpr QSizeF reportMap(408, 272);
inline constexpr double reportColumnGap = 24;
/// The size of the site's map in that room.
QSizeF reportMapSize(const Site& site);
/// The site on a map, with or without its captions.
MapScene reportScene(const ReportSetting& setting, bool captions);
/// Rounds the corners of what is painted next.
void clipRounded(QPainter& painter, const QRectF& rect);
/// Where the facts of a report come from.
QString reportSource();
/// Draws a caption with a value and its unit below, from the rectangle's top. Returns where they end.
double drawFact(ReportPages& pages, QRectF rect, const QString& name, const QString& value,
                const QString& unit);

/// Lays out the report of one visit on new pages: what happened, where, how it was answered, and the log.
void layOutVisit(ReportPages& pages, ReportPictures& pictures, const ReportSetting& setting,
                 const ReportVisit& visit);

} // namespace velmora
