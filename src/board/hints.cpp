#include "board/hints.h"

#include "app/repaint.h"
#include "app/view.h"
#include "board/board_painter.h"
#include "board/cell_drawing.h"
#include "board/cell_geometry.h"
#include "board/drawing_tools.h"
#include "board/word_highlight.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/drawing.h"
#include "play/word_extent.h"

namespace {

void DrawSolutionLetter(HDC context, int row, int col) {
    const char letter = SolutionGrid[CellIndex(row, col)];
    if (letter != blackSquare) {
        DrawCellLetter(context, row, col, letter);
    }
}

void FillSelectedCell(HDC context) {
    const Owned cellBrush(CreateSolidBrush(SelectedCellColor));
    const Owned outlinePen(CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
    const Selected pen(context, outlinePen);
    const Selected brush(context, cellBrush);
    DrawCellSquare(context, CursorRow, CursorCol);
}

// A single letter leaves its neighbours alone, so its number stays inside the outline.
void DrawNumberOfSelectedCell(HDC context) {
    RECT box = OutlineSquare(CursorRow, CursorCol);
    box = {box.left + 1, box.top, box.right - 1, box.bottom - 1};
    DrawCellNumberInBox(context, CursorRow, CursorCol, box);
}

// Runs both for the cells of the hint: the letters in the solution's colour, then the numbers over
// them in black.
template <typename DrawLetters, typename DrawNumbers>
void DrawSolution(HDC context, const DrawLetters& drawLetters, const DrawNumbers& drawNumbers) {
    SetBkMode(context, TRANSPARENT);
    const COLORREF previous = SetTextColor(context, SolutionColor);
    drawLetters();
    SetTextColor(context, RGB(0, 0, 0));
    drawNumbers();
    SetTextColor(context, previous);
}

void PaintLetterSolution(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    FillSelectedCell(context);
    DrawSolution(
        context, [context] { DrawSolutionLetter(context, CursorRow, CursorCol); },
        [context] { DrawNumberOfSelectedCell(context); });
}

void PaintWordSolution(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    FillWordCells(context);
    const auto drawLetter = [context](int row, int col) { DrawSolutionLetter(context, row, col); };
    const auto drawNumber = [context](int row, int col) { DrawCellNumber(context, row, col); };
    DrawSolution(
        context, [&] { ForEachCellOfWord(drawLetter); }, [&] { ForEachCellOfWord(drawNumber); });
}

}  // namespace

void ShowLetterSolution(HWND window) {
    PaintBoard(window);
    PaintLetterSolution(window);
    ShowBoardAndKeyboard(window);
}

void ShowWordSolution(HWND window) {
    PaintBoard(window);
    PaintWordSolution(window);
    ShowBoardAndKeyboard(window);
}

void ShowPuzzleSolution(HWND window) {
    ShowSolution = 1;
    PaintBoard(window);
    ShowBoardAndKeyboard(window);
}
