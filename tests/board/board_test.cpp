// What the plain game does not tell: shapes in device pixels.

#include "support/played_board.h"

namespace {

using Board = PlayedBoard;

TEST_F(Board, FillsOutlinesAndBevelsAreAsRecordedAtEveryRatio) {
    SquareColor = RGB(10, 90, 40);
    BackgroundColor = RGB(250, 240, 200);
    for (double ratio : {1.0, 1.37, 2.0, 3.0}) {
        handheld->Resize(ratio);
        for (MagnificationFlags size : {smallSize, largeSize}) {
            Play(squareBoard, size);
            Repaint(MainWindow);
            const QImage shown = handheld->Client();
            const int height = static_cast<int>((PuzzleHeight * CellSize + 2) * ratio);
            std::ostringstream name;
            name << "Board of cells of " << CellSize << " at " << ratio;
            ExpectDrawnAsRecorded(shown.copy(0, 0, shown.width(), height), name.str());
        }
    }
    handheld->Resize(1);
}

}  // namespace
