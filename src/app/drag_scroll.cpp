#include "app/drag_scroll.h"

#include <algorithm>

#include "app/view.h"
#include "model/puzzle.h"
#include "play/settings.h"

namespace {

// The scroll position after a move of the stylus; the board follows it.
int Dragged(int scroll, int move, int visible, int extent) {
    if (move < 0 && scroll - move + visible <= extent) {
        return scroll - move;
    }
    if (move > 0 && scroll - move >= 0) {
        return scroll - move;
    }
    return scroll;
}

}  // namespace

bool BoardExceedsView(HWND window) {
    const RECT view = BoardViewArea(window);
    return PuzzleWidth * CellSize > view.right || PuzzleHeight * CellSize > view.bottom;
}

void DragScroll(HWND window) {
    if (ChosenSize().FitsView()) {
        return;
    }
    const RECT view = BoardViewArea(window);
    // A buffer of the window's size reaches beyond a board that is narrower than the window.
    const int boardBottom = std::min(BufferHeight, PuzzleHeight * CellSize + 1);
    ScrollX = Dragged(ScrollX, StylusNow.x - StylusLast.x, view.right, BufferWidth);
    ScrollY = Dragged(ScrollY, StylusNow.y - StylusLast.y, view.bottom, boardBottom);
    StylusLast = StylusNow;
    CopyViewToScreen(window);
}
