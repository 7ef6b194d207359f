#pragma once

#include "model/enums.h"
#include "ui/blocks/headline.h"

#include <QColor>

namespace velmora {

/// The dot that stands for an outcome everywhere: flown, too windy, or docked otherwise.
QColor outcomeColor(Outcome outcome);

/// The outcome in words.
QString outcomeText(Outcome outcome);

/// The outcome as a headline with its last words emphasised.
Sentence outcomeSentence(Outcome outcome);

} // namespace velmora
