#include "platform/drawing.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/qt/surface/surface.h"
#include "support/handheld.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF green = RGB(0, 255, 0);

class Drawing : public testing::Test {
protected:
    Drawing() {
        Surface::SetRatioOfAll(1);
    }
    ~Drawing() override {
        Surface::SetRatioOfAll(1);
    }
};

// A bitmap to draw on, with one font.
class Canvas {
public:
    Canvas(int width, int height, int fontHeight, int weight)
        : context(CreateCompatibleDC(nullptr)),
          oldBitmap(SelectObject(context, CreateCompatibleBitmap(context, width, height))) {
        LOGFONTW description;
        description.lfHeight = fontHeight;
        description.lfWeight = weight;
        std::u16string(u"System").copy(description.lfFaceName, LF_FACESIZE - 1);
        oldFont = SelectObject(context, CreateFontIndirectW(&description));
    }
    ~Canvas() {
        DeleteObject(SelectObject(context, oldFont));
        DeleteObject(SelectObject(context, oldBitmap));
        DeleteDC(context);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    QImage Image() const {
        return ImageOf(context);
    }

    const HDC context;

private:
    HGDIOBJ oldBitmap;
    HGDIOBJ oldFont;
};

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

// Thin shapes are where an outline drawn on the right and bottom edge would show.
TEST_F(Drawing, RectanglesLeaveOutRightAndBottom) {
    for (int width = 0; width <= 3; ++width) {
        for (int height = 0; height <= 3; ++height) {
            const Canvas canvas(9, 8, -10, 0);
            Rectangle(canvas.context, 3, 2, 3 + width, 2 + height);
            const bool empty = width == 0 || height == 0;
            EXPECT_EQ(InkOf(canvas.Image()), empty ? QRect() : QRect(3, 2, width, height));
        }
    }
}

TEST_F(Drawing, LinesLeaveOutTheirLastPointFromEitherEnd) {
    const auto ink = [](POINT from, POINT to) {
        const Canvas canvas(9, 8, -10, 0);
        const POINT points[] = {from, to};
        EXPECT_TRUE(Polyline(canvas.context, points, 2));
        return InkOf(canvas.Image());
    };
    EXPECT_EQ(ink({2, 3}, {6, 3}), QRect(2, 3, 4, 1));
    EXPECT_EQ(ink({6, 3}, {2, 3}), QRect(3, 3, 4, 1));
    EXPECT_EQ(ink({4, 1}, {4, 5}), QRect(4, 1, 1, 4));
    EXPECT_EQ(ink({4, 5}, {4, 1}), QRect(4, 2, 1, 4));
    EXPECT_EQ(ink({4, 4}, {4, 4}), QRect());
}

TEST_F(Drawing, RoundedFramesReachFromEdgeToEdgeWithoutCorners) {
    const Canvas canvas(30, 20, -10, 0);
    RoundRect(canvas.context, 3, 2, 27, 18, 8, 8);
    const QImage image = canvas.Image();
    EXPECT_EQ(InkOf(image), QRect(3, 2, 24, 16));
    EXPECT_EQ(ColorAt(image, 3, 2), white);
}

TEST_F(Drawing, TextNeverLeavesItsBox) {
    const std::u16string texts[] = {
        u"W", u"1234567", u"Two words and \u00C5ngstr\u00F6m", u"Wj\u00C7g|\nline", u"",
        u" ", u"\x01\x7F"};
    const UINT formats[] = {DT_CENTER | DT_VCENTER | DT_SINGLELINE, DT_SINGLELINE, DT_WORDBREAK, 0};
    for (unsigned seed = 1; seed <= 150; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
        const int fontHeight = below(2) == 0 ? -below(40) : below(40);
        const Canvas canvas(60, 40, fontHeight, below(2) == 0 ? 700 : 0);
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
                const Canvas canvas(cell + 1, cell + 1, cell - 2, 700);
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
        const Canvas canvas(100, 40, -10, 0);
        RECT box{1, 0, 99, 40};
        DrawTextW(canvas.context, text.c_str(), -1, &box, DT_WORDBREAK);
        return canvas.Image();
    };
    const QImage broken = draw(u"Considerable indescribable");
    EXPECT_EQ(broken, draw(u"Considerable\nindescribable"));
    EXPECT_NE(broken, draw(u"Considerable"));
    EXPECT_EQ(draw(u"a\tb\rc"), draw(u"a bc"));
}

TEST_F(Drawing, OnlyOpaqueTextHidesWhatIsUnderIt) {
    for (int mode : {OPAQUE, TRANSPARENT}) {
        const Canvas canvas(40, 20, -10, 0);
        SetBkMode(canvas.context, mode);
        SetBkColor(canvas.context, green);
        RECT box{0, 0, 40, 20};
        DrawTextW(canvas.context, u"HH", -1, &box, DT_SINGLELINE);
        const QImage image = canvas.Image();
        int greens = 0;
        for (int pixel = 0; pixel < 40 * 20; ++pixel) {
            greens += ColorAt(image, pixel % 40, pixel / 40) == green;
        }
        EXPECT_FALSE(InkOf(image).isEmpty());
        EXPECT_EQ(greens > 10, mode == OPAQUE);
    }
}

}  // namespace
