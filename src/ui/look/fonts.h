#pragma once

#include <QFont>

/// The typeface: Inter in five faces, embedded as resources.
namespace velmora::SBFont {

enum class Face { regular, medium, semiBold, displayMedium, displaySemiBold };

/// Registers the five faces. Call once, before the first widget is created. Returns false if one of them
/// cannot be loaded; texts then show in a system font.
bool registerBundled();

/// Medium for medium, semi-bold for semi-bold and bold, regular for every other weight.
Face faceFor(QFont::Weight weight);

/// The face at a size in pixels, which may be fractional. Relies on Qt::AA_Use96Dpi, which makes a pixel size
/// the same on every screen.
QFont font(Face face, double pixels);

} // namespace velmora::SBFont
