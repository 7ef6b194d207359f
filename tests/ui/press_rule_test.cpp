#include "ui/guard/key_presses.h"
#include "ui/guard/press_rule.h"

#include <QtCore/qnamespace.h>
#include <gtest/gtest.h>

namespace velmora {

namespace {

using namespace std::chrono_literals;

/// A card, a window, and an event loop that runs or stalls.
class PressRuleTest : public testing::Test {
protected:
    void run(EventTime time) {
        for (EventTime passed{}; passed < time; passed += 50ms)
            rule.beat(now += 50ms);
    }
    bool counts() { return rule.beat(now) && rule.counts(now); }

    PressRule rule;
    EventTime now = 10s;
};

TEST_F(PressRuleTest, APressCountsAfterCardAndWindowWereShownForTheGuardTime) {
    rule.windowActivated(now);
    run(5s);
    EXPECT_FALSE(counts()) << "no card yet";
    rule.cardPainted(now);
    run(550ms);
    EXPECT_FALSE(counts());
    run(50ms);
    EXPECT_TRUE(counts());
    EXPECT_FALSE(rule.counts(now - 1ms)) << "the time of the press decides, not of its handling";
    rule.windowDeactivated();
    EXPECT_FALSE(counts());
    rule.windowActivated(now);
    run(550ms);
    EXPECT_FALSE(counts());
    run(50ms);
    EXPECT_TRUE(counts());
    rule.restart(now);
    EXPECT_FALSE(counts());
    run(600ms);
    EXPECT_TRUE(counts());
    rule.cardGone();
    EXPECT_FALSE(counts());
}

TEST_F(PressRuleTest, AStallRestartsTheGuardTimeInEitherEventOrder) {
    rule.windowActivated(now);
    for (const bool pressFirst : {true, false}) {
        rule.cardPainted(now);
        run(700ms);
        now += PressRule::longestGap + 1ms;
        if (!pressFirst) {
            EXPECT_FALSE(rule.beat(now));
        }
        EXPECT_FALSE(rule.beat(now) && rule.counts(now - 100ms)) << pressFirst;
        run(550ms);
        EXPECT_FALSE(counts());
        run(50ms);
        EXPECT_TRUE(counts());
    }
}

TEST(EventClockTest, ALateEventIsDatedByItsTimeStamp) {
    for (const std::uint64_t zero : {1ull, 77'000ull, 0xFFFF'FF00ull}) { // the last one wraps at 32 bits
        EventClock clock;
        const auto began = [&](std::uint64_t stamp, EventTime now) {
            return clock.began((zero + stamp) & 0xFFFF'FFFF, now).count();
        };
        EXPECT_EQ(began(1000, 5020ms), 5020) << "nothing to compare with";
        EXPECT_EQ(began(1100, 5110ms), 5110) << "the shortest delay so far";
        EXPECT_EQ(began(1200, 5500ms), 5210);
        EXPECT_EQ(began(1500, 5512ms), 5510);
        EXPECT_EQ(clock.began(0, 5600ms).count(), 5600) << "no time stamp";
        EXPECT_EQ(began(70'000, 80'000ms), 80'000) << "recalibrates after a minute, as clocks drift";
    }
}

/// A keyboard whose events have time stamps while `stamped` is set.
class KeyPressesTest : public testing::Test {
protected:
    /// Whether the press counts: not a repeat, and no other answer key is down.
    bool counts(int key, int time, bool flagged = false) {
        const KeyPresses::Press press =
            keys.pressed({codeOf(key), KeyPresses::isAnswerKey(key), stamp(time), EventTime(time), flagged});
        return !press.isRepeat && press.othersUp;
    }
    void release(int key, int time, int arrival = 0) {
        keys.released({codeOf(key), KeyPresses::isAnswerKey(key), stamp(arrival > 0 ? 0 : time),
                       EventTime(arrival > 0 ? arrival : time)});
    }
    /// The space bar produces a no-break space with some modifiers.
    static std::uint32_t codeOf(int key) {
        return static_cast<std::uint32_t>(key == Qt::Key_nobreakspace ? Qt::Key_Space : key);
    }
    std::uint64_t stamp(int time) const { return stamped ? static_cast<std::uint64_t>(time) : 0; }

    KeyPresses keys;
    bool stamped = true;
};

TEST_F(KeyPressesTest, DetectsARepeatWithoutTheToolkitsFlag) {
    EXPECT_TRUE(counts(Qt::Key_Return, 100));
    for (int time = 760; time < 2000; time += 33) {
        release(Qt::Key_Return, time);
        EXPECT_FALSE(counts(Qt::Key_Return, time)) << time;
    }
    EXPECT_FALSE(counts(Qt::Key_Space, 2010)) << "Return is still down";
    release(Qt::Key_Space, 2050);
    release(Qt::Key_Return, 2100);
    EXPECT_TRUE(counts(Qt::Key_Return, 2160));
    EXPECT_FALSE(counts(Qt::Key_Return, 2170)) << "a repeat whose release was not sent";
    release(Qt::Key_Return, 2200);
    EXPECT_FALSE(counts(Qt::Key_Return, 2300, true)) << "a set flag marks a repeat";
    keys.forget(); // the window lost the keyboard while the key was down
    release(Qt::Key_Return, 3000);
    EXPECT_FALSE(counts(Qt::Key_Return, 3000)) << "held since before the window got the focus";
    release(Qt::Key_Return, 3100);
    stamped = false;
    EXPECT_TRUE(counts(Qt::Key_Return, 3101)) << "a platform without time stamps";
}

TEST_F(KeyPressesTest, AKeyThatTheKeyboardReportsAsUpIsNotHeldAfterwards) {
    const auto noticeUp = [this](int up, int time) {
        keys.noticeUp([=](std::uint32_t code) { return code == codeOf(up); }, EventTime(time));
    };
    EXPECT_TRUE(counts(Qt::Key_Escape, 100));
    noticeUp(Qt::Key_Return, 150);
    EXPECT_FALSE(counts(Qt::Key_Return, 200)) << "Escape is down";
    release(Qt::Key_Return, 210);
    noticeUp(Qt::Key_Escape, 300);
    EXPECT_FALSE(counts(Qt::Key_Return, 290)) << "it began before the report";
    release(Qt::Key_Return, 295);
    EXPECT_TRUE(counts(Qt::Key_Return, 320));
    noticeUp(Qt::Key_Return, 400);
    EXPECT_FALSE(counts(Qt::Key_Return, 390)) << "a repeat that was delivered late";
    noticeUp(Qt::Key_Return, 450);
    EXPECT_TRUE(counts(Qt::Key_Return, 500)) << "its release was lost, too";
    EXPECT_FALSE(counts(Qt::Key_Return, 600)) << "down again since the report";
    noticeUp(Qt::Key_Return, 650);
    stamped = false;
    EXPECT_FALSE(counts(Qt::Key_Return, 700)) << "without a time stamp its start is unknown";
}

TEST_F(KeyPressesTest, DetectsARepeatWhoseReleaseIsLateAndHasNoTimeStamp) {
    EXPECT_TRUE(counts(Qt::Key_Return, 100));
    release(Qt::Key_Return, 760, 764);
    EXPECT_FALSE(counts(Qt::Key_Return, 760));
    release(Qt::Key_Return, 800, 804);
    EXPECT_TRUE(counts(Qt::Key_Return, 870));
}

TEST_F(KeyPressesTest, ReleasesAKeyThatReportsAnotherKeyCode) {
    EXPECT_TRUE(counts(Qt::Key_Space, 100));
    release(Qt::Key_nobreakspace, 180);
    EXPECT_TRUE(counts(Qt::Key_Return, 300));
    release(Qt::Key_Return, 380);
    EXPECT_TRUE(counts(Qt::Key_A, 400));
    EXPECT_FALSE(counts(Qt::Key_A, 430)) << "repeats of other keys are ignored too";
    EXPECT_TRUE(counts(Qt::Key_Space, 450)) << "only answer keys must be up";
}

} // namespace

} // namespace velmora
