#include "ui/blocks/wordmark.h"
#include "ui/look/tokens.h"
#include "ui/screens/live/phase_timeline.h"
#include "ui/served_fixture.h"
#include "ui/text_recorder.h"
#include "ui/window/status_badges.h"

namespace velmora {

namespace {

/// What small widgets paint besides their texts: it is there, and does not touch the texts.
class PaintedPartsTest : public ServedTest {
protected:
    template <class Widget>
    Widget& shown() {
        return *window().findChild<Widget*>();
    }
    /// The smallest rectangle with all pixels of the colour.
    static QRect areaOf(const QColor& color, const QImage& picture, QRect part) {
        part &= picture.rect();
        QRect area;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                if (picture.pixelColor(x, y) == color)
                    area |= QRect(x, y, 1, 1);
        return area;
    }
    /// Expects these texts, from top to bottom and left to right, apart from each other and in view.
    static std::vector<QRectF> expectTexts(QWidget& widget, const QStringList& texts) {
        std::vector<QRectF> areas;
        QStringList drawn;
        for (const DrawnText& text : TextRecorder::textsOf(widget)) {
            EXPECT_TRUE(text.clip.contains(text.rect)) << text.text.toStdString();
            for (const QRectF& other : areas)
                EXPECT_FALSE(other.intersects(text.rect.adjusted(0, 3, 0, -3))) << text.text.toStdString();
            areas.push_back(text.rect);
            drawn.append(text.text);
        }
        EXPECT_EQ(drawn.join(QString()), texts.join(QString())) << "digits may be drawn one by one";
        return areas;
    }
};

TEST_F(PaintedPartsTest, TheWordmarkIsAShieldBeforeTheName) {
    Wordmark mark(4, nullptr);
    mark.resize(160, mark.height());
    const QRectF name = expectTexts(mark, {"Velmora"}).front();
    const QImage picture = mark.grab().toImage();
    const QColor behind = picture.pixelColor(159, 0);
    const QRect shield(4, 3, 26, 26);
    EXPECT_GT(name.left(), shield.right());
    EXPECT_NEAR(name.center().y(), shield.center().y(), 3);
    const auto isPainted = [&](QPoint at) { return picture.pixelColor(shield.topLeft() + at) != behind; };
    EXPECT_TRUE(isPainted({13, 3}) && isPainted({4, 7}) && isPainted({21, 7}) && isPainted({13, 22}));
    EXPECT_FALSE(isPainted({1, 1}) || isPainted({24, 1}) || isPainted({3, 21}) || isPainted({22, 21}));
    EXPECT_EQ(picture.pixelColor(shield.topLeft() + QPoint(12, 16)), SB::page) << "the tip of the letter";
}

TEST_F(PaintedPartsTest, TheTimelineJoinsItsStepsInAColumnAndInALine) {
    PhaseTimeline timeline(nullptr);
    timeline.setPhase(Phase::enRoute);
    timeline.resize(288, timeline.height());
    const auto areas =
        expectTexts(timeline, {"Spotted", "Approved", "On its way", "Following", "Coming home", "Landed"});
    const QImage column = timeline.grab().toImage();
    for (int step = 0; step < 6; ++step)
        EXPECT_NEAR(areas[std::size_t(step)].center().y(), 14 + 28 * step, 3);
    for (const int step : {0, 1, 3, 4}) {
        const QRect between(0, 28 * step + 22, 20, 8);
        EXPECT_EQ(areaOf(step < 2 ? SB::teal : SB::rule, column, between), QRect(7, between.top(), 1, 8));
    }
    timeline.setLine(true);
    timeline.resize(320, timeline.height());
    const QRectF title = expectTexts(timeline, {"On its way"}).front();
    const QImage line = timeline.grab().toImage();
    const QColor behind = line.pixelColor(319, 0);
    for (const int between : {21, 49, int(title.right()) + 36, int(title.right()) + 64})
        EXPECT_NE(line.pixelColor(between, 14), behind) << between;
    for (int y = 0; y < 28; ++y)
        EXPECT_EQ(line.pixelColor(int(title.left()) - 2, y), behind) << y;
}

TEST_F(PaintedPartsTest, TheBatteryBarIsBesideItsNumberAndAsLongAsTheCharge) {
    LiveState state = mission(Phase::following);
    const auto barWidth = [&](double battery, const QColor& color) {
        state.drone.battery = battery;
        serve(state);
        auto& badge = shown<DroneBadge>();
        const auto texts = expectTexts(badge, {"Following", QString::number(battery) + '%'});
        const QRect words(badge.height() / 2 + 10, 0, badge.width(), badge.height());
        const QRect bar = areaOf(color, badge.grab().toImage(), words);
        EXPECT_LT(bar.right(), texts[1].left());
        EXPECT_NEAR(bar.center().y(), texts[1].center().y(), 2);
        EXPECT_GT(bar.top(), texts[0].center().y());
        return bar.width();
    };
    const int full = barWidth(100, SB::teal);
    EXPECT_NEAR(barWidth(50, SB::teal), full / 2.0, 2);
    EXPECT_NEAR(barWidth(25, SB::caution), full / 4.0, 2) << "low";
}

} // namespace

} // namespace velmora
