#include "board/board_painter.h"

#include "app/view.h"
#include "board/board_fonts.h"
#include "board/cell_drawing.h"
#include "board/cell_geometry.h"
#include "board/drawing_tools.h"
#include "model/puzzle.h"
#include "platform/drawing.h"
#include "play/settings.h"

namespace {

struct BoardTools {
    Owned letterCellBrush{CreateSolidBrush(BackgroundColor)};
    Owned blackSquareBrush{CreateSolidBrush(SquareColor)};
    Owned bevelPen{CreatePen(PS_SOLID, 1, BevelColor)};
    Owned outlinePen{CreatePen(PS_SOLID, 1, RGB(0, 0, 0))};
};

void WhitenBuffer(HDC context) {
    const Owned whitePen(CreatePen(PS_SOLID, 1, RGB(255, 255, 255)));
    const Selected pen(context, whitePen);
    const Selected brush(context, GetStockObject(WHITE_BRUSH));
    Rectangle(context, 0, 0, BufferWidth, BufferHeight);
}

void DrawBlackSquare(HDC context, const BoardTools& tools, int row, int col) {
    const Selected brush(context, tools.blackSquareBrush);
    DrawCellSquare(context, row, col);
}

void DrawBevel(HDC context, const BoardTools& tools, int row, int col) {
    const RECT square = OutlineSquare(row, col);
    const POINT corner{square.left + 1, square.top + 1};
    const POINT top[] = {corner, {square.right - 1, corner.y}};
    const POINT side[] = {corner, {corner.x, square.bottom - 1}};
    const Selected pen(context, tools.bevelPen);
    Polyline(context, top, 2);
    Polyline(context, side, 2);
}

void DrawLetterCell(HDC context, const BoardTools& tools, int row, int col, char letter) {
    const COLORREF letterColor = ShowSolution == 1 ? SolutionColor : RGB(0, 0, 0);
    const Selected brush(context, tools.letterCellBrush);
    DrawCellSquare(context, row, col);
    DrawBevel(context, tools, row, col);
    SetTextColor(context, letterColor);
    if (letter != emptyCell) {
        DrawCellLetter(context, row, col, letter);
    }
    SetTextColor(context, RGB(0, 0, 0));
    DrawCellNumber(context, row, col);
}

void DrawCells(HDC context, const BoardTools& tools) {
    const char* grid = ShowSolution == 1 ? SolutionGrid : PlayerGrid;
    for (int row = 0; row < PuzzleHeight; ++row) {
        for (int col = 0; col < PuzzleWidth; ++col) {
            const char letter = grid[CellIndex(row, col)];
            if (letter == blackSquare) {
                DrawBlackSquare(context, tools, row, col);
            } else {
                DrawLetterCell(context, tools, row, col, letter);
            }
        }
    }
}

}  // namespace

int PaintBoard(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    const BoardTools tools;
    WhitenBuffer(context);
    RenewBoardFonts(context);
    const Selected pen(context, tools.outlinePen);
    SetBkMode(context, TRANSPARENT);
    const COLORREF previousColor = SetTextColor(context, RGB(0, 0, 0));
    DrawCells(context, tools);
    SetTextColor(context, previousColor);
    ShowSolution = 0;
    return 1;
}
