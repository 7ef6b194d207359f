#include "ui/ui_fixture.h"

#include <QAbstractButton>

namespace velmora {

namespace {

const QString launch = QStringLiteral("Launch drone"), ignore = QStringLiteral("Ignore");

using ApprovalTest = UiTest;

TEST_F(ApprovalTest, AnAnswerCountsOnlyAfterTheGuard) {
    window();
    visit(Scenario::driveway);
    ASSERT_TRUE(waitUntil([&] { return shows(launch); }));
    click(launch);
    QTest::keyClick(&window(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(phase(), Phase::awaitingApproval);
    EXPECT_TRUE(waitUntil([&] {
        if (phase() == Phase::awaitingApproval)
            click(launch);
        return phase() == Phase::launching;
    }));
    tickAfter(0.05);
    EXPECT_EQ(store().section(), Section::live);
}

TEST_F(ApprovalTest, FocusStaysInTheCardAndBeginsNowhere) {
    window();
    visit(Scenario::garden);
    ASSERT_TRUE(waitUntil([&] { return shows(launch); }));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find(ignore));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find(launch));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find(ignore));
}

} // namespace

} // namespace velmora
