// What the plain game does not tell: shapes in device pixels, texts that are too long for their
// place, and a player's grid that disagrees with the solution.
#include <gtest/gtest.h>

#include "platform/qt/common/screen_geometry.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class Board : public PlayedBoard {
protected:
    ~Board() override {
        handheld->Resize(1);
    }
    QImage Bar() {
        return handheld->Client().copy(0, 248, 240, 20);
    }
};

struct DevicePixels {
    double ratio;

    int At(int logical) const {
        return static_cast<int>(logical * ratio + 0.5);
    }
    int Thick() const {
        return static_cast<int>(ratio);
    }
    // The last cell that begins at the place or before it.
    int IndexOf(int place, int start) const {
        int index = 0;
        while (place >= At(start + (index + 1) * CellSize)) {
            ++index;
        }
        return index;
    }
    // The colour of an empty, unmarked board at this place on it.
    COLORREF ColorAt(const BoardRows& rows, int x, int y) const {
        const int row = IndexOf(y, 0);
        const int col = IndexOf(x, BoardLeft);
        const int fromLeft = x - At(BoardLeft + col * CellSize);
        const int fromTop = y - At(row * CellSize);
        if (fromLeft < Thick() || fromTop < Thick()) {
            return RGB(0, 0, 0);
        }
        if (rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] == '.') {
            return SquareColor;
        }
        // A bevel ends where the next logical pixel begins.
        const int left = At(BoardLeft + col * CellSize + 1) + Thick();
        const int top = At(row * CellSize + 1) + Thick();
        return x < left || y < top ? RGB(192, 192, 192) : BackgroundColor;
    }
};

TEST_F(Board, FillsOutlinesAndBevelsAreExactAtEveryRatio) {
    SquareColor = RGB(10, 90, 40);
    BackgroundColor = RGB(250, 240, 200);
    for (double ratio : {1.0, 1.37, 2.0, 3.0}) {
        handheld->Resize(ratio);
        for (MagnificationFlags size : {smallSize, largeSize}) {
            Play(lopsidedBoard, size);
            Repaint(MainWindow);
            const QImage shown = handheld->Client();
            const DevicePixels device{ScreenMagnification()};
            const int left = device.At(BoardLeft);
            const int right = device.At(BoardLeft + PuzzleWidth * CellSize);
            const int bottom = device.At(PuzzleHeight * CellSize);
            for (int y = 0; y < bottom; ++y) {
                for (int x = left; x < right; ++x) {
                    ASSERT_EQ(ColorAt(shown, x, y), device.ColorAt(lopsidedBoard, x, y))
                        << x << ", " << y << " at " << ratio;
                }
            }
            EXPECT_EQ(ColorAt(shown, right, bottom), RGB(0, 0, 0));
        }
    }
}

// A clue of two lines keeps both; what does not fit changes nothing.
TEST_F(Board, LongCluesAreCutAtTheBar) {
    Play(lopsidedBoard, smallSize);
    const QImage usual = Bar();
    std::vector<QImage> bars;
    for (const std::string& text : {std::string(60, 'W'), std::string(15000, 'W')}) {
        ClueTable[static_cast<std::size_t>(Cells[0].acrossClue)] = text.c_str();
        RepaintFully(MainWindow);
        bars.push_back(Bar());
        EXPECT_NE(bars.back().copy(0, 11, 240, 9), usual.copy(0, 11, 240, 9));
    }
    EXPECT_EQ(bars[0], bars[1]);
    ClueTable[static_cast<std::size_t>(Cells[0].acrossClue)] = "";
}

// Letters stay out of such a square and never replace it; only the whole puzzle's commands do.
TEST_F(Board, ABlackSquareOfThePlayersGridAloneIsOneToThePlayer) {
    Play(squareBoard, smallSize);
    AutoSkip = 1;
    PlayerGrid[8] = '.';
    SelectCell(1, 0, 0);
    handheld->Type("XYZ");
    EXPECT_EQ(PlayerLetters().substr(6, 6), "XZ.---");
    EXPECT_EQ(CursorCol, 1) << "the search for an empty cell stops before it";
    SelectCell(1, 2, 0);
    handheld->Type("Q");
    for (const char* menu : {"Fill", "Clear"}) {
        EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {menu, "Letter"}));
        EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {menu, "Word"}));
        EXPECT_EQ(PlayerGrid[8], '.');
    }
    EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {"Fill", "Puzzle"}));
    EXPECT_EQ(PlayerGrid[8], 'H');
}

}  // namespace
