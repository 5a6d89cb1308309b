#include "play/scroll_into_view.h"

#include "app/view.h"
#include "model/selection.h"
#include "play/word_extent.h"

namespace {

// False when nothing changes.
bool ScrollTo(int& scroll, int target) {
    if (target == scroll) {
        return false;
    }
    scroll = target;
    CopyViewToScreen(MainWindow);
    return true;
}

bool ShowEnd(int& scroll, int viewSize, int last, int selected) {
    return ScrollTo(scroll, ScrollToShowEnd({scroll, viewSize, CellSize}, last, selected));
}

void ShowStart(int& scroll, int viewSize, int first) {
    ScrollTo(scroll, ScrollToShowStart({scroll, viewSize, CellSize}, first));
}

void ScrollAcrossWord(const WordExtent& word) {
    if (!ShowEnd(ScrollX, ViewWidth, word.last, CursorCol)) {
        ShowStart(ScrollX, ViewWidth, word.first);
    }
    if (!ShowEnd(ScrollY, ViewHeight, CursorRow, CursorRow)) {
        ShowStart(ScrollY, ViewHeight, CursorRow);
    }
}

// Unlike an across word, a down word whose end was just brought into view is not also scrolled back
// to a column on the left.
void ScrollDownWord(const WordExtent& word) {
    const bool endShown = ShowEnd(ScrollY, ViewHeight, word.last, CursorRow);
    if (!endShown) {
        ShowStart(ScrollY, ViewHeight, word.first);
    }
    const bool columnShown = ShowEnd(ScrollX, ViewWidth, CursorCol, CursorCol);
    if (!endShown && !columnShown) {
        ShowStart(ScrollX, ViewWidth, CursorCol);
    }
}

}  // namespace

int ScrollToShowEnd(const ScrollAxis& axis, int last, int selected) {
    const int end = (last + 1) * axis.cellSize;
    const bool beyond = end > axis.viewSize + axis.scroll;
    const bool restFits = (last - selected + 1) * axis.cellSize < axis.viewSize;
    return beyond && restFits ? end - axis.viewSize : axis.scroll;
}

int ScrollToShowStart(const ScrollAxis& axis, int first) {
    const int start = first * axis.cellSize;
    const bool before = start < axis.scroll;
    const bool near = axis.scroll - start < axis.viewSize;
    return before && near ? start : axis.scroll;
}

void ScrollIntoView() {
    const WordExtent word = FindSelectedExtent();
    if (Direction == 0) {
        ScrollAcrossWord(word);
    } else {
        ScrollDownWord(word);
    }
}
