#pragma once

#include "ui/look/fonts.h"

namespace velmora {

/// The style of a text. Sizes are in pixels.
struct TextStyle {
    SBFont::Face face = SBFont::Face::regular;
    double size = 0;
    double line = 0;     ///< height of one line
    double tracking = 0; ///< added between two letters, not after the last
    bool upperCase = false;
    bool tabular = false; ///< every digit as wide as "0", so that a changing number moves nothing

    bool operator==(const TextStyle&) const = default;

    constexpr TextStyle withTabularDigits() const {
        TextStyle style = *this;
        style.tabular = true;
        return style;
    }
};

/// Every text style of the screens.
namespace Type {

using SBFont::Face;

inline constexpr TextStyle welcomeHeadline{Face::displayMedium, 44, 50, -0.9};
inline constexpr TextStyle headline{Face::displayMedium, 36, 44, -0.6};
inline constexpr TextStyle historyHeadline{Face::displayMedium, 34, 40, -0.6};
inline constexpr TextStyle recordTitle{Face::displayMedium, 28, 36, -0.4};
inline constexpr TextStyle overlayTitle{Face::displayMedium, 26, 32, -0.4};
inline constexpr TextStyle confirmationTitle{Face::displayMedium, 20, 28, -0.2};
inline constexpr TextStyle cardName{Face::displayMedium, 20, 28, -0.2};
inline constexpr TextStyle emptyTitle{Face::displayMedium, 22, 28, -0.2};
inline constexpr TextStyle wordmark{Face::displaySemiBold, 20, 28, -0.3};
inline constexpr TextStyle metric{Face::displayMedium, 24, 28, -0.3, false, true};
inline constexpr TextStyle telemetry{Face::displayMedium, 30, 36, -0.5, false, true};
inline constexpr TextStyle statusValue{Face::displayMedium, 18, 24, -0.1};
inline constexpr TextStyle unit{Face::medium, 12, 16};
inline constexpr TextStyle groupHeading{Face::semiBold, 15, 24};
inline constexpr TextStyle lede{Face::regular, 15, 24};
inline constexpr TextStyle overlayBody{Face::regular, 15, 23};
inline constexpr TextStyle confirmationBody{Face::regular, 14, 22};
inline constexpr TextStyle button{Face::semiBold, 13, 20};
inline constexpr TextStyle buttonLarge{Face::semiBold, 14, 20};
inline constexpr TextStyle link{Face::medium, 13, 20};
inline constexpr TextStyle rowTitle{Face::medium, 13.5, 20};
inline constexpr TextStyle rowTitleStrong{Face::semiBold, 13.5, 20};
inline constexpr TextStyle compactRow{Face::medium, 13, 20};
inline constexpr TextStyle body{Face::regular, 13, 20};
inline constexpr TextStyle label2Medium{Face::medium, 12, 18};
inline constexpr TextStyle emptyNote{Face::regular, 13.5, 22};
inline constexpr TextStyle bodyStrong{Face::semiBold, 13, 20};
inline constexpr TextStyle status{Face::semiBold, 14, 20};
inline constexpr TextStyle label2{Face::regular, 12, 18};
inline constexpr TextStyle label2Strong{Face::semiBold, 12, 18};
inline constexpr TextStyle linkStatus{Face::regular, 12, 16};
inline constexpr TextStyle connection{Face::medium, 12.5, 18};
inline constexpr TextStyle controlsNote{Face::regular, 12.5, 18};
inline constexpr TextStyle log{Face::regular, 12.5, 18};
inline constexpr TextStyle logTime{Face::regular, 12, 18, 0, false, true};
inline constexpr TextStyle legend{Face::regular, 11.5, 16};
inline constexpr TextStyle legendStrong{Face::semiBold, 11.5, 16};
inline constexpr TextStyle insetStrong{Face::semiBold, 11, 15};
inline constexpr TextStyle inset{Face::medium, 11, 15};
inline constexpr TextStyle overlayNote{Face::regular, 11.5, 18};
inline constexpr TextStyle eyebrow{Face::semiBold, 11, 16, 1.4, true};
inline constexpr TextStyle caption{Face::semiBold, 9, 12, 1.1, true};
inline constexpr TextStyle mapCaption{Face::semiBold, 9, 11, 1.1, true};
inline constexpr TextStyle badge{Face::semiBold, 10, 12, 0.6, true};
inline constexpr TextStyle stepText{Face::regular, 13, 19};
inline constexpr TextStyle numberBadge{Face::semiBold, 12, 16};
inline constexpr TextStyle segment{Face::medium, 12.5, 20};
inline constexpr TextStyle segmentChosen{Face::semiBold, 12.5, 20};
inline constexpr TextStyle sliderLabel{Face::semiBold, 13, 20};
inline constexpr TextStyle sliderValue{Face::medium, 13, 20, 0, false, true};
inline constexpr TextStyle staleTitle{Face::semiBold, 13, 18};
inline constexpr TextStyle staleText{Face::regular, 12.5, 18};
inline constexpr TextStyle staleTextStrong{Face::semiBold, 12.5, 18};
inline constexpr TextStyle menu{Face::medium, 12.5, 20};

} // namespace Type

} // namespace velmora
