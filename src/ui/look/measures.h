#pragma once

#include <QMargins>
#include <QSize>

/// The sizes and distances of the screens, in logical pixels.
namespace velmora::Measure {

inline constexpr int gap4 = 4, gap8 = 8, gap12 = 12, gap16 = 16, gap20 = 20, gap24 = 24, gap28 = 28,
                     gap32 = 32;

inline constexpr int badgeRadius = 4;
inline constexpr int thumbnailRadius = 6;
inline constexpr int buttonRadius = 8;
inline constexpr int cardRadius = 10;
inline constexpr int overlayRadius = 16;

// The window
inline constexpr QSize windowMinimum(1120, 720);
inline constexpr QSize windowDefault(1360, 860);
inline constexpr int narrowWindow = 1280; // below it the narrow rules hold
inline constexpr int resizeBand = 6;
inline constexpr int titleStrip = 36;
inline constexpr int titleStripIndent = 12;
inline constexpr QSize windowButton(46, 36);
inline constexpr int windowGlyph = 10;
inline constexpr int menuTitlePadding = 10;
inline constexpr int menuTitleHeight = 26;
inline constexpr int menuTitleRadius = 6;
inline constexpr int menuRow = 28;
inline constexpr int menuPadding = 14;
inline constexpr int menuSeparatorGap = 5;
inline constexpr int menuEdge = 6; // above the first and below the last row
inline constexpr int menuRowInset = 5;

// The sidebar
inline constexpr int sidebar = 232;
inline constexpr int sidebarTop = 20;
inline constexpr int sidebarSide = 12;
inline constexpr int sidebarBottom = 16;
inline constexpr int wordmarkRow = 32;
inline constexpr int wordmarkShield = 26;
inline constexpr int wordmarkGap = 10;
inline constexpr int sectionRow = 36;
inline constexpr int sectionPadding = 12;
inline constexpr int sectionIcon = 18;
inline constexpr int sectionMarkInset = 16;
inline constexpr int droneBadgeRow = 68;
inline constexpr int droneBadgeCircle = 36;
inline constexpr int droneBadgeIcon = 24;
inline constexpr QSize batteryBar(44, 4);
inline constexpr int linkDot = 8;
inline constexpr int linkGap = 10;

// Pages
inline constexpr QMargins pageMargins(40, 20, 40, 24);
inline constexpr int pageWidth = 1320; // content grows up to this
inline constexpr int ledeWidth = 640;
inline constexpr int gutter = 32;

// Building blocks
inline constexpr int buttonHeight = 36, buttonHeightLarge = 40;
inline constexpr int buttonPadding = 16, buttonPaddingLarge = 20;
inline constexpr int buttonIcon = 16;
inline constexpr int metricGap = 6;
inline constexpr int unitGap = 3;
inline constexpr double statusDot = 8;
inline constexpr double statusDotInRow = 6;
inline constexpr double statusHalo = 16;
inline constexpr double focusGap = 2;
inline constexpr double focusRing = 2;
inline constexpr int missingPictureIcon = 24;
inline constexpr int scrollBar = 6;
inline constexpr int scrollBarEdge = 4;
inline constexpr int overlayRise = 8;

// Live flight
inline constexpr int railMinimum = 288, railMaximum = 480;
inline constexpr int mapMinimumHeight = 280;
inline constexpr int narrowContent = 900; // below it the telemetry takes two rows
inline constexpr int noteRow = 47;
inline constexpr int cardInset = 20;
inline constexpr int telemetry = 106, telemetryNarrow = 146;
inline constexpr QMargins telemetryMargins(20, 24, 20, 28);
inline constexpr QMargins telemetryNarrowMargins(20, 14, 20, 14);
inline constexpr int telemetryRowGap = 10;
inline constexpr int timelineRow = 28;
inline constexpr double timelineMarker = 14;
inline constexpr double timelineMarkerX = 7;
inline constexpr double timelineTick = 12;
inline constexpr double timelineHalo = 4;
inline constexpr double timelineHole = 3;
inline constexpr double timelineTitleX = 28;
inline constexpr QSize visitorPicture(72, 54);
inline constexpr int visitorGap = 14;
inline constexpr int logTime = 54;
inline constexpr int logTextX = 82;
inline constexpr int logFade = 24;

// The approval card
inline constexpr int approvalCard = 520;
inline constexpr int approvalPicture = 250;
inline constexpr int approvalPadding = 28;
inline constexpr int approvalBar = 3;
inline constexpr int chipInset = 16;
inline constexpr int chipHeight = 24;
inline constexpr int chipPadding = 10;

// The landing confirmation
inline constexpr int confirmationCard = 420;
inline constexpr QMargins confirmationMargins(28, 28, 28, 24);

} // namespace velmora::Measure
