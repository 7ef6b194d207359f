#pragma once

#include "model/enums.h"

#include <QStringList>

#include <optional>
#include <variant>

namespace velmora {

/// The command line options.
struct Options {
    bool hidden = false;            ///< start without a window, for the autostart
    std::optional<Section> section; ///< show this one first; only if not hidden
};

/// The text to print instead of starting.
struct Message {
    QString text;
    int exitCode = 0;
};

/// Parses the command line. Returns the options, or the text for --help, --version or an error.
std::variant<Options, Message> readOptions(const QStringList& arguments);

} // namespace velmora
