#include "ui/look/fonts.h"

#include <QFontDatabase>

namespace velmora::SBFont {

namespace {

constexpr double pointsPerPixel = 72.0 / 96;

QString familyOf(Face face) {
    const bool display = face == Face::displayMedium || face == Face::displaySemiBold;
    return display ? QStringLiteral("Inter Display") : QStringLiteral("Inter");
}

QFont::Weight weightOf(Face face) {
    switch (face) {
    case Face::medium:
    case Face::displayMedium:
        return QFont::Medium;
    case Face::semiBold:
    case Face::displaySemiBold:
        return QFont::DemiBold;
    case Face::regular:
        break;
    }
    return QFont::Normal;
}

} // namespace

bool registerBundled() {
    bool complete = true;
    for (const char* name :
         {"Inter-Regular", "Inter-Medium", "Inter-SemiBold", "InterDisplay-Medium", "InterDisplay-SemiBold"})
        complete &=
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/%1.otf").arg(QLatin1String(name))) >= 0;
    return complete;
}

Face faceFor(QFont::Weight weight) {
    if (weight == QFont::Medium)
        return Face::medium;
    if (weight == QFont::DemiBold || weight == QFont::Bold)
        return Face::semiBold;
    return Face::regular;
}

QFont font(Face face, double pixels) {
    QFont font(familyOf(face));
    font.setWeight(weightOf(face));
    font.setPointSizeF(pixels * pointsPerPixel);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace velmora::SBFont
