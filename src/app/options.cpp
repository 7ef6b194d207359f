#include "app/options.h"

#include <QCommandLineParser>

namespace velmora {

namespace {

constexpr int usageError = 2;

/// Removes the options that Qt handles itself, such as "-session ID" when a session is restored.
QStringList withoutToolkitOptions(const QStringList& arguments) {
    static const QStringList toolkit{"-session", "-platform", "-display"};
    QStringList own;
    for (qsizetype i = 0; i < arguments.size(); ++i)
        if (toolkit.contains(arguments[i]))
            ++i; // and its value
        else
            own.append(arguments[i]);
    return own;
}

} // namespace

std::variant<Options, Message> readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Desktop companion for a home-security drone: shows who the cameras see, asks before the drone "
        "flies, and keeps a record of every visit."));
    const QCommandLineOption help({"h", "help"}, QStringLiteral("Show this text."));
    const QCommandLineOption version({"v", "version"}, QStringLiteral("Show the version."));
    const QCommandLineOption hidden("hidden", QStringLiteral("Start with no window; the tray opens it."));
    parser.addOptions({help, version, hidden});
    if (!parser.parse(withoutToolkitOptions(arguments)))
        return Message{parser.errorText() + QStringLiteral("\nTry --help.\n"), usageError};
    if (!parser.positionalArguments().isEmpty())
        return Message{QStringLiteral("Unexpected argument '%1'.\nTry --help.\n")
                           .arg(parser.positionalArguments().constFirst()),
                       usageError};
    if (parser.isSet(help))
        return Message{parser.helpText()};
    if (parser.isSet(version))
        return Message{QStringLiteral("velmora " VELMORA_VERSION "\n")};
    return Options{parser.isSet(hidden)};
}

} // namespace velmora
