// What the plain game does not tell: shapes in device pixels, and a player's grid that disagrees
// with the solution.

#include "board/hints.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class Board : public PlayedBoard {
protected:
    ~Board() override {
        handheld->Resize(1);
    }
};

TEST_F(Board, FillsOutlinesAndBevelsAreAsRecordedAtEveryRatio) {
    SquareColor = RGB(10, 90, 40);
    BackgroundColor = RGB(250, 240, 200);
    for (double ratio : {1.0, 1.37, 2.0, 3.0}) {
        handheld->Resize(ratio);
        for (MagnificationFlags size : {smallSize, largeSize}) {
            Play(lopsidedBoard, size);
            Repaint(MainWindow);
            const QImage shown = handheld->Client();
            const int height = static_cast<int>((PuzzleHeight * CellSize + 2) * ratio);
            std::ostringstream name;
            name << "Board of cells of " << CellSize << " at " << ratio;
            ExpectDrawnAsRecorded(shown.copy(0, 0, shown.width(), height), name.str());
        }
    }
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
    ShowWordSolution(MainWindow);
    const QImage hint = handheld->Client();
    PlayerGrid[8] = '-';
    ShowWordSolution(MainWindow);
    EXPECT_EQ(handheld->Client(), hint);
    PlayerGrid[8] = '.';
    for (const char* menu : {"Fill", "Clear"}) {
        EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {menu, "Letter"}));
        EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {menu, "Word"}));
        EXPECT_EQ(PlayerGrid[8], '.');
    }
    EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {"Fill", "Puzzle"}));
    EXPECT_EQ(PlayerGrid[8], 'H');
}

}  // namespace
