#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "platform/canvas.h"
#include "platform/qt/surface.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);

class Drawing : public testing::Test {
protected:
    Drawing() {
        Surface::SetRatioOfAll(1);
    }
};

template <typename Expected>
void ExpectPixels(const Canvas& canvas, const Expected& expected) {
    const QImage image = canvas.Image();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(ColorAt(image, x, y), expected(x, y)) << x << ", " << y;
        }
    }
}

// Faults: right and bottom drawn, an outline left out on thin shapes, a fill beyond them.
TEST_F(Drawing, RectanglesLeaveOutRightAndBottom) {
    for (int width = 0; width <= 4; ++width) {
        for (int height = 0; height <= 4; ++height) {
            Canvas canvas(9, 8);
            canvas.UsePen(red);
            canvas.UseBrush(green);
            Rectangle(canvas.context, 3, 2, 3 + width, 2 + height);
            SCOPED_TRACE(testing::Message() << width << " by " << height);
            ExpectPixels(canvas, [=](int x, int y) {
                const int right = 3 + width - 1;
                const int bottom = 2 + height - 1;
                if (x < 3 || x > right || y < 2 || y > bottom) {
                    return white;
                }
                return x == 3 || x == right || y == 2 || y == bottom ? red : green;
            });
        }
    }
}

TEST_F(Drawing, LinesLeaveOutTheirLastPointFromEitherEnd) {
    struct Line {
        POINT from;
        POINT to;
    };
    for (const Line& line : {Line{{2, 3}, {6, 3}}, Line{{6, 3}, {2, 3}}, Line{{4, 1}, {4, 5}},
                             Line{{4, 5}, {4, 1}}, Line{{4, 4}, {4, 4}}}) {
        Canvas canvas(9, 8);
        canvas.UsePen(red);
        const POINT points[] = {line.from, line.to};
        EXPECT_TRUE(Polyline(canvas.context, points, 2));
        SCOPED_TRACE(testing::Message() << line.from.x << ", " << line.from.y);
        ExpectPixels(canvas, [&](int x, int y) {
            const bool within =
                x >= std::min(line.from.x, line.to.x) && x <= std::max(line.from.x, line.to.x) &&
                y >= std::min(line.from.y, line.to.y) && y <= std::max(line.from.y, line.to.y);
            return within && (x != line.to.x || y != line.to.y) ? red : white;
        });
    }
}

// The corners are smooth, so only what is certain is checked: edges, fill, bounds.
TEST_F(Drawing, RoundedRectanglesStayInside) {
    Canvas canvas(30, 20);
    canvas.UsePen(red);
    canvas.UseBrush(green);
    RoundRect(canvas.context, 3, 2, 27, 18, 8, 8);
    const QImage image = canvas.Image();
    EXPECT_EQ(ColorAt(image, 3, 10), red);
    EXPECT_EQ(ColorAt(image, 26, 10), red);
    EXPECT_EQ(ColorAt(image, 15, 2), red);
    EXPECT_EQ(ColorAt(image, 4, 10), green);
    EXPECT_EQ(ColorAt(image, 3, 2), white);
    for (int x = 0; x < 30; ++x) {
        EXPECT_EQ(ColorAt(image, x, 1), white);
        EXPECT_EQ(ColorAt(image, x, 18), white);
    }
}

// Faults: the source point taken for the target point, pixels from outside of the source.
TEST_F(Drawing, CopiesTakeTheRightPixelsAndWhiteFromOutside) {
    Canvas source(7, 5);
    std::mt19937 random(1);
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 7; ++x) {
            source.UsePen(random() & 0xFFFFFF);
            const POINT dot[] = {{x, y}, {x + 1, y}};
            Polyline(source.context, dot, 2);
        }
    }
    const QImage pixels = source.Image();
    for (const POINT from : {POINT{0, 0}, POINT{2, 1}, POINT{-2, -1}, POINT{4, 3}, POINT{9, 0}}) {
        Canvas target(10, 9);
        target.UsePen(red);
        target.UseBrush(green);
        Rectangle(target.context, -1, -1, 11, 10);
        EXPECT_TRUE(BitBlt(target.context, 3, 2, 5, 4, source.context, from.x, from.y, SRCCOPY));
        SCOPED_TRACE(testing::Message() << from.x << ", " << from.y);
        ExpectPixels(target, [&](int x, int y) {
            if (x < 3 || x >= 8 || y < 2 || y >= 6) {
                return green;
            }
            const int sourceX = x - 3 + from.x;
            const int sourceY = y - 2 + from.y;
            const bool inside = pixels.rect().contains(sourceX, sourceY);
            return inside ? ColorAt(pixels, sourceX, sourceY) : white;
        });
    }
}

// A tool deleted while it is in use would leave the context with nothing to draw with.
TEST_F(Drawing, ToolsInUseCannotBeDeleted) {
    HDC context = CreateCompatibleDC(nullptr);
    HPEN pen = CreatePen(PS_SOLID, 1, red);
    HGDIOBJ stock = SelectObject(context, pen);
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(stock));
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_EQ(SelectObject(context, stock), pen);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_TRUE(DeleteDC(context));
}

QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (ColorAt(image, x, y) != white) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

TEST_F(Drawing, TextNeverLeavesItsBox) {
    const std::u16string texts[] = {
        u"W", u"1234567", u"Two words and \u00C5ngstr\u00F6m", u"Wj\u00C7g|\nline", u"",
        u" ", u"\x01\x7F"};
    const UINT formats[] = {DT_CENTER | DT_VCENTER | DT_SINGLELINE, DT_SINGLELINE, DT_WORDBREAK, 0};
    for (unsigned seed = 1; seed <= 150; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
        Canvas canvas(60, 40);
        canvas.UseFont(below(2) == 0 ? -below(40) : below(40), below(2) == 0 ? 700 : 0);
        SetBkMode(canvas.context, below(2) == 0 ? OPAQUE : TRANSPARENT);
        SetBkColor(canvas.context, green);
        RECT box{below(60), below(40), 0, 0};
        box.right = box.left + below(40) - 2;
        box.bottom = box.top + below(30) - 2;
        const QRect allowed(QPoint(box.left, box.top), QPoint(box.right - 1, box.bottom - 1));
        DrawTextW(canvas.context, texts[seed % 7].c_str(), -1, &box, formats[below(4)]);
        const QRect ink = InkOf(canvas.Image());
        EXPECT_TRUE(ink.isEmpty() || allowed.contains(ink)) << "seed " << seed;
    }
}

// Letters with two like halves, so that their ink must be centred when they are.
TEST_F(Drawing, CentredLettersSitInTheMiddle) {
    for (double ratio : {1.0, 3.0}) {
        Surface::SetRatioOfAll(ratio);
        for (int cell = 10; cell <= 40; ++cell) {
            for (char16_t letter : std::u16string(u"AHIMOTUVWXY")) {
                Canvas canvas(cell + 1, cell + 1);
                canvas.UseFont(cell - 2, 700);
                RECT box{0, 0, cell + 1, cell + 1};
                DrawTextW(canvas.context, &letter, 1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
                const QImage image = canvas.Image();
                const QRect ink = InkOf(image);
                const int horizontal = ink.left() - (image.width() - 1 - ink.right());
                const int vertical = ink.top() - (image.height() - 1 - ink.bottom());
                EXPECT_LE(std::abs(horizontal), 2) << char(letter) << " in " << cell;
                EXPECT_LE(std::abs(vertical), 2) << char(letter) << " in " << cell;
            }
        }
    }
}

TEST_F(Drawing, WordsBreakIntoLinesThatFitTheBox) {
    const auto draw = [](const std::u16string& text) {
        Canvas canvas(100, 40);
        canvas.UseFont(-10, 0);
        RECT box{1, 0, 99, 40};
        DrawTextW(canvas.context, text.c_str(), -1, &box, DT_WORDBREAK);
        return canvas.Image();
    };
    const QImage broken = draw(u"Considerable indescribable");
    EXPECT_EQ(broken, draw(u"Considerable\nindescribable"));
    EXPECT_NE(broken, draw(u"Considerable"));
    EXPECT_EQ(draw(u"a\tb\rc"), draw(u"a bc"));
}

TEST_F(Drawing, OpaqueTextHidesWhatWasThereAndTransparentTextDoesNot) {
    for (int mode : {OPAQUE, TRANSPARENT}) {
        Canvas canvas(40, 20);
        canvas.UsePen(red);
        canvas.UseBrush(red);
        Rectangle(canvas.context, 0, 0, 40, 20);
        canvas.UseFont(-10, 0);
        SetBkMode(canvas.context, mode);
        SetBkColor(canvas.context, green);
        SetTextColor(canvas.context, RGB(0, 0, 255));
        RECT box{0, 0, 40, 20};
        DrawTextW(canvas.context, u"HH", -1, &box, DT_SINGLELINE);
        const QImage image = canvas.Image();
        int greens = 0;
        int blues = 0;
        for (int pixel = 0; pixel < 40 * 20; ++pixel) {
            const COLORREF color = ColorAt(image, pixel % 40, pixel / 40);
            greens += color == green;
            blues += GetBValue(color) > 150;
        }
        EXPECT_EQ(greens > 10, mode == OPAQUE);
        EXPECT_GT(blues, 5);
    }
}

}  // namespace
