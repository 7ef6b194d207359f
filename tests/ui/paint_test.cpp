#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// A white picture of 40 x 40 units after `paint`.
template <class Paint>
QImage painted(Paint paint, double scale = 1) {
    QImage image(QSizeF(40 * scale, 40 * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    return image;
}

int pixelsOf(const QColor& color, const QImage& image) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            found += image.pixelColor(x, y) == color;
    return found;
}

TEST(PaintTest, AHairlineIsSharpAndEquallyThickAtEveryScale) {
    for (const auto& [scale, thickness] :
         {std::pair(1.0, 1), {1.25, 1}, {1.5, 1}, {1.75, 1}, {2.0, 2}, {3.0, 3}})
        for (int at = 0; at < 39; ++at)
            for (const bool upright : {false, true}) {
                const QRect line = upright ? QRect(at, 0, 1, 40) : QRect(0, at, 40, 1);
                const QImage image =
                    painted([&](QPainter& painter) { paintHairline(painter, line, SB::teal); }, scale);
                const int length = upright ? image.height() : image.width();
                EXPECT_EQ(pixelsOf(SB::teal, image), thickness * length) << scale << ' ' << at;
                EXPECT_EQ(pixelsOf(Qt::white, image), image.width() * image.height() - thickness * length);
                const int middle = static_cast<int>((at + 0.5) * scale);
                const QPoint on = upright ? QPoint(middle, 20) : QPoint(20, middle);
                const QPoint before = upright ? on - QPoint(1, 0) : on - QPoint(0, 1);
                EXPECT_TRUE(image.pixelColor(on) == SB::teal || image.pixelColor(before) == SB::teal)
                    << "at its own position";
            }
}

TEST(PaintTest, ShapesKeepToTheirRectanglesAndABorderIsInside) {
    const auto ink = [](const QImage& image) {
        QRect area;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    area |= QRect(x, y, 1, 1);
        return area;
    };
    const QRect rect(5, 7, 20, 12);
    const QImage plain = painted([&](QPainter& painter) { fillRounded(painter, rect, 4, SB::teal); });
    const QImage bordered =
        painted([&](QPainter& painter) { fillRounded(painter, rect, 4, SB::teal, SB::ink); });
    EXPECT_EQ(ink(plain), rect);
    EXPECT_EQ(ink(bordered), rect);
    EXPECT_EQ(plain.pixelColor(5, 13), SB::teal);
    EXPECT_EQ(bordered.pixelColor(5, 13), SB::ink);
    EXPECT_EQ(bordered.pixelColor(6, 13), SB::teal);
    EXPECT_EQ(plain.pixelColor(5, 7), QColor(Qt::white)) << "a round corner";
    const QRect disc(10, 10, 12, 12);
    const QImage filled = painted([](QPainter& painter) { fillDisc(painter, {16, 16}, 12, SB::teal); });
    const QImage ring = painted([](QPainter& painter) {
        fillDisc(painter, {16, 16}, 12, SB::teal, SB::ink, 2);
    });
    EXPECT_EQ(ink(filled), disc);
    EXPECT_EQ(ink(ring), disc);
    EXPECT_EQ(filled.pixelColor(11, 16), SB::teal) << "the outermost pixels may be smoothed";
    for (const auto& [x, color] : {std::pair(11, SB::ink), {13, SB::teal}, {16, SB::teal}})
        EXPECT_EQ(ring.pixelColor(x, 16), color) << x;
    EXPECT_NEAR(pixelsOf(SB::teal, filled), 3.14 * 36, 30);
}

TEST(PaintTest, AShadowIsDarkestAtTheEdgeAndFadesOutBelow) {
    const QImage image = painted([](QPainter& painter) {
        paintShadow(painter, {12, 8, 16, 14}, 3, {.offset = 4, .blur = 10, .opacity = 0.4});
    });
    const auto darkness = [&](int y) { return 255 - image.pixelColor(20, y).red(); };
    EXPECT_NEAR(darkness(19), 0.4 * (255 - SB::navy.red()), 4) << "the complete opacity below the rectangle";
    for (int y = 22; y < 30; ++y)
        EXPECT_GT(darkness(y), darkness(y + 1)) << y;
    EXPECT_EQ(darkness(8 + 14 + 4 + 5), 0) << "half of the blur below its edge";
    EXPECT_EQ(darkness(6), 0) << "above, the offset hides half of the blur";
    EXPECT_EQ(image.pixelColor(12 - 6, 19), QColor(Qt::white));
    EXPECT_NE(image.pixelColor(12 - 3, 19), QColor(Qt::white));
}

TEST(PaintTest, AnAreaInACornerMayReachOutsideARoundedRectangle) {
    const QRect rect(10, 10, 30, 20);
    EXPECT_TRUE(liesInside({14, 10, 5, 20}, rect, 4)) << "between the corners";
    EXPECT_TRUE(liesInside({10, 14, 30, 12}, rect, 3.5));
    EXPECT_FALSE(liesInside({13, 10, 5, 5}, rect, 4));
    EXPECT_FALSE(liesInside({10, 13, 5, 5}, rect, 4));
    EXPECT_FALSE(liesInside({35, 20, 6, 5}, rect, 4)) << "past the edge";
    EXPECT_FALSE(liesInside({36, 26, 4, 4}, rect, 4));
}

} // namespace

} // namespace velmora
