#include "ui/blocks/sb_button.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/live/note_row.h"
#include "ui/served_fixture.h"

namespace velmora {

namespace {

const QString holding = QStringLiteral("Holding at your boundary");

/// The live screen of a flight that a server reports.
class LiveNotesTest : public ServedTest {
protected:
    void SetUp() override {
        ServedTest::SetUp();
        store().setSection(Section::live);
        window();
        state = mission(Phase::following);
    }

    bool says(const QString& words) { return find(*window().findChild<NoteRow*>(), words) != nullptr; }
    void addUrgent(const std::string& text, Notice::Level level, Date time) {
        addNotice(state, {Uuid::fromRandomBits(7, ++ids_), time, text, level});
    }
    /// Lets the server answer twice a second for so long.
    void serveFor(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.5) {
            serve(state);
            pass(0.45);
            clock.advance(std::chrono::milliseconds(500));
        }
    }

    LiveState state;

private:
    std::uint64_t ids_ = 0;
};

TEST_F(LiveNotesTest, AnUrgentNoticeStandsTenSecondsWhateverItsOwnTime) {
    addUrgent("Known before", Notice::Level::alert, now);
    serve(state);
    EXPECT_FALSE(says("Known before")) << "it was there when the server was first heard";
    for (const double wrong : {-90'000.0, 0.0, 90'000.0}) {
        const std::string text = "Visitor has crossed your boundary " + std::to_string(int(wrong));
        addUrgent(text, Notice::Level::caution, now + Seconds{wrong});
        addUrgent("Nothing urgent", Notice::Level::info, now);
        serve(state);
        EXPECT_TRUE(says(toQString(text)));
        serveFor(9);
        EXPECT_TRUE(says(toQString(text))) << wrong;
        serveFor(1.5);
        EXPECT_FALSE(says(toQString(text))) << wrong;
    }
    EXPECT_FALSE(says("Nothing urgent"));
    EXPECT_TRUE(says("Keep the drone in sight while it flies"));
}

TEST_F(LiveNotesTest, ANoticeThatCameWhileAnotherScreenWasShownKeepsItsTime) {
    serve(state);
    store().setSection(Section::overview);
    addUrgent("Battery is low", Notice::Level::alert, now);
    serveFor(8);
    store().setSection(Section::live);
    settle();
    EXPECT_TRUE(says("Battery is low"));
    serveFor(3);
    EXPECT_FALSE(says("Battery is low"));
}

TEST_F(LiveNotesTest, TheNewestNoticeReplacesTheOneBefore) {
    serve(state);
    addUrgent("First", Notice::Level::caution, now);
    serveFor(6);
    addUrgent("Second", Notice::Level::alert, now);
    serveFor(6);
    EXPECT_TRUE(says("Second"));
    EXPECT_FALSE(says("First"));
    store().applyLinkMode(false);
    settle();
    EXPECT_TRUE(waitUntil([&] { return !says("Second"); })) << "it belongs to the server";
}

TEST_F(LiveNotesTest, TheRowSaysWhatHoldsTheDroneOrHowOldThePictureIs) {
    serve(state);
    EXPECT_FALSE(says(holding));
    state.atBoundary = true;
    serve(state);
    EXPECT_TRUE(says(holding));
    fly(3);
    EXPECT_EQ(store().freshness(), Freshness::stale);
    EXPECT_FALSE(says(holding));
    EXPECT_TRUE(says("Picture 2 s old") || says("Picture 3 s old"));
    state.phase = Phase::docked;
    serve(state);
    EXPECT_FALSE(says(holding));
}

TEST_F(LiveNotesTest, APendingCommandTakesNoFurtherPressUntilItsPhase) {
    serve(state);
    click("Hold position");
    const SBButton& hold = *find<SBButton>("Hold position");
    EXPECT_TRUE(hold.isSent());
    click("Hold position");
    EXPECT_EQ(link.posts.size(), 1U);
    click("Return home");
    EXPECT_EQ(lastPosted(), Command::returnHome) << "the owner may change their mind";
    EXPECT_FALSE(hold.isSent());
    EXPECT_TRUE(find<SBButton>("Return home")->isSent());
    state.phase = Phase::returning;
    serve(state);
    EXPECT_FALSE(find<SBButton>("Return home")->isSent());
    EXPECT_EQ(link.posts.size(), 2U);
}

TEST_F(LiveNotesTest, AFailedCommandSaysSoUntilTheNextPressOrPhase) {
    const QString failed = failureText(Command::hold, "The connection timed out");
    const auto fail = [&] {
        serve(state);
        click("Hold position");
        link.posts.back().done(LinkError{"The connection timed out"});
        settle();
        EXPECT_TRUE(says(failed));
        EXPECT_FALSE(find<SBButton>("Hold position")->isSent());
    };
    fail();
    serveFor(9);
    EXPECT_TRUE(says(failed));
    serveFor(1.5);
    EXPECT_FALSE(says(failed));
    fail();
    click("Return home");
    EXPECT_TRUE(waitUntil([&] { return !says(failed); }));
    fail();
    state.phase = Phase::returning;
    serve(state);
    EXPECT_TRUE(waitUntil([&] { return !says(failed); }));
    state.phase = Phase::following;
    serve(state);
    click("Hold position");
    link.posts.back().done(std::nullopt);
    serveFor(5.5);
    EXPECT_TRUE(says(failureText(Command::hold, {}))) << "the server replied, but nothing changed";
}

} // namespace

} // namespace velmora
