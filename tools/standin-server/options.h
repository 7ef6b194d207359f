#pragma once

#include "model/date.h"
#include "model/enums.h"

#include <QHostAddress>
#include <QStringList>

#include <chrono>
#include <optional>
#include <variant>

namespace velmora::standin {

/// Command line options of the stand-in server.
struct Options {
    QHostAddress host{QHostAddress::LocalHost};
    quint16 port = 8765;
    Scenario visitor = Scenario::driveway;
    Seconds every{90};
    QByteArray version = "1.0.0"; ///< empty leaves the header out

    std::chrono::milliseconds delay{0}; ///< before each answer
    std::optional<int> status;          ///< replaces the status of every answer
    std::optional<int> truncateAfter;   ///< close the connection after this many bytes of the body
    bool drip = false;                  ///< send one byte a second
    bool silent = false;                ///< never answer

    /// Whether answers are deliberately malformed, which requires a plain socket.
    bool isBroken() const { return truncateAfter || drip || silent; }
};

/// Text to print instead of serving; to standard error if `isError`.
struct OptionsText {
    QString text;
    bool isError = false;
};

/// Reads the command line; `arguments` starts with the program's name.
std::variant<Options, OptionsText> readOptions(const QStringList& arguments);

} // namespace velmora::standin
