#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/served_fixture.h"

#include <QAbstractSlider>
#include <QLineEdit>

namespace velmora {

namespace {

constexpr int outset = 4; // the gap and the ring

class FocusRingTest : public ServedTest {
protected:
    FocusRing& ring() { return *window().findChild<FocusRing*>(); }
    QRect areaOf(const QWidget& widget) { return {widget.mapTo(&window(), QPoint()), widget.size()}; }
    /// The part of the window that the ring surrounds.
    QRect ringed() { return ring().geometry().adjusted(outset, outset, -outset, -outset); }
    /// Whether the ring is painted in the middle of its left side.
    bool isPainted() {
        const QRect at = ring().geometry();
        const QColor seen = window().grab().toImage().pixelColor(at.left() + 1, at.center().y());
        return seen == SB::blue || seen == SB::softBlue;
    }
    void expectAround(const QWidget& focused, std::string_view where) {
        SCOPED_TRACE(std::string(where) + ": " + focused.accessibleName().toStdString());
        ASSERT_TRUE(ring().isVisible());
        const QRect widget = areaOf(focused), parent = areaOf(*focused.parentWidget());
        EXPECT_TRUE(ringed() == widget || ringed() == parent ||
                    (widget.contains(ringed()) && qobject_cast<const QAbstractSlider*>(&focused)));
        EXPECT_TRUE(isPainted() || qobject_cast<const QLineEdit*>(&focused));
    }
};

TEST_F(FocusRingTest, TabPutsTheRingAroundEveryControl) {
    window().resize(1360, 1400);
    for (const auto& [section, id] : rawValuesOf<Section>) {
        store().setSection(section);
        settle();
        window().setFocus();
        for (int i = 0; i < 25; ++i) {
            press(Qt::Key_Tab);
            expectAround(*QApplication::focusWidget(), id);
        }
    }
}

TEST_F(FocusRingTest, OnlyTheKeyboardShowsTheRing) {
    window();
    press(Qt::Key_Tab);
    ASSERT_TRUE(ring().isVisible());
    click("Disarm");
    EXPECT_FALSE(ring().isVisible()) << "the focus went to the other button by itself";
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    expectAround(*find("Arm system"), "backtab");
    window().setFocus();
    EXPECT_FALSE(ring().isVisible());
    store().setSection(Section::history);
    settle();
    auto* search = find<QLineEdit>("Search the history");
    QTest::mouseClick(search, Qt::LeftButton);
    EXPECT_EQ(ringed(), areaOf(*search)) << "a field has its halo after a click, too";
}

TEST_F(FocusRingTest, TheRingFollowsItsControl) {
    window();
    store().setSection(Section::live);
    serve(mission(Phase::following));
    while (QApplication::focusWidget() != find("Hold position"))
        press(Qt::Key_Tab);
    const QRect before = ringed();
    window().resize(1500, 900);
    settle();
    EXPECT_NE(ringed(), before);
    expectAround(*find("Hold position"), "a larger window");
    serve(mission(Phase::docked));
    EXPECT_FALSE(ring().isVisible()) << "the control is hidden";
}

TEST_F(FocusRingTest, AScrollAreaCutsTheRingOff) {
    window().resize(Measure::windowMinimum);
    store().setSection(Section::settings);
    settle();
    while (QApplication::focusWidget()->accessibleName() != "Flight height")
        press(Qt::Key_Tab);
    ASSERT_TRUE(isPainted());
    QWidget* content = QApplication::focusWidget();
    while (content->parentWidget()->size() == content->size() || content->height() <= window().height())
        content = content->parentWidget();
    content->move(0, content->y() -
                         (ringed().center().y() - content->parentWidget()->mapTo(&window(), QPoint()).y()));
    settle();
    const QRect at = ring().geometry();
    const QImage shot = window().grab().toImage();
    EXPECT_NE(shot.pixelColor(at.center().x(), at.top() + 1), SB::blue) << "above the scroll area";
    EXPECT_EQ(shot.pixelColor(at.center().x(), at.bottom() - 1), SB::blue);
}

} // namespace

} // namespace velmora
