#include "ui/linked_ui_fixture.h"

#include "model/csv.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QFileDialog>
#include <QListView>
#include <QMenu>
#include <QSlider>

namespace velmora {

namespace {

const QString deleteVisit = QStringLiteral("Delete this visit"),
              clearDemo = QStringLiteral("Clear demo history");

class HistoryTest : public LinkedUiTest {
protected:
    /// Opens the history with these records, newest first.
    void look(const std::vector<MissionRecord>& history) {
        records(history);
        store().setSection(Section::history);
        window();
    }
    MissionRecord visitAt(const std::string& camera, const std::string& id, Outcome outcome, bool demo) {
        MissionRecord made = record(id, outcome, 60.0 * ++made_);
        made.cameraName = camera;
        made.demo = demo;
        return made;
    }
    /// Two flown and two not, at three cameras, two of them for the demo.
    std::vector<MissionRecord> four() {
        return {visitAt("Driveway", "M-1", Outcome::visitorLeft, true),
                visitAt("Garden", "M-2", Outcome::ignored, true),
                visitAt("Front", "M-3", Outcome::lowBattery, false),
                visitAt("Garden", "M-4", Outcome::expired, false)};
    }
    /// Ten seconds in which the visitor was seen for the first two and the drone flew the last four.
    MissionRecord flight() {
        MissionRecord made = visitAt("Driveway", "M-1", Outcome::lowBattery, false);
        made.visitorPath.assign(5, {20, 20});
        made.dronePath.assign(9, {40, 40});
        made.maxDistanceFromPad = 41.5;
        made.batteryUsed = 8.25;
        made.confidence = 0.875;
        made.notices = {{{}, made.start + Seconds{3}, "You approved the launch", Notice::Level::good},
                        {{}, made.start + Seconds{7}, "Battery low — coming home", Notice::Level::caution}};
        return made;
    }

    QListView& list() { return *window().findChild<QListView*>(); }
    QModelIndex rowOf(const QString& text) {
        for (int row = 0; row < list().model()->rowCount(); ++row)
            if (const auto index = list().model()->index(row, 0); index.data().toString().startsWith(text))
                return index;
        return {};
    }
    /// Whether these visits are listed, told by how their rows begin, and as many as the count says.
    bool lists(const QString& count, const QStringList& rows) {
        return shows(count) &&
               std::ranges::all_of(rows, [&](const QString& row) { return rowOf(row).isValid(); });
    }
    /// The ids of the store's records, which the file holds too.
    std::vector<std::string> onFile() {
        std::vector<std::string> ids;
        const auto file = decode<std::vector<MissionRecord>>(content("history.json").toStdString());
        EXPECT_EQ(file.value, store().history());
        for (const MissionRecord& one : store().history())
            ids.push_back(one.id);
        return ids;
    }
    void choose(const QString& outcome) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(rowOf(outcome)).center());
        settle();
    }
    /// Presses an entry of the menu that is open.
    void pick(const QString& text) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text() == text) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                settle();
                return;
            }
        FAIL() << text.toStdString();
    }
    void search(const QString& text) {
        press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        settle();
    }
    /// Exports what the menu's entry offers into the home or another folder; its bytes.
    QByteArray exported(const QString& entry, const QString& proposed, const QString& folder = {}) {
        click("Export…");
        pick(entry);
        auto* dialog = window().findChild<QFileDialog*>();
        if (!dialog)
            return {};
        EXPECT_EQ(QFileInfo(dialog->selectedFiles().value(0)).fileName(), proposed);
        const QString name = folder.isEmpty() ? home.filePath(proposed) : folder + proposed;
        dialog->selectFile(name);
        static_cast<QDialog*>(dialog)->accept();
        delete dialog;
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QAbstractSlider& slider() { return *find<QAbstractSlider>("Replay time"); }

private:
    int made_ = 0;
};

TEST_F(HistoryTest, FiltersNarrowTheListAndSayHowFar) {
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
    store().removeRecord(3);
    settle();
    EXPECT_TRUE(lists("1 of 3", {"Visitor left"}));
    search("nobody has this");
    EXPECT_TRUE(shows("No visits match.") && shows("0 of 3"));
    click("Show all");
    EXPECT_TRUE(lists("3 visits", {"Came home"}) && shows("With demo") && shows("All cameras"));
    EXPECT_FALSE(shows("No visits match."));
}

TEST_F(HistoryTest, TheSearchReadsCamerasLabelsOutcomesNoticesAndIds) {
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

TEST_F(HistoryTest, TheChosenVisitStaysMarkedWhileTheFiltersShowIt) {
    look(four());
    choose("Came home");
    click("Flown");
    EXPECT_EQ(list().currentIndex(), rowOf("Came home"));
    EXPECT_TRUE(shows("Came home on low battery"));
    click("All");
    EXPECT_EQ(list().currentIndex(), rowOf("Came home"));
}

TEST_F(HistoryTest, AnEmptyHistoryHasItsOwnWords) {
    look(four());
    while (!store().history().empty())
        store().removeRecord(0);
    settle();
    EXPECT_TRUE(shows("Nothing yet. When a camera spots someone you don't know, it appears here."));
    EXPECT_TRUE(shows("No visit to replay yet"));
    EXPECT_FALSE(shows("Search the history") || shows(clearDemo) || shows("Export…"));
    click("Simulate a visitor");
    EXPECT_EQ(phase(), Phase::awaitingApproval);
    store().send(Command::ignore);
    settle();
    EXPECT_TRUE(shows("You ignored the alert") && shows("1 visit"));
    store().removeRecord(0);
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
    store().send(Command::ignore);
    tickAfter(0.05);
    click("Undo");
    EXPECT_EQ(store().history()[2].id, "M-2") << "below a visit that has ended meanwhile";
    store().removeRecord(0);

    click("Stayed docked");
    choose("You ignored");
    press(Qt::Key_Delete);
    EXPECT_TRUE(shows("Alert expired — drone stayed docked")) << "the next that is listed";
    click("Undo");
    click("All");

    choose("Alert expired");
    click(deleteVisit);
    EXPECT_TRUE(shows("Came home on low battery")) << "the one above the last";
    click(deleteVisit);
    click(deleteVisit);
    click(deleteVisit);
    EXPECT_EQ(onFile(), std::vector<std::string>{});
    click("Undo");
    EXPECT_EQ(onFile(), std::vector<std::string>{"M-1"}) << "the last one deleted";
    EXPECT_TRUE(shows("Visitor left your grounds"));
}

TEST_F(HistoryTest, TheDaysAreNamedAnewWhenAnotherHasBegun) {
    look(four());
    EXPECT_TRUE(rowOf("Today").isValid());
    pass(86'400);
    store().setSection(Section::overview);
    store().setSection(Section::history);
    EXPECT_TRUE(rowOf("Yesterday").isValid());
    EXPECT_FALSE(rowOf("Today").isValid());
}

TEST_F(HistoryTest, OfTwoVisitsWithOneIdTheChosenOneIsMeant) {
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
    EXPECT_EQ(store().history(), history);
    EXPECT_TRUE(shows("Alert expired — drone stayed docked"));
}

TEST_F(HistoryTest, ClearingTheDemoHistoryAsksFirst) {
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
    EXPECT_FALSE(find(*list().parentWidget(), clearDemo)) << "there is nothing more to clear";
}

TEST_F(HistoryTest, KeysWalkTheVisitsAcrossTheDays) {
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

TEST_F(HistoryTest, ARecordTellsItsFiguresAndHowItWent) {
    look({flight(), visitAt("Garden", "M-2", Outcome::ignored, false)});
    for (const char* fact :
         {"Duration, 0:10 min", "Furthest out, 42 m", "Battery used, 8 %", "Match, 88 % unknown",
          "Seen → 3 s → answered → 4 s → coming home → 3 s → landed",
          "The drone stayed at least 32.6 m inside the boundary and was 0 s in the 5 m buffer.",
          "Unknown person · M-1"})
        EXPECT_TRUE(shows(fact)) << fact;
    choose("You ignored");
    for (const char* fact :
         {"Furthest out, —", "Battery used, —", "Seen → 10 s → ended", "The drone did not fly."})
        EXPECT_TRUE(shows(fact)) << fact;
}

TEST_F(HistoryTest, TheReplayStepsHalfASecondAndShowsTheMapOfThatMoment) {
    look({flight()});
    const QString whole = "Replay of the visitor's path and of the drone's, at most 42 m from its pad.",
                  before = "Replay of the visitor's path; the drone stayed on its pad.";
    EXPECT_TRUE(shows("0:10 / 0:10") && shows(whole));
    slider().setFocus();
    press(Qt::Key_Home);
    EXPECT_TRUE(shows("0:00 / 0:10") && shows(before));
    press(Qt::Key_Right);
    EXPECT_EQ(slider().value(), 1);
    press(Qt::Key_Right);
    EXPECT_TRUE(shows("0:01 / 0:10")) << "two steps are one second";
    QWidget* notice = nullptr;
    for (auto* text : window().findChildren<QWidget*>())
        if (text->isVisible() && text->accessibleName().endsWith(" Battery low — coming home"))
            notice = text;
    ASSERT_NE(notice, nullptr);
    QTest::mouseClick(notice, Qt::LeftButton);
    settle();
    EXPECT_TRUE(shows("0:07 / 0:10") && shows(whole)) << "the drone has taken off by then";
}

TEST_F(HistoryTest, SpacePlaysFromTheStartAndAnAlertPauses) {
    look({flight()});
    slider().setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Pause"));
    EXPECT_TRUE(waitUntil([&] { return slider().value() > 0 && slider().value() < slider().maximum(); }));
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Play"));
    const int paused = slider().value();
    press(Qt::Key_Space);
    EXPECT_TRUE(waitUntil([&] { return slider().value() > paused; })) << "it goes on from there";
    visit(Scenario::garden);
    EXPECT_TRUE(shows("Play"));
    store().send(Command::ignore);
    ASSERT_TRUE(waitUntil([&] { return !shows("Launch drone"); }));

    click("8×");
    click("Play");
    store().setSection(Section::cameras);
    settle();
    store().setSection(Section::history);
    settle();
    EXPECT_TRUE(shows("Play")) << "it does not run unseen";
    click("Play");
    EXPECT_TRUE(waitUntil([&] { return slider().value() == slider().maximum(); }));
    EXPECT_TRUE(waitUntil([&] { return shows("Play"); })) << "it ends by itself";
}

TEST_F(HistoryTest, TheSliderHasAGapWhereNothingWasRecorded) {
    look({flight()});
    const QImage picture = slider().grab().toImage();
    const auto colorAt = [&](double seconds) {
        const double x = Measure::replayThumb / 2 + seconds / 10 * (slider().width() - Measure::replayThumb);
        return picture.pixelColor(static_cast<int>(x), picture.height() / 2);
    };
    EXPECT_EQ(colorAt(1), SB::teal);
    EXPECT_EQ(colorAt(2.2), SB::page);
    EXPECT_EQ(colorAt(5.8), SB::page);
    EXPECT_EQ(colorAt(6.5), SB::teal);
    QTest::mouseClick(&slider(), Qt::LeftButton, {}, {slider().width() / 2, 4});
    settle();
    EXPECT_TRUE(shows("0:05 / 0:10"));
}

TEST_F(HistoryTest, ExportsAreWhatTheyPromise) {
    auto history = four();
    history[0] = flight();
    history[0].id = "M/../1";
    look(history);
    EXPECT_EQ(exported("Record as JSON…", "velmora-M----1.json").toStdString(), encode(history[0]).value());
    EXPECT_EQ(exported("Paths and notices as CSV…", "velmora-M----1.csv").toStdString(),
              pathsCsv(history[0]));
    click("Flown");
    EXPECT_EQ(exported("The list as CSV…", "velmora-M----1-list.csv").toStdString(),
              recordsCsv({history[0], history[2]}));
    const QWidget* map = find("Replay of the visitor's path and of the drone's, at most 42 m from its pad.");
    EXPECT_EQ(QImage::fromData(exported("Map as a picture…", "velmora-M----1.png")).size(), map->size() * 2);
    EXPECT_EQ(exported("Record as JSON…", "velmora-M----1.json", "/sys/"), QByteArray());
    settle();
    EXPECT_TRUE(shows("The file was not saved")) << "nobody may write there";
    click("Close");
    EXPECT_FALSE(shows("The file was not saved"));
}

} // namespace

} // namespace velmora
