#include "platform/drawing.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/qt/surface/surface.h"
#include "support/played_board.h"

namespace {

constexpr double ratios[] = {1, 1.37, 2, 2.5, 3};
constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb black = 0xFF000000;
constexpr QRgb green = 0xFF00FF00;
constexpr UINT centred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

class Drawing : public testing::Test {
protected:
    ~Drawing() override {
        Surface::SetRatioOfAll(1);
    }
};

// A bitmap to draw on, with one font and green behind opaque text.
class Canvas {
public:
    Canvas(int width, int height, int fontHeight = -10, int weight = 0)
        : context(CreateCompatibleDC(nullptr)),
          oldBitmap(SelectObject(context, CreateCompatibleBitmap(context, width, height))) {
        LOGFONTW description;
        description.lfHeight = fontHeight;
        description.lfWeight = weight;
        std::u16string(u"System").copy(description.lfFaceName, LF_FACESIZE - 1);
        oldFont = SelectObject(context, CreateFontIndirectW(&description));
        SetBkColor(context, RGB(0, 255, 0));
        SetBkMode(context, TRANSPARENT);
    }
    ~Canvas() {
        DeleteObject(SelectObject(context, oldFont));
        DeleteObject(SelectObject(context, oldBitmap));
        DeleteDC(context);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    QImage DrawText(const std::u16string& text, RECT box, UINT format) const {
        DrawTextW(context, text.c_str(), -1, &box, format);
        return ImageOf(context);
    }

    const HDC context;

private:
    HGDIOBJ oldBitmap;
    HGDIOBJ oldFont;
};

// The places of all pixels of the colour, or of another than that.
std::vector<QPoint> PixelsOf(const QImage& image, QRgb color, bool wanted = true) {
    std::vector<QPoint> pixels;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QPoint place(i % image.width(), i / image.width());
        if ((image.pixel(place) == color) == wanted) {
            pixels.push_back(place);
        }
    }
    return pixels;
}

QRect InkOf(const QImage& image) {
    QRect ink;
    for (const QPoint pixel : PixelsOf(image, white, false)) {
        ink |= QRect(pixel, QSize(1, 1));
    }
    return ink;
}

// Pixel by pixel, each enlarged to a square. Faults: a right or bottom edge too much, the last
// point of a line, an outline that does not grow.
TEST_F(Drawing, ShapesCoverWholePixelsWithoutTheirLastOnes) {
    std::mt19937 random;
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int round = 0; round < 300; ++round) {
        const int ratio = round % 3 + 1;
        Surface::SetRatioOfAll(ratio);
        const Canvas canvas(12, 12);
        const QRect place(below(6) + 1, below(6) + 1, below(6), below(6));
        const QPoint end = place.topLeft() + QPoint(place.width(), place.height());
        QImage expected(12, 12, QImage::Format_RGB32);
        expected.fill(white);
        if (round % 2 == 0) {
            Rectangle(canvas.context, place.x(), place.y(), end.x(), end.y());
            for (int i = 0; i < place.width() * place.height(); ++i) {
                const QPoint inside(i % place.width(), i / place.width());
                const bool edge = inside.x() == 0 || inside.x() == place.width() - 1 ||
                                  inside.y() == 0 || inside.y() == place.height() - 1;
                expected.setPixel(place.topLeft() + inside, edge ? black : white);
            }
        } else {
            const bool back = round % 4 == 1;
            const POINT points[] = {
                {place.x(), place.y()}, {place.x(), end.y()}, {end.x(), end.y()}};
            const POINT backwards[] = {points[2], points[1], points[0]};
            Polyline(canvas.context, back ? backwards : points, 3);
            for (int y = place.y(); y <= end.y(); ++y) {
                expected.setPixel(place.x(), y, black);
            }
            for (int x = place.x(); x <= end.x(); ++x) {
                expected.setPixel(x, end.y(), black);
            }
            expected.setPixel(back ? place.topLeft() : end, white);
        }
        ASSERT_EQ(ImageOf(canvas.context), expected.scaled(12 * ratio, 12 * ratio))
            << "round " << round;
    }
}

TEST_F(Drawing, RoundedFramesReachFromEdgeToEdgeWithoutCorners) {
    const Canvas canvas(30, 20);
    RoundRect(canvas.context, 3, 2, 27, 18, 8, 8);
    EXPECT_EQ(InkOf(ImageOf(canvas.context)), QRect(3, 2, 24, 16));
    EXPECT_EQ(ImageOf(canvas.context).pixel(3, 2), white);
}

TEST_F(Drawing, TextNeverLeavesItsBoxAndHidesWhatIsUnderItOnlyWhenOpaque) {
    const std::u16string texts[] = {u"WWWWWWWWWWWW", u"1234567",
                                    u"Two words and \u00C5ngstr\u00F6m", u"Wj\u00C7g|\nline",
                                    u"\x01\x7F"};
    const UINT formats[] = {centred, DT_SINGLELINE, DT_WORDBREAK, 0};
    for (unsigned seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
        Surface::SetRatioOfAll(ratios[seed % 5]);
        const Canvas canvas(60, 40, below(60) - 20, below(2) * 700);
        const bool opaque = below(2) == 0;
        SetBkMode(canvas.context, opaque ? OPAQUE : TRANSPARENT);
        RECT box{below(60), below(40), 0, 0};
        box.right = box.left + below(40) - 2;
        box.bottom = box.top + below(30) - 2;
        const QImage image = canvas.DrawText(texts[seed % 5], box, formats[below(4)]);
        const QRect ink = InkOf(image);
        const QRect allowed = Scale{ratios[seed % 5]}.Area(box);
        EXPECT_TRUE(ink.isEmpty() || allowed.contains(ink));
        const std::size_t greens = PixelsOf(image, green).size();
        EXPECT_TRUE(opaque ? greens > 0 || ink.width() < 8 || ink.height() < 8 : greens == 0);
    }
}

// Letters with two like halves, so that their ink must be centred when they are; one that was
// enlarged would be made of squares.
TEST_F(Drawing, CentredLettersSitInTheMiddleAndAreSharp) {
    for (double ratio : {1.0, 3.0}) {
        Surface::SetRatioOfAll(ratio);
        for (int cell = 10; cell <= 40; cell += 3) {
            for (char16_t letter : std::u16string(u"AHIMOTUVWXY")) {
                const Canvas canvas(cell + 1, cell + 1, cell - 2, 700);
                const QImage image = canvas.DrawText({letter}, {0, 0, cell + 1, cell + 1}, centred);
                const QRect ink = InkOf(image);
                const QPoint unevenness = ink.topLeft() -
                                          QPoint(image.width() - 1, image.height() - 1) +
                                          ink.bottomRight();
                EXPECT_LE(std::abs(unevenness.x()), 2) << char(letter) << " in " << cell;
                EXPECT_LE(std::abs(unevenness.y()), 2) << char(letter) << " in " << cell;
                if (ratio == 3 && letter == u'O') {
                    EXPECT_NE(image.scaled(cell + 1, cell + 1).scaled(image.size()), image);
                }
            }
        }
    }
}

TEST_F(Drawing, WordsBreakIntoLinesThatFitTheBox) {
    const auto draw = [](const std::u16string& text) {
        return Canvas(100, 40).DrawText(text, {1, 0, 99, 40}, DT_WORDBREAK);
    };
    const QImage broken = draw(u"Considerable indescribable");
    EXPECT_EQ(broken, draw(u"Considerable\nindescribable"));
    EXPECT_NE(broken, draw(u"Considerable"));
    EXPECT_EQ(draw(u"a\tb\rc"), draw(u"a bc"));
}

class Sharpness : public PlayedBoard {};

// The same play at one size and at another, then made equal: the same picture everywhere.
TEST_F(Sharpness, AResizedScreenIsTheScreenOfThatSize) {
    const auto play = [this](double first, double second) {
        handheld.reset();
        std::filesystem::remove(home.stateFile());
        handheld = std::make_unique<Handheld>(home, first);
        Play(BoardRows(15, "ABCDEFGHIJKL.NO"), mediumSize);
        handheld->TapCell(2, 3);
        handheld->Type("SHARP");
        handheld->Drag({180, 150}, {150, 120});
        handheld->PressPanelButton();
        handheld->Type("EDGES");
        handheld->Resize(second);
        return handheld->Screen();
    };
    for (const auto& [first, second] : {std::pair(1.0, 3.0), {3.0, 1.37}, {2.5, 1.0}}) {
        EXPECT_EQ(play(first, second), play(second, second)) << first << " to " << second;
    }
}

// The lengths of the black runs along a row or column of pixels.
std::vector<int> BlackRuns(const QImage& image, QPoint start, QPoint step) {
    std::vector<int> runs;
    bool inRun = false;
    for (QPoint at = start; image.rect().contains(at); at += step) {
        const bool isBlack = image.pixel(at) == black;
        if (isBlack && !inRun) {
            runs.push_back(0);
        }
        inRun = isBlack;
        if (isBlack) {
            ++runs.back();
        }
    }
    return runs;
}

TEST_F(Sharpness, OutlinesHaveOneThicknessAtEveryRatio) {
    for (double ratio : ratios) {
        handheld->Resize(ratio);
        for (MagnificationFlags size : sizes) {
            Play(BoardRows(9, std::string(7, 'A')), size);
            const QImage buffer = BufferImage();
            const auto half = static_cast<int>(CellSize / 2 * ratio);
            const auto middle = static_cast<int>((BoardLeft + CellSize / 2) * ratio);
            const auto thickness = static_cast<int>(ratio);
            EXPECT_EQ(BlackRuns(buffer, {0, half}, {1, 0}), std::vector<int>(8, thickness));
            EXPECT_EQ(BlackRuns(buffer, {middle, 0}, {0, 1}), std::vector<int>(10, thickness));
        }
    }
}

}  // namespace
