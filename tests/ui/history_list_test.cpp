#include "ui/history_fixture.h"

#include "ui/look/measures.h"

namespace velmora {

namespace {

const QString deleteVisit = QStringLiteral("Delete this visit"),
              clearDemo = QStringLiteral("Clear demo history");

TEST_F(HistoryTest, FiltersNarrowTheListAndShowTheCount) {
    look(four());
    EXPECT_TRUE(lists("4 visits", {"Visitor left your grounds, Driveway, ", "Alert expired", "You ignored"}));
    EXPECT_TRUE(rowOf("You ignored the alert, Garden").data().toString().endsWith(", demo"));
    click("Flown");
    EXPECT_TRUE(lists("2 of 4", {"Visitor left", "Came home on low battery, Front, "}));
    click("Stayed docked");
    EXPECT_TRUE(lists("2 of 4", {"You ignored", "Alert expired"}));
    click("With demo");
    pick("No demo");
    EXPECT_TRUE(lists("1 of 4", {"Alert expired"}));
    click("No demo");
    pick("Only demo");
    EXPECT_TRUE(lists("1 of 4", {"You ignored"}));
    click("All");
    click("All cameras");
    pick("Driveway");
    EXPECT_TRUE(lists("1 of 4", {"Visitor left"}));
    store().removeRecord(store().history()[3].key);
    settle();
    EXPECT_TRUE(lists("1 of 3", {"Visitor left"}));
    search("nobody has this");
    EXPECT_TRUE(shows("No visits match.") && shows("0 of 3"));
    click("Show all");
    EXPECT_TRUE(lists("3 visits", {"Came home"}) && shows("With demo") && shows("All cameras"));
    EXPECT_FALSE(shows("No visits match."));
}

TEST_F(HistoryTest, AFilterEndsWithTheLastVisitThatItOffers) {
    look(four());
    click("All cameras");
    pick("Driveway");
    click("With demo");
    pick("Only demo");
    choose("Visitor left");
    press(Qt::Key_Delete);
    EXPECT_TRUE(lists("1 of 3", {"You ignored"}) && shows("All cameras"));
    store().clearDemoHistory();
    settle();
    EXPECT_TRUE(lists("2 visits", {"Came home", "Alert expired"}));
    EXPECT_FALSE(shows("Only demo"));
}

TEST_F(HistoryTest, TheNarrowListCutsNoOutcomeAndExplainsCutFacts) {
    std::vector<MissionRecord> each;
    for (const auto& [outcome, text] : rawValuesOf<Outcome>)
        each.push_back(visitAt("Front", "M-1", outcome, true));
    each.back().cameraName = "A camera with a name that is too long for the narrow list";
    look(each);
    resize(Measure::windowMinimum);
    QString tip;
    for (const auto& [outcome, text] : rawValuesOf<Outcome>) {
        const QModelIndex row = rowOf(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        list().scrollTo(row);
        tip = toolTip(row);
        EXPECT_FALSE(tip.contains(row.data().toString().section(',', 0, 0))) << tip.toStdString();
    }
    EXPECT_TRUE(tip.startsWith("A camera with a name that is too long for the narrow list · "));
}

TEST_F(HistoryTest, TheListKeepsItsPlace) {
    look(many());
    QScrollBar& bar = *list().verticalScrollBar();
    visit(Scenario::driveway);
    respond(Command::ignore);
    tickAfter(0.05);
    EXPECT_EQ(bar.value(), 0) << "the new visit is in view";
    bar.setValue(3000);
    const QModelIndex row = list().indexAt({20, 100});
    const QString shown = row.data().toString();
    const int top = list().visualRect(row).top();
    for (const Section section : {Section::history, Section::overview}) {
        store().setSection(section);
        visit(Scenario::driveway);
        respond(Command::ignore);
        tickAfter(0.05);
        store().setSection(Section::history);
        settle();
        EXPECT_EQ(list().visualRect(rowOf(shown)).top(), top);
    }
    click("Flown");
    click("All");
    EXPECT_TRUE(list().viewport()->rect().contains(list().visualRect(list().currentIndex())));
    bar.setValue(3000);
    store().openRecord(store().history()[150].key);
    settle();
    EXPECT_TRUE(list().viewport()->rect().contains(list().visualRect(list().currentIndex())));
}

TEST_F(HistoryTest, TheSearchCoversCamerasLabelsOutcomesNoticesAndIds) {
    auto history = four();
    history[1].label = "Delivery person";
    history[2].notices = {{{}, now, "Gust of 41 km/h rode out", Notice::Level::info}};
    look(history);
    for (const auto& [text, found] :
         {std::pair("DRIVE", "Visitor left"), std::pair("delivery", "You ignored"),
          std::pair("low batt", "Came home"), std::pair(" rode out ", "Came home"),
          std::pair("m-4", "Alert expired")}) {
        search(text);
        EXPECT_TRUE(lists("1 of 4", {found})) << text;
        press(Qt::Key_Escape);
        EXPECT_EQ(QApplication::focusWidget(), &list());
        EXPECT_TRUE(shows("4 visits"));
    }
}

TEST_F(HistoryTest, TheSelectedVisitStaysHighlightedWhileItMatchesTheFilters) {
    look(four());
    choose("Came home");
    click("Flown");
    EXPECT_EQ(list().currentIndex(), rowOf("Came home"));
    EXPECT_TRUE(shows("Came home on low battery"));
    click("All");
    EXPECT_EQ(list().currentIndex(), rowOf("Came home"));
}

TEST_F(HistoryTest, AnEmptyHistoryShowsAnExplanation) {
    look(four());
    while (!store().history().empty())
        store().removeRecord(store().history()[0].key);
    settle();
    EXPECT_TRUE(shows("Nothing yet. When a camera spots someone you don't know, it appears here."));
    EXPECT_TRUE(shows("No visit to replay yet"));
    EXPECT_FALSE(shows("Search the history") || shows(clearDemo) || shows("Export…"));
    click("Simulate a visitor");
    EXPECT_EQ(phase(), Phase::awaitingApproval);
    respond(Command::ignore);
    settle();
    EXPECT_TRUE(shows("You ignored the alert") && shows("1 visit"));
    store().removeRecord(store().history()[0].key);
    store().applyLinkMode(true);
    settle();
    EXPECT_FALSE(shows("Simulate a visitor")) << "a server stages no visits";
}

TEST_F(HistoryTest, UndoPutsADeletedVisitBackWhereItWas) {
    look(four());
    choose("You ignored");
    press(Qt::Key_Delete);
    EXPECT_EQ(onFile(), (std::vector<std::string>{"M-1", "M-3", "M-4"}));
    EXPECT_EQ(list().currentIndex(), rowOf("Came home"));
    EXPECT_TRUE(shows("Came home on low battery") && shows("Visit deleted."));
    EXPECT_FALSE(shows(clearDemo));
    click("Undo");
    EXPECT_EQ(onFile(), (std::vector<std::string>{"M-1", "M-2", "M-3", "M-4"}));
    EXPECT_EQ(list().currentIndex(), rowOf("You ignored"));
    EXPECT_TRUE(shows("You ignored the alert"));
    EXPECT_FALSE(shows("Undo"));

    choose("You ignored");
    press(Qt::Key_Delete);
    visit(Scenario::driveway);
    respond(Command::ignore);
    tickAfter(0.05);
    click("Undo");
    EXPECT_EQ(store().history()[2].record->id, "M-2") << "below a visit that ended after the deletion";
    store().removeRecord(store().history()[0].key);

    click("Stayed docked");
    choose("You ignored");
    press(Qt::Key_Delete);
    EXPECT_TRUE(shows("Alert expired — drone stayed docked")) << "selects the next listed visit";
    click("Undo");
    click("All");

    choose("Alert expired");
    click(deleteVisit);
    EXPECT_TRUE(shows("Came home on low battery")) << "selects the previous visit, as there is no next one";
    click(deleteVisit);
    click(deleteVisit);
    click(deleteVisit);
    EXPECT_EQ(onFile(), std::vector<std::string>{});
    click("Undo");
    EXPECT_EQ(onFile(), std::vector<std::string>{"M-1"}) << "only the last deletion is undone";
    EXPECT_TRUE(shows("Visitor left your grounds"));
}

TEST_F(HistoryTest, UndoLeavesTheKeyboardFocusToTheRecords) {
    look(four());
    const auto focusUndo = [&] {
        press(Qt::Key_Delete);
        find("Undo")->setFocus(Qt::TabFocusReason);
    };
    focusUndo();
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &list());
    focusUndo();
    clock.advance(std::chrono::seconds(11));
    settle();
    EXPECT_FALSE(shows("Undo"));
    EXPECT_EQ(QApplication::focusWidget(), &list());
}

TEST_F(HistoryTest, DayCaptionsChangeAtMidnight) {
    look(four());
    EXPECT_TRUE(rowOf("Today").isValid());
    tickAfter(86'400);
    store().setSection(Section::overview);
    store().setSection(Section::history);
    EXPECT_TRUE(rowOf("Yesterday").isValid());
    EXPECT_FALSE(rowOf("Today").isValid());
}

TEST_F(HistoryTest, SelectsTheRightOneOfTwoVisitsWithTheSameId) {
    auto history = four();
    for (MissionRecord& one : history)
        one.id = "M-1";
    look(history);
    choose("Came home");
    EXPECT_TRUE(shows("Came home on low battery"));
    EXPECT_EQ(decode<MissionRecord>(exported("Record as JSON…", "velmora-M-1.json").toStdString()).value,
              history[2]);
    press(Qt::Key_Escape);
    click(deleteVisit);
    history.erase(history.begin() + 2);
    EXPECT_EQ(recorded(), history);
    EXPECT_TRUE(shows("Alert expired — drone stayed docked"));
}

TEST_F(HistoryTest, ClearingTheDemoHistoryAsksForConfirmation) {
    look(four());
    const auto ask = [&] {
        click(clearDemo);
        ASSERT_TRUE(waitUntil([&] { return shows("Keep it"); }));
        EXPECT_TRUE(shows("2 rehearsed visits go. Visits that were really flown stay."));
    };
    for (const Qt::Key keeps : {Qt::Key_Escape, Qt::Key_Return}) {
        ask();
        press(keeps);
        EXPECT_TRUE(waitUntil([&] { return !shows("Keep it"); }));
        EXPECT_EQ(store().history().size(), 4u) << keeps;
    }
    ask();
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(onFile(), (std::vector<std::string>{"M-3", "M-4"}));
    EXPECT_TRUE(shows("Came home on low battery"));
    EXPECT_FALSE(find(*list().parentWidget(), clearDemo)) << "no demo visits are left";
}

TEST_F(HistoryTest, KeysMoveTheSelectionAcrossDayCaptions) {
    auto history = four();
    history[2].start -= Seconds{86400};
    history[3].start -= Seconds{86400};
    look(history);
    EXPECT_TRUE(rowOf("Today").isValid() && rowOf("Yesterday").isValid());
    const auto walk = [&](Qt::Key key, const QString& outcome) {
        press(key);
        EXPECT_EQ(list().currentIndex(), rowOf(outcome)) << key;
        EXPECT_TRUE(find(outcome)) << outcome.toStdString();
    };
    walk(Qt::Key_Down, "You ignored the alert");
    walk(Qt::Key_Down, "Came home on low battery");
    walk(Qt::Key_End, "Alert expired — drone stayed docked");
    walk(Qt::Key_Up, "Came home on low battery");
    walk(Qt::Key_Up, "You ignored the alert");
    walk(Qt::Key_Home, "Visitor left your grounds");
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &slider());
}

} // namespace

} // namespace velmora
