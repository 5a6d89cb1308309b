#include "play/scroll_into_view.h"

#include <gtest/gtest.h>

#include "platform/types.h"
#include "support/boards.h"
#include "support/without_window.h"

namespace {

// The rules in pixels, one long list, for the word from `first` to `last` of the selected cell.
POINT PlainScroll(const PlainWord& word) {
    const int left = CursorCol * CellSize;
    const int right = left + CellSize;
    const int top = CursorRow * CellSize;
    const int bottom = top + CellSize;
    POINT scroll{ScrollX, ScrollY};
    if (Direction == 0) {
        const int start = word.col * CellSize;
        const int end = start + word.length * CellSize;
        if (end > ViewWidth + ScrollX && end - left < ViewWidth) {
            scroll.x = end - ViewWidth;
        } else if (start < ScrollX && ScrollX - start < ViewWidth) {
            scroll.x = start;
        }
        if (bottom > ViewHeight + ScrollY && CellSize < ViewHeight) {
            scroll.y = bottom - ViewHeight;
        } else if (top < ScrollY && ScrollY - top < ViewHeight) {
            scroll.y = top;
        }
        return scroll;
    }
    const int start = word.row * CellSize;
    const int end = start + word.length * CellSize;
    bool scrolled = false;
    if (end > ViewHeight + ScrollY && end - top < ViewHeight) {
        scroll.y = end - ViewHeight;
        scrolled = true;
    } else if (start < ScrollY && ScrollY - start < ViewHeight) {
        scroll.y = start;
    }
    if (right > ViewWidth + ScrollX && CellSize < ViewWidth) {
        scroll.x = right - ViewWidth;
        scrolled = true;
    }
    if (!scrolled && left < ScrollX && ScrollX - left < ViewWidth) {
        scroll.x = left;
    }
    return scroll;
}

}  // namespace

// Offsets often fall on cell borders here, where a comparison that is not strict shows.
TEST(ScrollIntoView, AgreesWithTheRulesInPixels) {
    const WithoutWindow withoutWindow;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::mt19937 random(seed);
        const auto upTo = [&random](int limit) {
            return static_cast<int>(random() % static_cast<unsigned>(limit + 1));
        };
        const BoardRows rows = RandomBoard(random);
        PlaceBoard(rows);
        CellSize = 1 + upTo(4);
        ViewWidth = upTo(8) * CellSize + upTo(1);
        ViewHeight = upTo(8) * CellSize + upTo(1);
        ScrollX = upTo(12) * CellSize + upTo(1);
        ScrollY = upTo(12) * CellSize + upTo(1);
        CursorRow = upTo(PuzzleHeight - 1);
        CursorCol = upTo(PuzzleWidth - 1);
        Direction = upTo(1);
        SCOPED_TRACE("seed " + std::to_string(seed));
        const POINT expected = PlainScroll(WordAt(WordsOf(rows), CursorRow, CursorCol, Direction));
        ScrollIntoView();
        ASSERT_EQ(std::pair(ScrollX, ScrollY), std::pair(int{expected.x}, int{expected.y}));
    }
}
