#pragma once

#include <QStringList>

#include <variant>

namespace velmora {

/// How the program was asked to start.
struct Options {
    bool hidden = false; ///< with no window, for the autostart
};

/// What to print instead of starting.
struct Message {
    QString text;
    int exitCode = 0;
};

/// Reads the command line: the options, or the text for --help, --version or a mistake.
std::variant<Options, Message> readOptions(const QStringList& arguments);

} // namespace velmora
