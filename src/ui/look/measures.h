#pragma once

#include <QMargins>
#include <QPointF>
#include <QSize>

/// The sizes and distances of the screens in logical pixels, and a few counts and ratios.
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
inline constexpr int narrowWindow = 1280; // narrower windows use the narrow layout
inline constexpr int wideWindow = 1700;   // wide windows begin here
inline constexpr int lowWindow = 760;     // lower windows use smaller gaps
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
inline constexpr QMargins menuShadow(10, 4, 10, 16); // room around the menu

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
inline constexpr int linkGap = 10;

// Pages
inline constexpr QMargins pageMargins(40, 20, 40, 24);
inline constexpr int pageWidth = 1320, pageWidthWide = 1880; // content grows up to this
/// The largest width of a page's content in a window of this width.
constexpr int pageWidthIn(int window) {
    return window < wideWindow ? pageWidth : pageWidthWide;
}
inline constexpr int ledeWidth = 640;
inline constexpr int gutter = 32;
inline constexpr int railWide = 360; // least width in wide windows

// Building blocks
inline constexpr int buttonHeight = 36, buttonHeightLarge = 40;
inline constexpr int buttonPadding = 16, buttonPaddingLarge = 20, buttonPaddingQuiet = 12;
inline constexpr int buttonIcon = 16;
inline constexpr int metricGap = 6, reasonGap = 2;
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
inline constexpr double staleOpacity = 0.55; // of pictures and maps that may be out of date
inline constexpr double veil = 0.55;         // opacity of the navy behind a card
inline constexpr int badgeHeight = 18, badgePadding = 6;
inline constexpr int numberBadge = 24;
inline constexpr int formLabel = 156;
inline constexpr QSize switchSize(36, 22);
inline constexpr int switchThumb = 18;
inline constexpr int sliderThumb = 18, sliderTrack = 4;
inline constexpr int sliderRow = 36, sliderLabel = 220, sliderValue = 70;
inline constexpr int radioRow = 28, radioCircle = 16, radioGap = 10;
inline constexpr double radioRing = 5;
inline constexpr int segmentedHeight = 32, segmentInset = 2, segmentPadding = 14;
inline constexpr int fieldHeight = 32, fieldPadding = 10;
inline constexpr double fieldHalo = 3;
inline constexpr int activityRow = 40, activityDotX = 3, activityTitleX = 18;

// Live flight
inline constexpr int railMinimum = 288;
inline constexpr int mapMinimumHeight = 280;
inline constexpr int liveCardMinimum = 480; // below it the telemetry is clipped
inline constexpr int narrowContent = 900;   // below it the telemetry takes two rows, as in a card below
inline constexpr int wideTelemetry = 560;
inline constexpr int liveBannerGap = 14; // around the stale banner of a low window, and always below it
inline constexpr int noteRow = 47, noteRowLow = 40;
inline constexpr int noteTop = 5, noteTopLow = 2; // of the message in it
inline constexpr int noteTextX = 36;
inline constexpr int railGapLow = 14, controlsGapLow = 6;
inline constexpr int cardInset = 20;
inline constexpr int telemetry = 106, telemetryNarrow = 138;
inline constexpr QMargins telemetryMargins(20, 24, 20, 28);
inline constexpr QMargins telemetryNarrowMargins(20, 12, 20, 12);
inline constexpr int telemetryRowGap = 6;
inline constexpr int pillTop = 15, pillBottom = 56; // below the top of a metric's caption
inline constexpr int timelineRow = 28;
inline constexpr double timelineMarker = 14;
inline constexpr double timelineMarkerX = 7;
inline constexpr double timelineTick = 12;
inline constexpr double timelineHalo = 4;
inline constexpr double timelineHole = 6;
inline constexpr double timelineTitleX = 28;
inline constexpr double timelineLineTitle = 16; // from the current marker's centre, in one line
inline constexpr QSize visitorPicture(72, 54);
inline constexpr double visitorCrop = 300.0 / 1280; // of the camera picture's width
inline constexpr int visitorGap = 14;
inline constexpr int logTime = 54;
inline constexpr int logTextX = 82;
inline constexpr int logFade = 24;

// Overview
inline constexpr int overviewRailMinimum = 320;
inline constexpr int overviewMap = 300;                         // least height while there is room
inline constexpr int overviewMapMinimum = 240;                  // the page scrolls below it
inline constexpr int mapCardMinimum = 264;                      // below it the keys of the legend are clipped
inline constexpr int mapTitle = 32, mapLegend = 36, mapGap = 8; // gap above the status strip
inline constexpr int legendSample = 22, legendGap = 8;
inline constexpr int statusStripTop = 16, statusStripCell = 76, cellPadding = 20;
inline constexpr QSize dronePicture(88, 36), dronePictureNarrow(58, 36);
inline constexpr int dronePictureTop = 16, dronePictureGap = 14;
inline constexpr int activityRows = 5, activityRowsWide = 10, activityRowsMinimum = 2;
inline constexpr int activityOverhang = 20; // below the map in low windows
inline constexpr QSize nowPicture(96, 72);
inline constexpr double nowCrop = 0.24; // of the camera picture's width
inline constexpr int nowPictureTop = 2; // below the top of the name
inline constexpr int nowHeading = 30;   // down to the top of the name
inline constexpr int bannerHeight = 48;
inline constexpr int missionFactsGap = 14; // between the phase and the facts
inline constexpr int pillHeight = 24, pillPadding = 8, pillRadius = 6;
inline constexpr QMargins bannerMargins(14, 0, 8, 0); // 20, less the halo of the dot
inline constexpr QMargins armSwitchMargins(14, 12, 12, 12);
inline constexpr int staleIconX = 16, staleTextX = 50;

// Cameras
inline constexpr int camerasLedeWidth = 680;
inline constexpr int cameraMinimum = 300, cameraRowGap = 32;
inline constexpr double cameraRatio = 16.0 / 9;
inline constexpr double cameraDot = 7;
inline constexpr int toggleRow = 66;
inline constexpr int cameraColumns = 3; // fewer cameras leave columns empty

// History
inline constexpr int historyPane = 376, historyPaneNarrow = 320;
inline constexpr int historyLeft = 40, historyLeftNarrow = 28, historyRight = 24;
inline constexpr int historyModes = 186; // least width of the choice between visits and patterns
inline constexpr int recordRow = 60, dayRow = 30, recordInset = 12, recordTitleTop = 10;
inline constexpr int selectionBar = 3;
inline constexpr QSize thumbnail(36, 24);
inline constexpr int thumbnailTop = 28; // in the row, beside the second line
inline constexpr int chevron = 14;
inline constexpr int menuButtonMinimum = 60;
inline constexpr double menuText = 320; // longer options are elided
inline constexpr int detailLeft = 32, detailRight = 40;
inline constexpr int detailLog = 120;         // height that the replay map leaves for the log
inline constexpr int detailTwoColumns = 1100; // from this width on
inline constexpr int detailSecondColumn = 400;
inline constexpr QSize alertPicture(192, 108), alertPictureWide(384, 216);
inline constexpr int responseBar = 6, responseGap = 2, responseRow = 25, responseTextX = 16;
inline constexpr int emptyIcon = 40, emptyWidth = 340;
inline constexpr int replaySlider = 28;
inline constexpr double replayTrack = 4, replayThumb = 14, replayMark = 6;

// Settings
inline constexpr int settingsWidth = 860;
inline constexpr QSize limitsSketch(150, 100);
inline constexpr int limitsSketchGap = 38, limitsSketchWords = 8; // gaps left of the map and below it
inline constexpr int radioIndent = 26;
inline constexpr int hostField = 220, portField = 70, topicField = 240;
inline constexpr int trackingWidth = 560;
inline constexpr int formLine = 36;
inline constexpr double ruleBullet = 5;
inline constexpr int ruleTextX = 17, ruleLine = 28;

// Welcome
inline constexpr int welcomeColumn = 560, welcomeSteps = 520;
inline constexpr int welcomeBottom = 32;
inline constexpr int heroMinimum = 136, heroFade = 88, heroFadeLow = 40;
inline constexpr int welcomeShield = 22;

// The approval card
inline constexpr int approvalCard = 520;
inline constexpr int approvalPicture = 250;
inline constexpr int approvalPadding = 28;
inline constexpr int approvalBar = 6;
inline constexpr int approvalMetrics[] = {116, 116, 124, 108}; // widths of the columns
inline constexpr int approvalNoteRow = 18;
inline constexpr int approvalButtons[] = {174, 278}; // widths: Ignore, Launch drone
inline constexpr double approvalCrop = 0.8125;       // of the camera picture's width
inline constexpr QPointF approvalFocus(0.395, 0.43); // of the visitor in the crop
inline constexpr int enlargedCard = 1040;
inline constexpr double enlargedRatio = 16.0 / 9;
inline constexpr QMargins enlargedMargins(28, 20, 28, 20);
inline constexpr int enlargedLower = 106; // height below picture and bar
inline constexpr int enlargedLastMetric = 68;
inline constexpr int enlargedAround = 16; // least distance to the window's edges
inline constexpr QSize insetMap(156, 104), insetMapEnlarged(234, 156);
inline constexpr int insetWords = 36, insetWordsIndent = 10, insetEdge = 12, insetRadius = 8;
inline constexpr int chipInset = 16;
inline constexpr int chipHeight = 24;
inline constexpr int chipPadding = 10;
inline constexpr double chipText = 200; // at most

// The landing confirmation
inline constexpr int confirmationCard = 420;
inline constexpr QMargins confirmationMargins(28, 28, 28, 24);
inline constexpr int landingCard = 328, landingSide = 20; // wider than the rail, at each side
inline constexpr QMargins landingMargins(20, 24, 20, 24);
inline constexpr int factsGap = 11; // below the hairline

} // namespace velmora::Measure
