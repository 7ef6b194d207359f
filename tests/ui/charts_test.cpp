#include "ui/charts/count_bars.h"
#include "ui/charts/heat_map.h"
#include "ui/charts/heat_painting.h"
#include "ui/charts/pattern_words.h"
#include "ui/charts/visit_matrix.h"
#include "ui/map_fixture.h"

#include "support/random.h"
#include "support/time_zone.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QRegularExpression>
#include <QTest>

namespace velmora {

namespace {

struct Visit {
    int weekday;
    int hour;
    std::string camera;
};

VisitPatterns patternsOf(const std::vector<Visit>& visits) {
    VisitPatterns patterns{Site()};
    for (const Visit& visit : visits) {
        constexpr double monday = 1'762'128'000, hours = 3600; // 3 November 2025, UTC
        MissionRecord record;
        record.start = dateFromSeconds(monday + hours * (visit.weekday * hoursInDay + visit.hour));
        record.end = record.start;
        record.cameraName = visit.camera;
        patterns.add(record);
    }
    return patterns;
}

std::string sentenceOf(const std::vector<Visit>& visits, VisitSpan span = VisitSpan::month) {
    const Sentence sentence = patternSentence(patternsOf(visits), span);
    return (sentence.lead + '*' + sentence.emphasis + '*' + sentence.tail).toStdString();
}

/// Everything that a sentence can say of the visit.
QStringList truthsOf(const Visit& visit) {
    constexpr const char* days[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                    "Friday", "Saturday", "Sunday"};
    const QString day = days[visit.weekday];
    const QString when = visit.hour < 6    ? "after midnight on " + day + 's'
                         : visit.hour < 12 ? "on " + day + " mornings"
                         : visit.hour < 18 ? "on " + day + " afternoons"
                         : visit.hour < 22 ? "on " + day + " evenings"
                                           : "late on " + day + 's';
    const QString where = visit.camera == "Driveway" ? "on the driveway" : "at the gate camera";
    return {when, where, when + ' ' + where};
}

class ChartsTest : public testing::Test {
protected:
    static QList<QAbstractButton*> buttons(QWidget& chart) {
        QList<QAbstractButton*> shown = chart.findChildren<QAbstractButton*>();
        shown.removeIf([](QAbstractButton* button) { return !button->isVisible(); });
        return shown;
    }
    static void open(QWidget& chart, QSize size) {
        chart.resize(size);
        chart.show();
        chart.activateWindow();
        QApplication::processEvents();
    }
    static QString focused() {
        return QApplication::focusWidget() ? QApplication::focusWidget()->accessibleName() : QString();
    }

    const TimeZone zone{"UTC"};
};

TEST_F(ChartsTest, TheSentenceSaysWhatTheVisitsHaveInCommon) {
    const Visit evening{3, 19, "Driveway"}, late{3, 22, "Driveway"}, gate{3, 18, "Gate"},
        monday{0, 7, "East garden"}, sunday{6, 3, "Front lawn"};
    EXPECT_EQ(sentenceOf({}), "No visits in 30 days.**");
    EXPECT_EQ(sentenceOf({evening}), "1 visit in 30 days.**");
    EXPECT_EQ(sentenceOf({evening, evening}, VisitSpan::week), "2 visits in 7 days.**");
    EXPECT_EQ(sentenceOf({evening, monday, sunday}, VisitSpan::year), "3 visits in a year.**");
    EXPECT_EQ(sentenceOf({evening, evening, evening}, VisitSpan::all),
              "3 visits on file, all on Thursday evenings *on the driveway*.");
    EXPECT_EQ(sentenceOf({evening, evening, monday}, VisitSpan::unnamed),
              "3 visits, most on Thursday evenings *on the driveway*.");
    EXPECT_EQ(sentenceOf({evening, evening, gate}), "3 visits in 30 days, all *on Thursday evenings*.");
    EXPECT_EQ(sentenceOf({evening, gate, monday}), "3 visits in 30 days, most *on Thursday evenings*.");
    EXPECT_EQ(sentenceOf({sunday, sunday, monday, gate, evening, evening, evening, late, late}),
              "9 visits in 30 days, 4 of them *on Thursday evenings*.");
    EXPECT_EQ(sentenceOf({evening, evening, late, sunday, monday, gate}),
              "6 visits in 30 days, 3 of them *on Thursday evenings*.");
    EXPECT_EQ(sentenceOf({evening, late, gate, late, evening}),
              "5 visits in 30 days, most *on Thursday evenings*.");
    EXPECT_EQ(sentenceOf({evening, evening, late, late}), "4 visits in 30 days, all *on the driveway*.");
    EXPECT_EQ(sentenceOf({{0, 0, "A*B %1"}, {1, 0, "A*B %1"}, {2, 0, "C"}}),
              "3 visits in 30 days, most *at the a\u2217b %1 camera*.");
    EXPECT_EQ(groupWords(patternsOf({late, late, sunday})), "2 of 3 on Thursdays between 22:00 and 24:00");
}

TEST_F(ChartsTest, TheSentenceIsTrueOfAnyVisits) {
    const QRegularExpression form("^(No|\\d+) visits?(?:, (all|most|\\d+ of them) (.*))?\\.$");
    int claims = 0;
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        SeededRandom random(seed);
        std::vector<Visit> visits(random.below(14));
        for (Visit& visit : visits)
            visit = {static_cast<int>(random.below(2)), static_cast<int>(random.below(4) * 6),
                     random.chance(0.7) ? "Driveway" : "Gate"};
        const Sentence told = patternSentence(patternsOf(visits), VisitSpan::unnamed);
        const QString words = told.lead + told.emphasis + told.tail;
        const auto said = form.match(words);
        ASSERT_TRUE(said.hasMatch()) << words.toStdString();
        EXPECT_EQ(said.captured(1).toInt(), static_cast<int>(visits.size()));
        const QString share = said.captured(2);
        if (share.isEmpty())
            continue;
        ++claims;
        const auto of = std::ranges::count_if(
            visits, [&](const Visit& visit) { return truthsOf(visit).contains(said.captured(3)); });
        const auto all = std::ssize(visits);
        EXPECT_TRUE(share == "all"    ? of == all
                    : share == "most" ? 2 * of > all && of < all
                                      : of == share.section(' ', 0, 0).toInt())
            << seed << ": " << words.toStdString() << ' ' << of;
    }
    EXPECT_GT(claims, 1000);
}

TEST_F(ChartsTest, EachHourWithVisitsIsAButtonForMouseKeyboardAndScreenReader) {
    VisitMatrix matrix(VisitMatrix::Form::full, nullptr);
    std::vector<std::pair<int, int>> chosen;
    QObject::connect(&matrix, &VisitMatrix::chosen,
                     [&](int weekday, int hour) { chosen.emplace_back(weekday, hour); });
    open(matrix, {682, 220});
    EXPECT_TRUE(buttons(matrix).isEmpty());
    matrix.setTimes(
        VisitTimes::of(patternsOf({{3, 19, "A"}, {3, 19, "A"}, {6, 18, "A"}, {0, 23, "A"}, {3, 21, "A"}})));
    QStringList names;
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&matrix);
    for (int i = 0; i < seen->childCount(); ++i)
        names.append(seen->child(i)->text(QAccessible::Name));
    EXPECT_EQ(names, QStringList({"Monday 23:00, 1 visit", "Thursday 19:00, 2 visits",
                                  "Thursday 21:00, 1 visit", "Sunday 18:00, 1 visit"}));
    QTest::mouseClick(matrix.windowHandle(), Qt::LeftButton, {},
                      MatrixForm::full(680).cell({6, 18}).center().toPoint());
    buttons(matrix).first()->setFocus(Qt::TabFocusReason);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return focused();
    };
    EXPECT_EQ(press(Qt::Key_Down), "Thursday 21:00, 1 visit");
    EXPECT_EQ(press(Qt::Key_Left), "Thursday 19:00, 2 visits");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(press(Qt::Key_Down), "Sunday 18:00, 1 visit");
    EXPECT_EQ(press(Qt::Key_Right), "Sunday 18:00, 1 visit") << "the last one";
    EXPECT_EQ(press(Qt::Key_Up), "Thursday 19:00, 2 visits");
    int stops = 0;
    for (QAbstractButton* button : buttons(matrix))
        stops += button->focusPolicy() & Qt::TabFocus ? 1 : 0;
    EXPECT_EQ(stops, 1) << "one stop of the Tab key";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(chosen, (std::vector<std::pair<int, int>>{{6, 18}, {3, 19}, {3, 19}}));
    matrix.setTimes({});
    EXPECT_TRUE(buttons(matrix).isEmpty());
}

TEST_F(ChartsTest, ARowOfCountsIsAButtonWithNameAndCount) {
    CountBars bars(CountBars::Interaction::clickable, nullptr);
    QStringList chosen;
    QObject::connect(&bars, &CountBars::chosen, [&](const QString& id) { chosen.append(id); });
    std::vector<CountRow> rows{{.id = "a", .name = "Driveway", .visits = 8},
                               {.id = "b", .name = "Gate", .visits = 1}};
    bars.setRows(rows);
    open(bars, {311, 56});
    ASSERT_EQ(buttons(bars).size(), 2);
    EXPECT_EQ(buttons(bars)[0]->accessibleName(), "Driveway, 8 visits");
    EXPECT_EQ(buttons(bars)[1]->accessibleName(), "Gate, 1 visit");
    buttons(bars)[1]->click();
    QTest::keyClick(buttons(bars)[0], Qt::Key_Enter);
    EXPECT_EQ(chosen, QStringList({"b", "a"}));
    rows.assign(10'000, rows.front());
    bars.setRows(rows);
    EXPECT_EQ(buttons(bars).size(), static_cast<int>(CountBars::mostRows));
}

TEST_F(ChartsTest, TheHeatMapShowsWhereVisitorsWalkedAndReportsTheChosenPlace) {
    const Site site = LiveState::initial().site;
    WalkMap walks(site);
    MissionRecord visit;
    visit.visitorPath = {{10, 60}, {140, 60}};
    for (int visits = 0; visits < 4; ++visits)
        walks.add(visit);
    visit.visitorPath = {{10, 20}, {140, 20}};
    walks.add(visit);
    HeatMap map(nullptr);
    std::vector<P> chosen;
    QObject::connect(&map, &HeatMap::placeChosen, [&](P place) { chosen.push_back(place); });
    open(map, canvas);
    const QImage before = map.grab().toImage();
    map.setHeat(walks.heat());
    EXPECT_EQ(map.accessibleName(), "Where they walked: from one visit to four visits");
    const QImage after = map.grab().toImage();
    const double scale = map.devicePixelRatioF();
    const auto brighter = [&](P place) {
        const QPoint at = (QPointF(place.x, place.y) * 4 * scale).toPoint();
        return after.pixelColor(at).lightness() - before.pixelColor(at).lightness();
    };
    EXPECT_GT(brighter({100, 60}), 150) << "most visits are white";
    EXPECT_GT(brighter({100, 20}), 20);
    EXPECT_GT(brighter({100, 60}), brighter({100, 20}) + 60);
    EXPECT_EQ(brighter({100, 40}), 0);

    QTest::mouseClick(&map, Qt::LeftButton, {}, {400, 240});
    map.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&map, Qt::Key_Up);
    QTest::keyClick(&map, Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 2u);
    EXPECT_EQ(chosen[0], (P{100, 60}));
    EXPECT_NEAR(chosen[1].y, 58, 0.5) << "from the place that most visits passed, by two metres";
}

} // namespace

} // namespace velmora
