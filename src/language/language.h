#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace velmora {

/// Translation context of the texts outside of QObject classes: `Words::tr("Docked")`.
class Words {
    Q_DECLARE_TR_FUNCTIONS(velmora::Words)
};

/// The language of texts, dates and numbers while it exists: the first of the desktop's languages that the
/// program speaks (English, German, French), else English. Create it after the application and before the
/// first widget.
class Language {
public:
    explicit Language(const QLocale& desktop = QLocale::system());
    ~Language();
    Q_DISABLE_COPY_MOVE(Language)

private:
    QTranslator ofQt_, texts_;
};

/// The form of dates and numbers in the language; English without one.
const QLocale& displayLocale();

} // namespace velmora
