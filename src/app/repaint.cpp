#include "app/repaint.h"

#include "app/view.h"
#include "board/board_painter.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "keyboard/keyboard_drawing.h"

void Repaint(HWND window) {
    PaintBoard(window);
    PaintClueBar(window);
    DrawKeyboardIfVisible(window);
    CopyViewToScreen(window);
}

void RepaintFully(HWND window) {
    PaintBoard(window);
    PaintWordHighlight(window);
    PaintClueBar(window);
    DrawKeyboardIfVisible(window);
    CopyViewToScreen(window);
}
