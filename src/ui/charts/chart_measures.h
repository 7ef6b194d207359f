#pragma once

#include <QSize>

/// The sizes of the charts in logical pixels.
namespace velmora::ChartMeasure {

// The matrix of weekday and hour
inline constexpr int matrixColumn = 26, matrixColumnMost = 40, matrixLabels = 56;
inline constexpr int matrixNumbers = 20; // numbers from this column on
inline constexpr int matrixHours = 12, matrixHoursGap = 5;
inline constexpr int matrixColumnSmall = 14, matrixLabelsSmall = 24;
inline constexpr int matrixColumnLeast = 10;
inline constexpr int matrixCellGap = 2;
inline constexpr double matrixOutline = 1.5, matrixOutlineRadius = 7, matrixOutset = 4;

// Rows with a count
inline constexpr int countRow = 28, countBar = 6, countName = 96, countNumber = 45;
inline constexpr double countBarRadius = 3;
inline constexpr int countTextX = 16;

// The distance from the boundary over a flight
inline constexpr int boundaryChart = 118;

// The heat map
inline constexpr QSize heatKey(84, 8);
inline constexpr int heatKeyRow = 16, heatKeyGap = 8;
inline constexpr double heatPlace = 6; // least radius of the ring around a place

} // namespace velmora::ChartMeasure
