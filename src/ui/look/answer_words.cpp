#include "ui/look/answer_words.h"

#include "language/language.h"
#include "ui/look/words.h"

namespace velmora {

QString sourceText(CommandSource source) {
    switch (source) {
    case CommandSource::card:
        return Words::tr("on the alert's card");
    case CommandSource::overview:
        return Words::tr("on the overview");
    case CommandSource::live:
        return Words::tr("on Live flight");
    case CommandSource::menu:
        return Words::tr("from the menu");
    case CommandSource::shortcut:
        return Words::tr("with the keyboard shortcut");
    case CommandSource::tray:
        return Words::tr("from the tray");
    case CommandSource::notification:
        return Words::tr("from the notification");
    case CommandSource::selfCheck:
        break;
    }
    return Words::tr("in the self-check");
}

QString answerText(const GivenAnswer& answer, Date alerted) {
    const QString after = duration(answer.time - alerted);
    const bool approved = answer.command == Command::approve;
    if (!answer.source)
        return (approved ? Words::tr("You approved %1 after the alert.")
                         : Words::tr("You ignored the alert after %1."))
            .arg(after);
    return (approved ? Words::tr("You approved %1, %2 after the alert.")
                     : Words::tr("You ignored the alert %1, after %2."))
        .arg(sourceText(*answer.source), after);
}

} // namespace velmora
