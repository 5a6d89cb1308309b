// Scrolling the board so that the selected word can be seen.
#pragma once

// One axis of the view, in logical pixels.
struct ScrollAxis {
    int scroll = 0;
    int viewSize = 0;
    int cellSize = 1;
};

// The offset that brings the word's last cell to the view's far edge. Unchanged when that cell is
// not beyond it, or when the rest of the word from the selected cell on does not fit.
int ScrollToShowEnd(const ScrollAxis& axis, int last, int selected);

// The offset that brings the word's first cell to the view's near edge. Unchanged when that cell is
// not before it, or lies a whole view or more away.
int ScrollToShowStart(const ScrollAxis& axis, int first);

// Changes ScrollX and ScrollY, and copies the off-screen buffer to the main window after each
// change.
void ScrollIntoView();
