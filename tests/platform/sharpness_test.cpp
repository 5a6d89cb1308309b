#include <gtest/gtest.h>

#include <random>
#include <set>

#include "board/board_painter.h"
#include "platform/canvas.h"
#include "platform/qt/surface.h"
#include "support/played_board.h"

namespace {

class Sharpness : public PlayedBoard {};

// A little of everything, and enough to make a surface forget what is hidden.
void Scribble(HDC context, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int i = 0; i < 150; ++i) {
        const HPEN pen = CreatePen(PS_SOLID, 1, random() & 0xFFFFFF);
        const HBRUSH brush = CreateSolidBrush(random() & 0xFFFFFF);
        HGDIOBJ oldPen = SelectObject(context, pen);
        HGDIOBJ oldBrush = SelectObject(context, brush);
        RECT box{below(60), below(50), 0, 0};
        box.right = box.left + below(60);
        box.bottom = box.top + below(50);
        const POINT line[] = {{box.left, box.top}, {box.right, box.top}};
        switch (below(5)) {
            case 0:
                Rectangle(context, box.left, box.top, box.right, box.bottom);
                break;
            case 1:
                RoundRect(context, box.left, box.top, box.right, box.bottom, 6, 6);
                break;
            case 2:
                Polyline(context, line, 2);
                break;
            case 3:
                PatBlt(context, box.left, box.top, below(30), below(30), WHITENESS);
                break;
            default:
                DrawTextW(context, u"Words", -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        }
        SelectObject(context, oldPen);
        SelectObject(context, oldBrush);
        DeleteObject(pen);
        DeleteObject(brush);
    }
}

class Redrawn : public testing::TestWithParam<double> {
protected:
    ~Redrawn() override {
        Surface::SetRatioOfAll(1);
    }
};

// Faults: enlarged pixels instead of a fresh drawing, marks forgotten that can still be seen.
TEST_P(Redrawn, SurfacesLookAsIfDrawnAtTheNewRatio) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Surface::SetRatioOfAll(1);
        Canvas early(70, 60);
        Scribble(early.context, seed);
        Surface::SetRatioOfAll(GetParam());
        Canvas late(70, 60);
        Scribble(late.context, seed);
        EXPECT_EQ(early.Image(), late.Image()) << "seed " << seed;
    }
}

TEST_P(Redrawn, CopiesCarryWhatTheyCopied) {
    Surface::SetRatioOfAll(1);
    Canvas target(70, 60);
    const auto copyFrom = [](Canvas& to, unsigned seed, int x, int y) {
        Canvas source(70, 60);
        Scribble(source.context, seed);
        BitBlt(to.context, 7, 5, 50, 45, source.context, x, y, SRCCOPY);
        Scribble(source.context, seed + 1);  // must not be seen in the copy
    };
    copyFrom(target, 3, 0, 0);
    Surface::SetRatioOfAll(GetParam());
    Canvas late(70, 60);
    copyFrom(late, 3, 0, 0);
    EXPECT_EQ(target.Image(), late.Image());
}

INSTANTIATE_TEST_SUITE_P(Ratios, Redrawn, testing::Values(2.0, 3.0, 1.37, 2.5));

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
    const QImage three = play(3, 3);
    EXPECT_EQ(three.size(), QSize(720, 960));
    EXPECT_EQ(play(1, 3), three);
    const QImage odd = play(1.37, 1.37);
    EXPECT_EQ(play(3, 1.37), odd);
    const QImage one = play(1, 1);
    EXPECT_EQ(play(2.5, 1), one);
}

// Enlarged or smoothed edges would bring colours that nobody chose.
TEST_F(Sharpness, EmptyBoardsHoldPureColoursAtEveryRatio) {
    for (double magnification : {1.37, 2.5, 3.0}) {
        handheld->Resize(magnification);
        Play(lopsidedBoard, mediumSize);
        const std::set<COLORREF> chosen = {RGB(0, 0, 0), RGB(255, 255, 255), RGB(192, 192, 192),
                                           RGB(255, 255, 2), RGB(255, 200, 125)};
        const QImage buffer = BufferImage();
        for (int y = 0; y < buffer.height(); ++y) {
            for (int x = 0; x < buffer.width(); ++x) {
                ASSERT_TRUE(chosen.count(ColorAt(buffer, x, y)) == 1)
                    << x << ", " << y << " at " << magnification;
            }
        }
    }
}

// The lengths of the black runs along a line of pixels.
std::vector<int> BlackRuns(const QImage& image, QPoint start, QPoint step) {
    std::vector<int> runs;
    bool inRun = false;
    for (QPoint at = start; image.rect().contains(at); at += step) {
        const bool black = ColorAt(image, at.x(), at.y()) == RGB(0, 0, 0);
        if (black && !inRun) {
            runs.push_back(0);
        }
        inRun = black;
        if (black) {
            ++runs.back();
        }
    }
    return runs;
}

TEST_F(Sharpness, OutlinesAreEquallyThickAtEveryRatio) {
    for (double magnification : {1.0, 1.37, 1.9, 2.5, 3.0}) {
        handheld->Resize(magnification);
        for (MagnificationFlags size : {smallSize, mediumSize, largeSize}) {
            Play(BoardRows(9, std::string(7, 'A')), size);
            const QImage buffer = BufferImage();
            const int middle = static_cast<int>((BoardLeft + CellSize / 2) * magnification);
            const auto across = BlackRuns(buffer, {0, static_cast<int>(
                                                          CellSize / 2 * magnification)}, {1, 0});
            const auto down = BlackRuns(buffer, {middle, 0}, {0, 1});
            const int thickness = static_cast<int>(magnification);
            EXPECT_EQ(across, std::vector<int>(8, thickness)) << magnification;
            EXPECT_EQ(down, std::vector<int>(10, thickness)) << magnification;
        }
    }
}

// A letter that was enlarged would be made of blocks of three by three.
TEST_F(Sharpness, LettersHaveTheDetailOfTheirRatio) {
    handheld->Resize(3);
    Play({"OS", "CG"}, mediumSize);
    for (int i = 0; i < 4; ++i) {
        PlayerGrid[i] = SolutionGrid[i];
    }
    PaintBoard(MainWindow);
    const QImage buffer = BufferImage();
    int mixedBlocks = 0;
    for (int y = 0; y + 2 < 3 * 41; y += 3) {
        for (int x = 3 * BoardLeft; x + 2 < 3 * (BoardLeft + 41); x += 3) {
            const QImage block = buffer.copy(x, y, 3, 3);
            QImage plain = block;
            plain.fill(block.pixelColor(0, 0));
            mixedBlocks += block != plain;
        }
    }
    EXPECT_GT(mixedBlocks, 4 * 15);
}

}  // namespace
