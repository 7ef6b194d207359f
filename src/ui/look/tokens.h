#pragma once

#include <QColor>
#include <QLinearGradient>

/// The colours and gradients of the user interface.
namespace velmora::SB {

inline constexpr QColor ink{16, 40, 60};
inline constexpr QColor body{75, 99, 116};
inline constexpr QColor muted{82, 107, 122};
inline constexpr QColor rule{202, 219, 228};
inline constexpr QColor rule2{214, 226, 232};
inline constexpr QColor edge{126, 145, 157}; ///< of controls, 3 : 1 on page and panel
inline constexpr QColor panel{245, 248, 251};
inline constexpr QColor page{255, 255, 255};
inline constexpr QColor teal{19, 126, 124};
inline constexpr QColor blue{35, 111, 175};
inline constexpr QColor purple{106, 66, 168};
inline constexpr QColor dotBg{218, 241, 238};
inline constexpr QColor dot{56, 143, 151};
inline constexpr QColor navy{5, 22, 35};
inline constexpr QColor navy2{7, 34, 55};
inline constexpr QColor navy3{16, 43, 64};
inline constexpr QColor dTitle{247, 251, 255};
inline constexpr QColor dBody{202, 219, 228};
inline constexpr QColor dLabel{165, 207, 219};
inline constexpr QColor dTeal{132, 222, 212};
inline constexpr QColor lilac{196, 163, 245};
inline constexpr QColor softBlue{144, 189, 250};
inline constexpr QColor alert{180, 35, 24};
inline constexpr QColor caution{156, 100, 0};
inline constexpr QColor none{0, 0, 0, 0}; ///< no fill, no border

/// The colour at an opacity from 0 to 1.
inline QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

/// `over` painted on `under` with an opacity of `share`, 0 to 1.
QColor mixed(const QColor& under, const QColor& over, double share);

/// Lilac to teal from x = left to x = right, for dark surfaces.
QLinearGradient gradientDark(double left, double right);
/// Purple to teal from x = left to x = right, for light surfaces.
QLinearGradient gradientLight(double left, double right);

} // namespace velmora::SB
