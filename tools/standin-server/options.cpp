#include "standin-server/options.h"

#include <QCommandLineParser>

namespace velmora::standin {

namespace {

/// An option with a value. `parse` stores the text into the options and returns false if it is invalid.
struct Valued {
    const char* name;
    const char* value;
    const char* description;
    bool (*parse)(Options&, const QString&);
};

template <class Target>
bool parseInteger(const QString& text, int low, int high, Target& target) {
    bool isInteger = false;
    const int number = text.toInt(&isInteger);
    if (!isInteger || number < low || number > high)
        return false;
    target = Target(number);
    return true;
}

bool parsePort(Options& options, const QString& text) {
    return parseInteger(text, 1, 65535, options.port);
}
bool parseHost(Options& options, const QString& text) {
    return options.host.setAddress(text == QLatin1String("localhost") ? QStringLiteral("127.0.0.1") : text);
}
bool parseVisitor(Options& options, const QString& text) {
    const auto scenario = fromRawValue<Scenario>(text.toStdString());
    options.visitor = scenario.value_or(options.visitor);
    return scenario.has_value();
}
bool parseEvery(Options& options, const QString& text) {
    return parseInteger(text, 0, 86'400, options.every);
}
bool parseVersion(Options& options, const QString& text) {
    options.version = text.toUtf8();
    return !text.contains('\n') && !text.contains('\r');
}
bool parseDelay(Options& options, const QString& text) {
    return parseInteger(text, 0, 3'600'000, options.delay);
}
bool parseStatus(Options& options, const QString& text) {
    return parseInteger(text, 200, 599, options.status.emplace());
}
bool parseTruncate(Options& options, const QString& text) {
    return parseInteger(text, 0, 1'000'000'000, options.truncateAfter.emplace());
}

constexpr Valued valued[] = {
    {"port", "PORT", "TCP port to listen on, 1 to 65535 (8765).", parsePort},
    {"host", "ADDRESS", "Address to listen on (127.0.0.1: this computer only).", parseHost},
    {"visitor", "NAME", "Who comes: driveway, garden or front (driveway).", parseVisitor},
    {"every", "SECONDS", "Time between two visits, 0 for one visit only (90).", parseEvery},
    {"version", "TEXT", "Version that the server tells, \"\" for none (1.0.0).", parseVersion},
    {"delay", "MS", "For testing: wait before each answer.", parseDelay},
    {"status", "CODE", "For testing: answer with this HTTP status.", parseStatus},
    {"truncate", "N", "For testing: hang up after N bytes of the body.", parseTruncate},
};

void announce(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("A stand-in for a velmora server: serves the app API over a simulated site.\n"
                       "The first visitor comes two seconds after the start."));
    parser.addOption({{"h", "help"}, QStringLiteral("Show this text.")});
    for (const Valued& option : valued)
        parser.addOption({option.name, option.description, option.value});
    parser.addOption({"drip", QStringLiteral("For testing: answer with one byte a second.")});
    parser.addOption({"silent", QStringLiteral("For testing: accept connections and never answer.")});
}

OptionsText error(const QString& text) {
    return {text + QStringLiteral("\nTry --help.\n"), true};
}

} // namespace

std::variant<Options, OptionsText> readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    announce(parser);
    if (!parser.parse(arguments))
        return error(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return OptionsText{parser.helpText(), false};
    if (!parser.positionalArguments().isEmpty())
        return error(QStringLiteral("Unexpected argument \"%1\".").arg(parser.positionalArguments().first()));

    Options options;
    for (const Valued& option : valued)
        if (parser.isSet(option.name) && !option.parse(options, parser.value(option.name)))
            return error(
                QStringLiteral("\"%1\" does not go with --%2.").arg(parser.value(option.name), option.name));
    options.drip = parser.isSet(QStringLiteral("drip"));
    options.silent = parser.isSet(QStringLiteral("silent"));
    return options;
}

} // namespace velmora::standin
