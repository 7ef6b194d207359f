#pragma once

#include <QString>

#include <string_view>

namespace velmora {

/// Decodes UTF-8 for display: control, line-break and bidi-override characters become spaces.
QString toQString(std::string_view text);

/// A text of a record or a live state for display. What Velmora itself writes into files in English
/// (outcomes, notices, the names of the demo's cameras) is translated; any other text is shown as it is.
QString shownText(std::string_view stored);

/// A camera's name within a sentence: in lower case in English, unchanged in other languages.
QString nameInSentence(const QString& name);

} // namespace velmora
