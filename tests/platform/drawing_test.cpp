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

QImage Drawn(QSize size, const TextMark& mark) {
    Surface surface(size.width(), size.height());
    surface.Draw(mark);
    return surface.Image();
}

QRect InkOf(const QImage& image) {
    QRect ink;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QPoint place(i % image.width(), i / image.width());
        ink |= image.pixel(place) == white ? QRect() : QRect(place, QSize(1, 1));
    }
    return ink;
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
        const FontChoice font{FontChoice::Face::System, below(2) == 0, below(40) + 1.0};
        const bool opaque = below(2) == 0;
        RECT box{below(60), below(40), 0, 0};
        box.right = box.left + below(40) - 2;
        box.bottom = box.top + below(30) - 2;
        const QImage image =
            Drawn({60, 40}, {box, texts[seed % 5], formats[below(4)], font, black, opaque, green});
        const QRect ink = InkOf(image);
        const QRect allowed = Scale{ratios[seed % 5]}.Area(box);
        EXPECT_TRUE(ink.isEmpty() || allowed.contains(ink));
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
        const auto greens = std::count(pixels, pixels + image.sizeInBytes() / 4, green);
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
                const FontChoice font{FontChoice::Face::System, true, cell * 0.8};
                const QImage image = Drawn(QSize(cell + 1, cell + 1),
                                           {{0, 0, cell + 1, cell + 1}, {letter}, centred, font});
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
        const FontChoice font{FontChoice::Face::System, false, 10};
        return Drawn({100, 40}, {{1, 0, 99, 40}, text, DT_WORDBREAK, font});
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

}  // namespace
