#include "play/scroll_into_view.h"

#include "app/view.h"
#include "model/selection.h"
#include "play/word_extent.h"

namespace {

void ScrollTo(int& scroll, int target) {
    scroll = target;
    CopyViewToScreen(MainWindow);
}

// Brings the word's last cell to the view's far edge. False when that cell is not beyond it, or
// when the rest of the word from the selected cell on does not fit.
bool ShowEnd(int& scroll, int viewSize, int last, int selected) {
    const int end = (last + 1) * CellSize;
    const bool beyond = end > viewSize + scroll;
    const bool restFits = (last - selected + 1) * CellSize < viewSize;
    if (!beyond || !restFits) {
        return false;
    }
    ScrollTo(scroll, end - viewSize);
    return true;
}

// Brings the word's first cell to the view's near edge, unless it lies a whole view or more away.
void ShowStart(int& scroll, int viewSize, int first) {
    const int start = first * CellSize;
    if (start < scroll && scroll - start < viewSize) {
        ScrollTo(scroll, start);
    }
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

void ScrollIntoView() {
    const WordExtent word = FindSelectedExtent();
    if (Direction == 0) {
        ScrollAcrossWord(word);
    } else {
        ScrollDownWord(word);
    }
}
