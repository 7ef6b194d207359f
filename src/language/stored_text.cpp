#include "language/stored_text.h"

#include "language/language.h"
#include "model/notice_texts.h"

namespace velmora {

namespace {

constexpr const char* context = "StoredText";

/// Marks the texts for the translators; they are written into files elsewhere. Inserted values are "%1".
[[maybe_unused]] constexpr const char* texts[] = {
    QT_TRANSLATE_NOOP("StoredText", "%1 camera: someone you don't know"),
    QT_TRANSLATE_NOOP("StoredText", "You approved the launch"),
    QT_TRANSLATE_NOOP("StoredText", "Airborne at %1 m — heading to the visitor"),
    QT_TRANSLATE_NOOP("StoredText", "Following at %1 m"),
    QT_TRANSLATE_NOOP("StoredText", "Following — handed over to DJI tracking"),
    QT_TRANSLATE_NOOP("StoredText", "At your boundary — holding inside the %1 m buffer"),
    QT_TRANSLATE_NOOP("StoredText", "Gust of %1 km/h — recovered and back on station"),
    QT_TRANSLATE_NOOP("StoredText", "Visitor has crossed your boundary"),
    QT_TRANSLATE_NOOP("StoredText", "Visitor has left your grounds"),
    QT_TRANSLATE_NOOP("StoredText", "Holding position at %1 m"),
    QT_TRANSLATE_NOOP("StoredText", "Following again"),
    QT_TRANSLATE_NOOP("StoredText", "Coming home"),
    QT_TRANSLATE_NOOP("StoredText", "Coming home — you asked"),
    QT_TRANSLATE_NOOP("StoredText", "Battery below %1% — coming home"),
    QT_TRANSLATE_NOOP("StoredText", "Landing now where it is — you asked"),
    QT_TRANSLATE_NOOP("StoredText", "Over the pad — landing"),
    QT_TRANSLATE_NOOP("StoredText", "Landed and docked"),
    QT_TRANSLATE_NOOP("StoredText", "Landed away from the pad — please collect it"),
    QT_TRANSLATE_NOOP("StoredText", "System armed"),
    QT_TRANSLATE_NOOP("StoredText", "System disarmed — detections will be logged only"),
    QT_TRANSLATE_NOOP("StoredText", "Visitor left your grounds"),
    QT_TRANSLATE_NOOP("StoredText", "You sent the drone home"),
    QT_TRANSLATE_NOOP("StoredText", "Came home on low battery"),
    QT_TRANSLATE_NOOP("StoredText", "You landed the drone"),
    QT_TRANSLATE_NOOP("StoredText", "You ignored the alert"),
    QT_TRANSLATE_NOOP("StoredText", "Alert expired — drone stayed docked"),
    QT_TRANSLATE_NOOP("StoredText", "Logged while disarmed"),
    QT_TRANSLATE_NOOP("StoredText", "Too windy to fly — drone stayed docked"),
    QT_TRANSLATE_NOOP("StoredText", "Unknown person"),
    QT_TRANSLATE_NOOP("StoredText", "Camera"),
    QT_TRANSLATE_NOOP("StoredText", "Driveway"),
    QT_TRANSLATE_NOOP("StoredText", "Front lawn"),
    QT_TRANSLATE_NOOP("StoredText", "East garden"),
};

/// Cleaned for display, and in the chosen language if it is one of `texts`.
QString translated(std::string_view text) {
    return QCoreApplication::translate(context, toQString(text).toUtf8());
}

} // namespace

QString toQString(std::string_view text) {
    QString words = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& character : words) {
        const char16_t code = character.unicode();
        const bool control = code < 0x20 || (code >= 0x7f && code < 0xa0);
        const bool breaksLine = code == 0x2028 || code == 0x2029;
        const bool turnsDirection = code >= 0x202a && code <= 0x202e;
        if (control || breaksLine || turnsDirection)
            character = ' ';
    }
    return words;
}

QString shownText(std::string_view stored) {
    const auto notice = readNotice(stored);
    return notice && notice->inserted
               ? translated(noticeText(notice->kind, "%1")).arg(translated(*notice->inserted))
               : translated(stored);
}

QString nameInSentence(const QString& name) {
    return displayLocale().language() == QLocale::English ? name.toLower() : name;
}

} // namespace velmora
