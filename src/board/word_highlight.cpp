#include "board/word_highlight.h"

#include "app/view.h"
#include "board/cell_drawing.h"
#include "board/drawing_tools.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/drawing.h"
#include "play/word_extent.h"

namespace {

void DrawWordLetters(HDC context) {
    ForEachCellOfWord([context](int row, int col) {
        const char letter = PlayerGrid[CellIndex(row, col)];
        if (letter != emptyCell) {
            DrawCellLetter(context, row, col, letter);
        }
        DrawCellNumber(context, row, col);
    });
}

}  // namespace

void FillWordCells(HDC context) {
    const Owned wordBrush(CreateSolidBrush(WordColor));
    const Owned cellBrush(CreateSolidBrush(SelectedCellColor));
    const Owned outlinePen(CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
    const Selected pen(context, outlinePen);
    {
        const Selected brush(context, wordBrush);
        ForEachCellOfWord([context](int row, int col) { DrawCellSquare(context, row, col); });
    }
    const Selected brush(context, cellBrush);
    DrawCellSquare(context, CursorRow, CursorCol);
}

void PaintWordHighlight(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    FillWordCells(context);
    SetBkMode(context, TRANSPARENT);
    if (!SelectionIsBlack()) {
        DrawWordLetters(context);
    }
}
