#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "board/board_painter.h"
#include "support/played_board.h"

namespace {

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
    const QImage three = play(3, 3);
    EXPECT_EQ(three.size(), QSize(720, 960));
    EXPECT_EQ(play(1, 3), three);
    const QImage odd = play(1.37, 1.37);
    EXPECT_EQ(play(3, 1.37), odd);
    const QImage one = play(1, 1);
    EXPECT_EQ(play(2.5, 1), one);
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

// Enlarged or smoothed edges would bring colours that nobody chose.
void ExpectChosenColoursOnly(const QImage& image) {
    const std::set<COLORREF> chosen = {RGB(0, 0, 0), RGB(255, 255, 255), RGB(192, 192, 192),
                                       RGB(255, 255, 2), RGB(255, 200, 125)};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_TRUE(chosen.contains(ColorAt(image, x, y))) << x << ", " << y;
        }
    }
}

TEST_F(Sharpness, EmptyBoardsHavePureColoursAndOutlinesOfOneThicknessAtEveryRatio) {
    for (double magnification : {1.0, 1.37, 1.9, 2.5, 3.0}) {
        SCOPED_TRACE(magnification);
        handheld->Resize(magnification);
        for (MagnificationFlags size : sizes) {
            Play(BoardRows(9, std::string(7, 'A')), size);
            const QImage buffer = BufferImage();
            ExpectChosenColoursOnly(buffer);
            const int middle = static_cast<int>((BoardLeft + CellSize / 2) * magnification);
            const auto across =
                BlackRuns(buffer, {0, static_cast<int>(CellSize / 2 * magnification)}, {1, 0});
            const auto down = BlackRuns(buffer, {middle, 0}, {0, 1});
            const int thickness = static_cast<int>(magnification);
            EXPECT_EQ(across, std::vector<int>(8, thickness));
            EXPECT_EQ(down, std::vector<int>(10, thickness));
        }
    }
}

// The last row of black pixels below a letter's cell and below a black square.
TEST_F(Sharpness, BlackSquaresEndWithTheOutlinesAtEveryRatio) {
    for (double magnification : {1.0, 1.37, 1.9, 2.5, 3.0}) {
        handheld->Resize(magnification);
        Play({"AB", "C."}, mediumSize);
        const QImage buffer = BufferImage();
        const auto lastBlack = [&](int logicalX) {
            int last = 0;
            for (int y = 0; y < buffer.height(); ++y) {
                const int x = static_cast<int>(logicalX * magnification);
                last = ColorAt(buffer, x, y) == RGB(0, 0, 0) ? y : last;
            }
            return last;
        };
        EXPECT_EQ(lastBlack(BoardLeft + 30), lastBlack(BoardLeft + 10)) << magnification;
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
