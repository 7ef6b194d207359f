#include "language/language.h"

#include <QLibraryInfo>

#include <algorithm>

namespace velmora {

namespace {

constexpr QLocale::Language languages[] = {QLocale::English, QLocale::German, QLocale::French};

QLocale& chosenLocale() {
    static QLocale locale(QLocale::English);
    return locale;
}

/// With the desktop's territory if the language is the desktop's, such as Austria's "Jänner".
QLocale localeFor(const QLocale& desktop) {
    for (const QString& name : desktop.uiLanguages()) {
        const QLocale wanted(name);
        if (std::ranges::find(languages, wanted.language()) != std::end(languages))
            return wanted;
    }
    return QLocale(QLocale::English);
}

void install(QTranslator& translator, const QString& file, const QString& directory) {
    if (translator.load(displayLocale(), file, QStringLiteral("_"), directory))
        QCoreApplication::installTranslator(&translator);
}

} // namespace

Language::Language(const QLocale& desktop) {
    chosenLocale() = localeFor(desktop);
    QLocale::setDefault(displayLocale());
    if (displayLocale().language() == QLocale::English)
        return;
    install(ofQt_, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(texts_, QStringLiteral("velmora"), QStringLiteral(":/translations"));
}

Language::~Language() {
    chosenLocale() = QLocale(QLocale::English);
    QLocale::setDefault(displayLocale());
}

const QLocale& displayLocale() {
    return chosenLocale();
}

} // namespace velmora
