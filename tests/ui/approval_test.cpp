#include "ui/ui_fixture.h"

#include <QAbstractButton>
#include <QElapsedTimer>

namespace velmora {

namespace {

const QString launch = QStringLiteral("Launch drone"), ignore = QStringLiteral("Ignore");

using ApprovalTest = UiTest;

TEST_F(ApprovalTest, NoAnswerCountsInTheFirstMoment) {
    constexpr qint64 guard = 600; // milliseconds
    window();
    QElapsedTimer sinceAlert;
    sinceAlert.start();
    visit(Scenario::driveway);
    EXPECT_TRUE(waitUntil([&] {
        if (phase() == Phase::awaitingApproval && shows(launch)) {
            click(launch);
            QTest::keyClick(&window(), Qt::Key_Return, Qt::ControlModifier);
        }
        return phase() == Phase::launching;
    }));
    EXPECT_GE(sinceAlert.elapsed(), guard);
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
