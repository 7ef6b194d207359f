#include "ui/history_fixture.h"

#include "model/csv.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

namespace velmora {

namespace {

TEST_F(HistoryTest, ARecordShowsItsFiguresAndFacts) {
    look({flight(), visitAt("Garden", "M-2", Outcome::ignored, false)});
    for (const char* fact :
         {"Duration, 0:10 min", "Furthest out, 42 m", "Battery used, 8 %", "Match, 88 % unknown",
          "Seen → 3 s → answered → 4 s → coming home → 3 s → landed",
          "The drone stayed at least 32.6 m inside the boundary and was 0 s in the 5 m buffer.",
          "Unknown person · M-1"})
        EXPECT_TRUE(shows(fact)) << fact;
    Settings settings = store().settings();
    settings.boundaryBuffer = 40;
    store().setSettings(settings);
    settle();
    EXPECT_TRUE(
        shows("The drone stayed at least 32.6 m inside the boundary and was 5 s in the 40 m buffer."));
    choose("You ignored");
    for (const char* fact :
         {"Furthest out, —", "Battery used, —", "Seen → 10 s → ended", "The drone did not fly."})
        EXPECT_TRUE(shows(fact)) << fact;
}

TEST_F(HistoryTest, TheReplayStepsByHalfASecondAndTheMapFollows) {
    look({flight()});
    const QString fullReplay = "Replay of the visitor's path and of the drone's, at most 42 m from its pad.",
                  before = "Replay of the visitor's path; the drone stayed on its pad.";
    EXPECT_TRUE(shows("0:10 / 0:10") && shows(fullReplay));
    slider().setFocus();
    press(Qt::Key_Home);
    EXPECT_TRUE(shows("0:00 / 0:10") && shows(before));
    press(Qt::Key_Right);
    EXPECT_EQ(slider().value(), 1);
    press(Qt::Key_Right);
    EXPECT_TRUE(shows("0:01 / 0:10")) << "two steps are one second";
    QTest::mouseClick(&notice("Battery below 30% — coming home"), Qt::LeftButton);
    settle();
    EXPECT_TRUE(shows("0:07 / 0:10") && shows(fullReplay)) << "the drone has taken off by then";
}

TEST_F(HistoryTest, TheLogFollowsTheReplay) {
    look({flight()});
    const auto highlighted = [&](const QString& text) { // by the halo of its dot
        const int x = (Measure::logTime + Measure::logTextX) / 2 - 6;
        return notice(text).grab().toImage().pixelColor(x, 9) == SB::dotBg;
    };
    for (const auto& [steps, first, second] : {std::tuple(5, false, false), std::tuple(6, true, false),
                                               std::tuple(14, false, true), std::tuple(20, false, false)}) {
        slider().setValue(steps);
        settle();
        EXPECT_EQ(highlighted("You approved the launch"), first) << steps;
        EXPECT_EQ(highlighted("Battery below 30% — coming home"), second) << steps;
    }
}

TEST_F(HistoryTest, AnotherRecordStartsAtItsTopWithDayAndTime) {
    auto history = four();
    history[3].start -= Seconds{30 * 86400};
    history[3].end = history[3].start + Seconds{10};
    look(history);
    resize(Measure::windowMinimum);
    detail().verticalScrollBar()->setValue(50);
    choose("Alert expired");
    EXPECT_EQ(detail().verticalScrollBar()->value(), 0);
    EXPECT_TRUE(shows("Garden · " + dayNameAndTime(history[3].start, now)));
}

TEST_F(HistoryTest, AWideWindowShowsTheRecordInTwoColumns) {
    look({flight()});
    const auto at = [&](const QString& name) {
        QWidget* widget = find(name);
        return widget ? QRect(widget->mapTo(&window(), QPoint()), widget->size()) : QRect();
    };
    const QString map = "Replay of the visitor's path and of the drone's, at most 42 m from its pad.";
    resize(Measure::windowDefault);
    EXPECT_EQ(at(map), QRect(640, 128, 680, 453));
    for (const auto& [size, width] :
         {std::pair(QSize(1920, 1200), 808), std::pair(QSize(2560, 1440), 1080)}) {
        resize(size);
        EXPECT_EQ(at(map), QRect(640, 128, width, (width * 2 + 1) / 3));
        EXPECT_EQ(at("Duration, 0:10 min").topLeft(), QPoint(640 + width + 32, 128));
        EXPECT_EQ(at("Match, 88 % unknown").topLeft(), QPoint(640 + width + 32 + 200, 198));
        EXPECT_EQ(at("Delete this visit").right(), 640 + width + 32 + 400 - 1);
    }
    const QImage response =
        find("Seen → 3 s → answered → 4 s → coming home → 3 s → landed")->grab().toImage();
    for (const auto& [x, color] : {std::pair(115, SB::purple), std::pair(285, SB::dot)})
        EXPECT_EQ(response.pixelColor(x, Measure::gap8 + Measure::responseBar / 2), color) << x;
    resize(Measure::windowMinimum);
    EXPECT_EQ(at(map).size(), QSize(496, 331)) << "no bars beside the plan";
}

TEST_F(HistoryTest, SpacePlaysFromTheStartAndAnAlertPausesTheReplay) {
    look({flight()});
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Pause")) << "from the list, too";
    slider().setFocus();
    EXPECT_TRUE(waitUntil([&] { return slider().value() > 0 && slider().value() < slider().maximum(); }));
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Play"));
    const int paused = slider().value();
    press(Qt::Key_Space);
    EXPECT_TRUE(waitUntil([&] { return slider().value() > paused; }))
        << "it continues from the paused position";
    visit(Scenario::garden);
    EXPECT_TRUE(shows("Play"));
    respond(Command::ignore);
    ASSERT_TRUE(waitUntil([&] { return !shows("Launch drone"); }));

    click("8×");
    click("Play");
    store().setSection(Section::cameras);
    settle();
    store().setSection(Section::history);
    settle();
    EXPECT_TRUE(shows("Play")) << "it pauses while hidden";
    click("Play");
    EXPECT_TRUE(waitUntil([&] { return slider().value() == slider().maximum(); }));
    EXPECT_TRUE(waitUntil([&] { return shows("Play"); })) << "it stops at the end";
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

TEST_F(HistoryTest, ExportsWriteTheOfferedFormats) {
    auto history = four();
    history[0] = flight();
    history[0].id = "M/../1";
    look(history);
    EXPECT_EQ(exported("Record as JSON…", "velmora-M----1.json").toStdString(), encode(history[0]).value());
    EXPECT_EQ(exported("Paths and notices as CSV…", "velmora-M----1.csv").toStdString(),
              pathsCsv(history[0]));
    click("Flown");
    EXPECT_EQ(exported("The list as CSV…", "velmora-visits.csv").toStdString(),
              recordsCsv({history[0], history[2]}));
    const QWidget* map = find("Replay of the visitor's path and of the drone's, at most 42 m from its pad.");
    EXPECT_EQ(QImage::fromData(exported("Map as a picture…", "velmora-M----1.png")).size(), map->size() * 2);
    EXPECT_EQ(exported("Record as JSON…", "velmora-M----1.json", "/sys/"), QByteArray());
    settle();
    EXPECT_TRUE(shows("The file was not saved")) << "the folder is not writable";
    click("Close");
    EXPECT_FALSE(shows("The file was not saved"));
}

} // namespace

} // namespace velmora
