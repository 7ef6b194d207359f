#pragma once

#include "model/enums.h"
#include "ui/blocks/headline.h"

#include <QColor>

namespace velmora {

/// Colour of an outcome's dot: flown, too windy, or docked for another reason.
QColor outcomeColor(Outcome outcome);

/// The outcome as a short text.
QString outcomeText(Outcome outcome);

/// The outcome as a headline with its last two words emphasised.
Sentence outcomeSentence(Outcome outcome);

} // namespace velmora
