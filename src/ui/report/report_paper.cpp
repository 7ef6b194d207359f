#include "ui/report/report_paper.h"

#include <algorithm>
#include <iterator>

namespace velmora {

namespace {

/// As in the Unicode Common Locale Data Repository.
constexpr QLocale::Territory letterTerritories[] = {
    QLocale::Belize,     QLocale::Canada,      QLocale::Chile,     QLocale::Colombia,    QLocale::CostaRica,
    QLocale::ElSalvador, QLocale::Guatemala,   QLocale::Mexico,    QLocale::Nicaragua,   QLocale::Panama,
    QLocale::PuertoRico, QLocale::Philippines, QLocale::Venezuela, QLocale::UnitedStates};

} // namespace

QLocale paperLocale() {
    for (const char* name : {"LC_ALL", "LC_PAPER", "LANG"})
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            return QLocale(value);
    return QLocale::c();
}

QPageSize paperFor(const QLocale& locale) {
    const bool letter =
        locale.language() != QLocale::C &&
        std::ranges::find(letterTerritories, locale.territory()) != std::end(letterTerritories);
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

} // namespace velmora
