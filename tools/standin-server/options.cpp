#include "standin-server/options.h"

#include <QCommandLineParser>

namespace velmora::standin {

namespace {

/// An option with a value: how it is announced, and how its text is taken. A text that is not taken is an
/// error.
struct Valued {
    const char* name;
    const char* value;
    const char* description;
    bool (*take)(Options&, const QString&);
};

template <class Target>
bool takeWhole(const QString& text, int low, int high, Target& target) {
    bool isWhole = false;
    const int number = text.toInt(&isWhole);
    if (!isWhole || number < low || number > high)
        return false;
    target = Target(number);
    return true;
}

bool takePort(Options& options, const QString& text) {
    return takeWhole(text, 1, 65535, options.port);
}
bool takeHost(Options& options, const QString& text) {
    return options.host.setAddress(text == QLatin1String("localhost") ? QStringLiteral("127.0.0.1") : text);
}
bool takeVisitor(Options& options, const QString& text) {
    const auto scenario = fromRawValue<Scenario>(text.toStdString());
    options.visitor = scenario.value_or(options.visitor);
    return scenario.has_value();
}
bool takeEvery(Options& options, const QString& text) {
    return takeWhole(text, 0, 86'400, options.every);
}
bool takeVersion(Options& options, const QString& text) {
    options.version = text.toUtf8();
    return !text.contains('\n') && !text.contains('\r');
}
bool takeDelay(Options& options, const QString& text) {
    return takeWhole(text, 0, 3'600'000, options.delay);
}
bool takeStatus(Options& options, const QString& text) {
    return takeWhole(text, 200, 599, options.status.emplace());
}
bool takeTruncate(Options& options, const QString& text) {
    return takeWhole(text, 0, 1'000'000'000, options.truncateAfter.emplace());
}

constexpr Valued valued[] = {
    {"port", "PORT", "TCP port to listen on, 1 to 65535 (8765).", takePort},
    {"host", "ADDRESS", "Address to listen on (127.0.0.1: this computer only).", takeHost},
    {"visitor", "NAME", "Who comes: driveway, garden or front (driveway).", takeVisitor},
    {"every", "SECONDS", "Time between two visits, 0 for one visit only (90).", takeEvery},
    {"version", "TEXT", "Version that the server tells, \"\" for none (1.0.0).", takeVersion},
    {"delay", "MS", "For testing: wait before each answer.", takeDelay},
    {"status", "CODE", "For testing: answer with this HTTP status.", takeStatus},
    {"truncate", "N", "For testing: hang up after N bytes of the body.", takeTruncate},
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
        if (parser.isSet(option.name) && !option.take(options, parser.value(option.name)))
            return error(
                QStringLiteral("\"%1\" does not go with --%2.").arg(parser.value(option.name), option.name));
    options.drip = parser.isSet(QStringLiteral("drip"));
    options.silent = parser.isSet(QStringLiteral("silent"));
    return options;
}

} // namespace velmora::standin
