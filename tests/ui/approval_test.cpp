#include "ui/approval_buttons.h"
#include "ui/ui_fixture.h"

#include <QAbstractButton>

namespace velmora {

namespace {

using ApprovalTest = UiTest;

TEST_F(ApprovalTest, IgnoresAnswersUntilTheGuardOpens) {
    window();
    visit(Scenario::driveway);
    const auto shown = clock.now();
    EXPECT_TRUE(waitUntil([&] {
        if (phase() == Phase::awaitingApproval && shows(launch)) {
            clickThrough(launch);
            press(Qt::Key_Return, Qt::ControlModifier);
        }
        return phase() == Phase::launching;
    }));
    EXPECT_GE(clock.now() - shown, PressRule::guardTime);
    tickAfter(0.05);
    EXPECT_EQ(store().section(), Section::live);
}

TEST_F(ApprovalTest, DoesNotCountDownToAnImplausibleDeadline) {
    linked();
    window();
    LiveState state = LiveState::initial();
    state.phase = Phase::awaitingApproval;
    const auto countdown = [&](double secondsLeft) {
        state.approvalDeadline = now + Seconds{secondsLeft};
        while (link.fetches.empty())
            tickAfter(0.05);
        std::exchange(link.fetches, {}).front()(FetchedState{state, ""});
        settle();
        return std::ranges::any_of(window().findChildren<QWidget*>(), [](const QWidget* widget) {
            return widget->accessibleName().contains("Expires in, ") &&
                   !widget->accessibleName().contains("—");
        });
    };
    EXPECT_TRUE(countdown(45));
    EXPECT_TRUE(countdown(3600));
    for (const double off : {0.0, -86'400.0, 3601.0, 2.5e11})
        EXPECT_FALSE(countdown(off)) << off;
}

TEST_F(ApprovalTest, TabStaysInTheCardAndNoButtonHasTheFirstFocus) {
    window();
    visit(Scenario::garden);
    ASSERT_TRUE(waitUntil([&] { return shows(launch); }));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
    for (const QString& next : {enlarge, ignore, launch, enlarge}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), find(next));
    }
}

} // namespace

} // namespace velmora
