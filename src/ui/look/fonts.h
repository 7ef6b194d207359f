#pragma once

#include <QFont>

/// The typeface: Inter in five faces, carried among the program's resources.
namespace velmora::SBFont {

enum class Face { regular, medium, semiBold, displayMedium, displaySemiBold };

/// Makes the five faces known to this process. Called once, before the first screen is built; false when one
/// of them cannot be loaded, and texts then show in the system's own face.
bool registerBundled();

/// Medium for medium, semi-bold for semi-bold and bold, regular for every other weight.
Face faceFor(QFont::Weight weight);

/// The face at a size in pixels, which need not be whole. The program runs with Qt::AA_Use96Dpi, so that a
/// pixel size is the same on every screen.
QFont font(Face face, double pixels);

} // namespace velmora::SBFont
