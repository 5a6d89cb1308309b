#include "app/repaint.h"

#include "app/view.h"
#include "board/board_painter.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "keyboard/keyboard_drawing.h"

void PaintBoardAndSelection(HWND window) {
    PaintBoard(window);
    PaintWordHighlight(window);
}

void ShowBoard(HWND window) {
    PaintClueBar(window);
    CopyViewToScreen(window);
}

void ShowBoardAndKeyboard(HWND window) {
    PaintClueBar(window);
    DrawKeyboardIfVisible(window);
    CopyViewToScreen(window);
}

void Repaint(HWND window) {
    PaintBoard(window);
    ShowBoardAndKeyboard(window);
}

void RepaintFully(HWND window) {
    PaintBoardAndSelection(window);
    ShowBoardAndKeyboard(window);
}
