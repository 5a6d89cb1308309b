#include "board/hints.h"

#include "app/view.h"
#include "board/board_painter.h"
#include "board/cell_drawing.h"
#include "board/cell_geometry.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "keyboard/keyboard_drawing.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/drawing.h"
#include "play/word_extent.h"

namespace {

void FinishHint(HWND window) {
    PaintClueBar(window);
    DrawKeyboardIfVisible(window);
    CopyViewToScreen(window);
}

void DrawSolutionLetter(HDC context, int row, int col) {
    const char letter = SolutionGrid[row * PuzzleWidth + col];
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

void PaintLetterSolution(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    FillSelectedCell(context);
    SetBkMode(context, TRANSPARENT);
    const COLORREF previous = SetTextColor(context, SolutionColor);
    DrawSolutionLetter(context, CursorRow, CursorCol);
    SetTextColor(context, RGB(0, 0, 0));
    DrawNumberOfSelectedCell(context);
    SetTextColor(context, previous);
}

void PaintWordSolution(HWND window) {
    const PaintBracket bracket(window);
    HDC context = OffscreenBuffer.context;
    FillWordCells(context);
    SetBkMode(context, TRANSPARENT);
    const COLORREF previous = SetTextColor(context, SolutionColor);
    ForEachCellOfWord([context](int row, int col) { DrawSolutionLetter(context, row, col); });
    SetTextColor(context, RGB(0, 0, 0));
    ForEachCellOfWord([context](int row, int col) { DrawCellNumber(context, row, col); });
    SetTextColor(context, previous);
}

}  // namespace

void ShowLetterSolution(HWND window) {
    PaintBoard(window);
    PaintLetterSolution(window);
    FinishHint(window);
}

void ShowWordSolution(HWND window) {
    PaintBoard(window);
    PaintWordSolution(window);
    FinishHint(window);
}

void ShowPuzzleSolution(HWND window) {
    ShowSolution = 1;
    PaintBoard(window);
    FinishHint(window);
}
