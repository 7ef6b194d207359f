#include "ui/charts/outcomes.h"

#include "ui/look/tokens.h"
#include "ui/look/words.h"

namespace velmora {

QColor outcomeColor(Outcome outcome) {
    if (flew(outcome))
        return SB::teal;
    return outcome == Outcome::windTooHigh ? SB::caution : SB::rule;
}

QString outcomeText(Outcome outcome) {
    return shownText(rawValue(outcome));
}

Sentence outcomeSentence(Outcome outcome) {
    constexpr qsizetype emphasisedWords = 2;
    const QString text = outcomeText(outcome);
    const QString emphasis = text.section(' ', -emphasisedWords);
    return {text.chopped(emphasis.size()), emphasis, {}};
}

} // namespace velmora
