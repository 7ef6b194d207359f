#pragma once

#include "model/date.h"
#include "model/enums.h"

#include <QHostAddress>
#include <QStringList>

#include <chrono>
#include <optional>
#include <variant>

namespace velmora::standin {

/// What the command line asks of the stand-in server.
struct Options {
    QHostAddress host{QHostAddress::LocalHost};
    quint16 port = 8765;
    Scenario visitor = Scenario::driveway;
    Seconds every{90};
    QByteArray version = "1.0.0"; ///< empty leaves the header out

    std::chrono::milliseconds delay{0}; ///< before each answer
    std::optional<int> status;          ///< of every answer, in place of the right one
    std::optional<int> truncateAfter;   ///< bytes of the body, then the connection closes
    bool drip = false;                  ///< one byte a second
    bool silent = false;                ///< no answer at all

    /// An answer that is broken on purpose, which takes a bare socket.
    bool isBroken() const { return truncateAfter || drip || silent; }
};

/// What to print instead of serving, and where.
struct OptionsText {
    QString text;
    bool isError = false;
};

/// Reads the command line, the program's name first.
std::variant<Options, OptionsText> readOptions(const QStringList& arguments);

} // namespace velmora::standin
