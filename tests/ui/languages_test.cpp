#include "language/language.h"
#include "model/notice_texts.h"
#include "ui/charts/heat_map.h"
#include "ui/look/words.h"
#include "ui/screens/alert/approval_overlay.h"
#include "ui/screens/live/land_confirmation.h"
#include "ui/screens/welcome/welcome_view.h"
#include "ui/served_fixture.h"
#include "ui/text_recorder.h"

#include <QHelpEvent>
#include <QListView>
#include <QRegularExpression>
#include <QScrollArea>
#include <QToolTip>
#include <QTranslator>

namespace velmora {

namespace {

/// A language in which every text of the program is a third longer and has an accent on each letter.
class LongLanguage : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment, int) const override {
        const bool ours = QByteArray(context).startsWith("velmora::") || QByteArray(context) == "StoredText";
        if (!ours || QByteArray(comment) == "form of a date")
            return {};
        const QString english = QString::fromUtf8(text);
        QString translated;
        for (qsizetype i = 0; i < english.size(); ++i) {
            translated += accented(english[i]);
            if (english[i] == '%' && i + 1 < english.size())
                translated += english[++i];
        }
        const qsizetype added = english.size() / 3;
        return added < 2 ? translated
                         : '[' + translated + QStringLiteral(" öö öö").repeated(9).left(added - 2) + ']';
    }

private:
    static QChar accented(QChar letter) {
        static const QString plain = QStringLiteral("aceilnorstuyzACEILNORSTUYZ"),
                             marked = QStringLiteral("áçéíĺñóŕšťúýžÁÇÉÍĹÑÓŔŠŤÚÝŽ");
        const qsizetype index = plain.indexOf(letter);
        return index < 0 ? letter : marked[index];
    }
};

/// The program in the long language, at the window's least size.
class LanguagesTest : public ServedTest {
protected:
    void SetUp() override {
        QCoreApplication::installTranslator(&language_);
        ServedTest::SetUp();
    }
    void TearDown() override {
        ServedTest::TearDown();
        QCoreApplication::removeTranslator(&language_);
    }

    void expectWellSet(QWidget& widget, const std::string& where) {
        std::vector<DrawnText> texts;
        const auto isShown = [&] {
            texts = TextRecorder::textsOf(widget);
            return texts.size() > 4;
        };
        EXPECT_TRUE(waitUntil(isShown)) << where;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const DrawnText& text = texts[i];
            const std::string at = where + ": " + text.text.toStdString();
            EXPECT_TRUE(!text.text.endsWith(ellipsis) || hasToolTip(text.text)) << at << " is cut off";
            EXPECT_FALSE(isEnglish(text.text)) << at << " is not translated";
            EXPECT_TRUE(isInside(text)) << at << " is clipped";
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(overlap(text.rect, texts[j].rect))
                    << at << " is over " << texts[j].text.toStdString();
        }
    }
    /// The window, all of what can be scrolled into view, and what assistive technology and tooltips say.
    void expectWindowWellSet(const std::string& where) {
        expectWellSet(window(), where);
        for (const QWidget* widget : window().findChildren<QWidget*>())
            for (const QString& text :
                 {widget->accessibleName(), widget->accessibleDescription(), widget->toolTip()})
                EXPECT_FALSE(widget->isVisible() && isEnglish(text))
                    << where << ": " << text.toStdString() << " is not translated";
        for (const auto* area : window().findChildren<QScrollArea*>())
            if (area->isVisible() && area->widget()->height() > area->viewport()->height())
                expectWellSet(*area->widget(), where + ", scrolled");
    }
    void expectSectionsWellSet(const std::string& when) {
        for (const auto& [section, id] : rawValuesOf<Section>) {
            store().setSection(section);
            settle();
            settle(); // rows of a log get their heights
            expectWindowWellSet(when + ", " + std::string(id));
        }
    }

private:
    static constexpr QChar ellipsis{0x2026};

    /// Rows of lists cut their text off and show all of it in a tooltip.
    bool hasToolTip(const QString& text) {
        const QString start = text.chopped(1).trimmed();
        QStringList tips;
        for (const QWidget* widget : window().findChildren<QWidget*>())
            if (widget->isVisible())
                tips.append(widget->toolTip());
        for (const auto* list : window().findChildren<QListView*>())
            for (int row = 0; row < list->model()->rowCount(); ++row)
                tips += toolTipOf(*list, list->model()->index(row, 0)).split('\n');
        return std::ranges::any_of(tips, [&](const QString& tip) { return tip.startsWith(start); });
    }
    static QString toolTipOf(const QListView& list, const QModelIndex& row) {
        const QPoint at = list.visualRect(row).center();
        QHelpEvent event(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &event);
        const QString text = QToolTip::text();
        QToolTip::hideText();
        return text;
    }
    /// Small sizes of type are a little wider when they are drawn as text than when they are drawn as
    /// outlines.
    static bool isInside(const DrawnText& text) {
        const double tolerance = 1 + 0.05 * text.rect.width();
        return text.clip.left() <= text.rect.left() + tolerance &&
               text.rect.right() <= text.clip.right() + tolerance;
    }
    /// The letters that get no accent are too few for a word. Names of the program and of days stay.
    static bool isEnglish(const QString& text) {
        static const QRegularExpression word(QStringLiteral("[a-zA-Z]{3,}"));
        static const QRegularExpression name(
            QStringLiteral("velmora\\.local|Velmora|\\b(Mon|Tue|Wed|Thu|Fri|Sat|Sun)[a-z]*|November"),
            QRegularExpression::CaseInsensitiveOption);
        return QString(text).remove(name).contains(word);
    }
    static bool overlap(const QRectF& one, const QRectF& other) {
        const QRectF both = one.intersected(other);
        return both.width() > 1 && both.height() > one.height() / 3;
    }

    LongLanguage language_;
};

TEST_F(LanguagesTest, LongerTextsFitInTheSmallestWindow) {
    window().resize(1120, 720);
    settle();
    expectSectionsWellSet("docked");
    store().setSection(Section::history);
    settle();
    click(QCoreApplication::translate("velmora::HistoryList", "Patterns"));
    expectWindowWellSet("patterns");
    QTest::mouseClick(window().findChild<HeatMap*>(), Qt::LeftButton);
    settle();
    settle(); // rows of a log get their heights
    expectWindowWellSet("visits past a place");
    visit(Scenario::driveway);
    expectWellSet(*window().findChild<ApprovalOverlay*>(), "alert");
    approve();
    expectSectionsWellSet("taking off");
    fly(20);
    expectSectionsWellSet("following");
    store().setSection(Section::live);
    settle();
    click(QCoreApplication::translate("velmora::FlightControls", "Land now"));
    expectWellSet(*window().findChild<LandConfirmation*>(), "landing");
}

TEST_F(LanguagesTest, LongerTextsFitOverASilentLink) {
    window().resize(1120, 720);
    serve(mission(Phase::following));
    answer(LinkError{"Ŕéfúšéd"});
    tickAfter(5);
    settle();
    expectSectionsWellSet("silent");
    serve(mission(Phase::awaitingApproval));
    answer(LinkError{"Ŕéfúšéd"});
    tickAfter(5);
    settle();
    expectWellSet(*window().findChild<ApprovalOverlay*>(), "silent alert");
}

TEST_F(LanguagesTest, LongerTextsFitBeforeTheFirstVisit) {
    records({});
    store().setShowWelcome(true);
    window().resize(1120, 720);
    settle();
    expectWellSet(*window().findChild<WelcomeView*>(), "welcome");
    store().setShowWelcome(false);
    expectSectionsWellSet("no visits");
}

TEST(LanguageTest, GermanShowsTheTextsOfFilesAndTheFormOfDatesAndNumbers) {
    const Date january = dateFromSeconds(1'704'110'400);
    {
        const Language german(QLocale("de_AT"));
        for (int kind = 0; kind <= static_cast<int>(NoticeKind::disarmed); ++kind) {
            const std::string text = noticeText(static_cast<NoticeKind>(kind));
            EXPECT_NE(shownText(text), toQString(text)) << text;
        }
        for (const auto& [outcome, text] : rawValuesOf<Outcome>)
            EXPECT_NE(shownText(text), toQString(text)) << text;
        EXPECT_EQ(shownText("Driveway camera: someone you don't know"), "Kamera Einfahrt: unbekannte Person");
        EXPECT_EQ(shownText("Gate\n%1"), "Gate %1") << "a server's own text";
        EXPECT_EQ(oneDecimal(-3.25), "-3,2");
        EXPECT_EQ(dayName(january, january + Seconds{3.0 * 86'400}), QString::fromUtf8("Montag, 1. Jänner"));
        EXPECT_EQ(nameInSentence("Einfahrt"), "Einfahrt");
    }
    EXPECT_EQ(shownText("Driveway"), "Driveway") << "the language has gone";
    EXPECT_EQ(oneDecimal(-3.25), "-3.2");
}

TEST(LanguageTest, TheFirstLanguageThatTheProgramSpeaksIsChosen) {
    const struct {
        const char* desktop;
        QLocale::Language chosen;
    } cases[] = {{"de_CH", QLocale::German},
                 {"fr_CA", QLocale::French},
                 {"en_GB", QLocale::English},
                 {"is", QLocale::English}};
    for (const auto& [desktop, chosen] : cases) {
        const Language language{QLocale(desktop)};
        EXPECT_EQ(displayLocale().language(), chosen) << desktop;
    }
}

} // namespace

} // namespace velmora
