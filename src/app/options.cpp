#include "app/options.h"

#include "desktop/app_service.h"

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

Message errorOf(const QString& text) {
    return {text + QStringLiteral("\nTry --help.\n"), usageError};
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
    const QCommandLineOption section(
        "section", QStringLiteral("Show this section: overview, live or history."), QStringLiteral("name"));
    parser.addOptions({help, version, hidden, section});
    if (!parser.parse(withoutToolkitOptions(arguments)))
        return errorOf(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return errorOf(
            QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(help))
        return Message{parser.helpText()};
    if (parser.isSet(version))
        return Message{QStringLiteral("velmora " VELMORA_VERSION "\n")};
    if (!parser.isSet(section))
        return Options{parser.isSet(hidden), std::nullopt};
    if (parser.isSet(hidden))
        return errorOf(
            QStringLiteral("--section shows the window, --hidden does not: use only one of them."));
    const QString name = parser.value(section);
    if (const auto shown = AppService::sectionOfAction(name))
        return Options{false, shown};
    return errorOf(QStringLiteral("Unknown section '%1'.").arg(name));
}

} // namespace velmora
