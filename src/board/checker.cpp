#include "board/checker.h"

#include "app/view.h"
#include "board/board_painter.h"
#include "board/cell_drawing.h"
#include "board/drawing_tools.h"
#include "model/puzzle.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "play/settings.h"

namespace {

struct CheckCount {
    int blackSquares = 0;
    int emptyCells = 0;
    int wrongLetters = 0;
};

struct CheckTools {
    Owned letterCellBrush{CreateSolidBrush(BackgroundColor)};
    Owned blackSquareBrush{CreateSolidBrush(SquareColor)};
    Owned outlinePen{CreatePen(PS_SOLID, 1, RGB(0, 0, 0))};
};

void DrawCheckedLetter(HDC context, int row, int col, CheckCount& count) {
    const int cell = CellIndex(row, col);
    const char letter = PlayerGrid[cell];
    if (letter == SolutionGrid[cell]) {
        DrawCellLetter(context, row, col, letter);
    } else if (letter == emptyCell) {
        ++count.emptyCells;
    } else {
        const COLORREF previous = SetTextColor(context, SolutionColor);
        DrawCellLetter(context, row, col, letter);
        SetTextColor(context, previous);
        ++count.wrongLetters;
    }
}

void DrawCheckedCell(HDC context, const CheckTools& tools, int row, int col, CheckCount& count) {
    if (SolutionGrid[CellIndex(row, col)] == blackSquare) {
        const Selected brush(context, tools.blackSquareBrush);
        DrawCellSquare(context, row, col);
        ++count.blackSquares;
        return;
    }
    const Selected brush(context, tools.letterCellBrush);
    DrawCellSquare(context, row, col);
    DrawCheckedLetter(context, row, col, count);
    DrawCellNumber(context, row, col);
}

CheckCount PaintChecked(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    const CheckTools tools;
    const Selected pen(context, tools.outlinePen);
    SetBkColor(context, BackgroundColor);
    SetBkMode(context, TRANSPARENT);
    const COLORREF previousColor = SetTextColor(context, RGB(0, 0, 0));
    CheckCount count;
    for (int row = 0; row < PuzzleHeight; ++row) {
        for (int col = 0; col < PuzzleWidth; ++col) {
            DrawCheckedCell(context, tools, row, col, count);
        }
    }
    SetTextColor(context, previousColor);
    return count;
}

void Report(HWND window, const CheckCount& count) {
    const int letterCells = PuzzleWidth * PuzzleHeight - count.blackSquares;
    if (letterCells == count.emptyCells) {
        MessageBoxW(window,
                    u"This button will check puzzle for errors. You've have not yet started the "
                    u"puzzle, so there is nothing to check.",
                    u"Puzzle Checker", MB_OK);
    } else if (count.wrongLetters == 0) {
        MessageBoxW(window, u"All the letters entered so far are correct.", u"Nothing Wrong",
                    MB_OK);
    }
}

}  // namespace

void CheckPuzzle(HWND window) {
    const CheckCount count = PaintChecked(window);
    CopyViewToScreen(window);
    Report(window, count);
}
