#include "ui/history_fixture.h"

#include "ui/charts/heat_map.h"
#include "ui/charts/visit_matrix.h"
#include "ui/map/map_scene.h"
#include "ui/screens/patterns/patterns_pane.h"

#include <QDateTime>

namespace velmora {

namespace {

const QString tooFew = QStringLiteral("Patterns appear after three visits.");

Date localTime(int month, int day, int hour, int minute) {
    const QDateTime time(QDate(2023, month, day), QTime(hour, minute));
    return dateFromSeconds(static_cast<double>(time.toSecsSinceEpoch()));
}

/// The patterns, and the filters that clicks in them set, on Tuesday 14 November 2023.
class PatternsTest : public HistoryTest {
protected:
    /// Three visits on the evening of Thursday 9 November, two before.
    std::vector<MissionRecord> five() {
        now = localTime(11, 14, 12, 0);
        std::vector<MissionRecord> made{visitAt("Driveway", "M-5", Outcome::expired, false),
                                        visitAt("Driveway", "M-4", Outcome::ignored, false),
                                        visitAt("Driveway", "M-3", Outcome::visitorLeft, false),
                                        visitAt("Front lawn", "M-2", Outcome::ignored, false),
                                        visitAt("Garden", "M-1", Outcome::lowBattery, false)};
        const Date starts[] = {localTime(11, 9, 20, 10), localTime(11, 9, 19, 40), localTime(11, 9, 19, 5),
                               localTime(11, 6, 7, 0), localTime(10, 22, 15, 0)};
        for (std::size_t i = 0; i < made.size(); ++i) {
            made[i].start = starts[i];
            made[i].end = starts[i] + Seconds{10};
        }
        made[2].visitorPath = {{20, 40}, {60, 40}};
        return made;
    }
    void lookAtPatterns(const std::vector<MissionRecord>& history) {
        look(history);
        click("Patterns");
    }
    bool listsOnly(const QString& count, const QStringList& rows) {
        return lists(count, rows) && list().isVisible() && QApplication::focusWidget() == &list() &&
               list().currentIndex() == rowOf(rows.front());
    }
    void clickPlace(P place) {
        auto& map = *window().findChild<HeatMap*>();
        const MapTransform view(map.size(), live().site.size);
        QTest::mouseClick(&map, Qt::LeftButton, {}, view.map(place).toPoint());
        settle();
    }
    /// What the screen says, and the picture of where visitors walked.
    std::pair<QStringList, QImage> shownNow() {
        QStringList names;
        for (const QWidget* widget : window().findChildren<QWidget*>())
            if (widget->isVisible())
                names.append(widget->accessibleName());
        names.sort();
        return {names, window().findChild<HeatMap*>()->grab().toImage()};
    }
};

TEST_F(PatternsTest, ASpanOfTimeFollowsTheClock) {
    look(five());
    click("All time");
    pick("30 days");
    EXPECT_TRUE(lists("5 visits", {}));
    click("30 days");
    pick("7 days");
    EXPECT_TRUE(lists("3 of 5", {"Alert expired", "You ignored", "Visitor left"}));
    now = localTime(11, 16, 19, 20);
    clock.advance(std::chrono::seconds(61));
    settle();
    EXPECT_TRUE(lists("2 of 5", {"Alert expired", "You ignored"}));
    EXPECT_FALSE(rowOf("Visitor left").isValid());
    click("Patterns");
    EXPECT_TRUE(shows("2 visits in 7 days.") && shows("Patterns · 9 November to 16 November"));
}

TEST_F(PatternsTest, AnHourAGroupAndAPlaceShowTheirVisits) {
    lookAtPatterns(five());
    EXPECT_TRUE(shows("5 visits on file, most on Thursday evenings on the driveway."));
    click("Thursday 19:00, 2 visits");
    EXPECT_TRUE(listsOnly("2 of 5", {"You ignored the alert, Driveway", "Visitor left"}));
    EXPECT_TRUE(shows("You ignored the alert")) << "the first of them in detail";
    click("Thursday 19:00");
    EXPECT_TRUE(lists("5 visits", {}) && !shows("Thursday 19:00"));

    click("Patterns");
    click("3 of 5 on Thursdays between 18:00 and 22:00");
    EXPECT_TRUE(lists("3 of 5", {"Alert expired", "You ignored", "Visitor left"}));
    find("Thursday 18:00 to 22:00")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_TRUE(lists("5 visits", {}));
    EXPECT_EQ(QApplication::focusWidget(), &list());

    click("Patterns");
    clickPlace({40, 41.8});
    EXPECT_TRUE(listsOnly("1 of 5", {"Visitor left"}));
    pressByAccessibility("Past this place");
    click("Patterns");
    clickPlace({40, 42.5});
    EXPECT_TRUE(shows("When they came") && shows("5 visits")) << "nobody passed there";
}

/// What is exported and deleted is in the list.
TEST_F(PatternsTest, TheDetailShowsAVisitOfTheListOrNone) {
    look(five());
    const RecordKey first = store().history()[0].key;
    store().openRecord(first);
    search("ignored");
    ASSERT_TRUE(store().selectedRecord());
    EXPECT_NE(store().selectedRecord(), first);
    EXPECT_EQ(store().findRecord(*store().selectedRecord())->record->outcome, Outcome::ignored);
    EXPECT_TRUE(shows("Delete this visit"));
    search("nobody");
    EXPECT_FALSE(shows("Delete this visit"));
    store().setSection(Section::overview);
    store().openRecord(first);
    settle();
    EXPECT_EQ(store().selectedRecord(), first) << "an opened record ends the filter that hides it";
    EXPECT_TRUE(shows("5 visits") && shows("Delete this visit"));
}

TEST_F(PatternsTest, RowsFilterThePatternsAndClearTheirFilter) {
    lookAtPatterns(five());
    click("Driveway, 3 visits");
    EXPECT_TRUE(shows("3 of 5") && shows("Driveway") && shows("1 of 3 flown"));
    EXPECT_TRUE(shows("3 visits, all on Thursday evenings on the driveway."));
    find("Driveway, 3 visits")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("5 visits") && shows("All cameras") && shows("Driveway, 3 visits"));

    find("You ignored the alert, 2 visits")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("2 of 5") && shows("You ignored the alert") && shows(tooFew));
    EXPECT_EQ(QApplication::focusWidget(), find("You ignored the alert, 2 visits"))
        << "the focus stays on the row";
    pressByAccessibility("You ignored the alert, 2 visits");
    EXPECT_TRUE(shows("5 visits") && !shows("You ignored the alert"));

    click("Flown");
    EXPECT_TRUE(shows("2 visits.") && shows("2 of 2 flown"));
    search("nobody");
    EXPECT_TRUE(shows("No visits.") && shows("No visits match.") && shows(tooFew));
    click("Show all");
    EXPECT_TRUE(shows("5 visits") && shows("Driveway, 3 visits"));
}

TEST_F(PatternsTest, NothingIsAPatternBeforeThreeVisits) {
    const auto all = five();
    lookAtPatterns({all.begin(), all.begin() + 3});
    const auto& matrix = *window().findChild<PatternsPane*>()->findChild<VisitMatrix*>();
    EXPECT_TRUE(matrix.isVisible() && !shows(tooFew));
    for (const char* sentence : {"2 visits on file.", "1 visit on file."}) {
        store().removeRecord(store().history()[0].key);
        settle();
        EXPECT_TRUE(shows(sentence) && shows(tooFew) && !matrix.isVisible()) << sentence;
    }
    store().removeRecord(store().history()[0].key);
    settle();
    EXPECT_TRUE(shows("No visit to replay yet") && !shows(tooFew) && !shows("Patterns"));
}

TEST_F(PatternsTest, ANewVisitIsAddedToWhatIsShown) {
    lookAtPatterns(five());
    visit(Scenario::driveway);
    approve();
    store().setSection(Section::history);
    fly(200);
    ASSERT_EQ(store().history().size(), 6u);
    EXPECT_TRUE(shows("6 visits") && shows("Driveway, 4 visits"));
    const auto added = shownNow();
    click("Flown");
    EXPECT_NE(shownNow(), added);
    click("All");
    const auto computed = shownNow();
    EXPECT_EQ(computed.first.join('\n').toStdString(), added.first.join('\n').toStdString());
    EXPECT_EQ(computed.second, added.second) << "the same as computed from all visits";
    store().removeRecord(store().history()[2].key);
    settle();
    EXPECT_TRUE(shows("5 visits") && shows("Thursday 19:00, 1 visit"));
}

TEST_F(PatternsTest, VisitsOfAnHourAreDeletedAndRestored) {
    lookAtPatterns(five());
    click("Thursday 19:00, 2 visits");
    press(Qt::Key_Delete);
    EXPECT_TRUE(listsOnly("1 of 4", {"Visitor left"}));
    press(Qt::Key_Delete);
    EXPECT_TRUE(shows("0 of 3") && shows("No visits match.") && shows("Thursday 19:00"));
    click("Undo");
    EXPECT_TRUE(lists("1 of 4", {"Visitor left"}));
    EXPECT_EQ(list().currentIndex(), rowOf("Visitor left"));
}

TEST_F(PatternsTest, TheOverviewOpensThePatternsOfThirtyDays) {
    look(five());
    search("nobody");
    store().setSection(Section::overview);
    store().openPatterns();
    settle();
    EXPECT_TRUE(shows("5 visits in 30 days, most on Thursday evenings on the driveway."));
    EXPECT_TRUE(shows("30 days") && shows("5 visits"));
    QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->accessibleName(), "Driveway, 3 visits");
}

} // namespace

} // namespace velmora
