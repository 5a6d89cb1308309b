#include "play/word_jump.h"

#include <algorithm>

#include "model/puzzle.h"
#include "model/selection.h"
#include "play/word_extent.h"

namespace {

// A clue number that is not listed, such as that of a cell without a word, is at the list's end.
int PositionOf(WordList list, int clueNumber) {
    const auto word = std::find_if(list.begin(), list.end(), [&](const WordRecord& record) {
        return record.clueNumber == clueNumber || record.clueNumber == -1;
    });
    return static_cast<int>(word - list.begin());
}

int SelectedWordNumber() {
    const int first = FindSelectedExtent().first;
    const int row = Direction == 0 ? CursorRow : first;
    const int col = Direction == 0 ? first : CursorCol;
    return IsOnBoard(row, col) ? Cells[CellIndex(row, col)].clueNumber : -1;
}

// -1 when there is no such word.
int NumberAfterJump(WordList list, bool forward) {
    const int position = PositionOf(list, SelectedWordNumber()) + (forward ? 1 : -1);
    const bool listed = position >= 0 && position < maxWords;
    return listed ? list[static_cast<std::size_t>(position)].clueNumber : -1;
}

}  // namespace

void ToggleDirection() {
    Direction = Direction == 0 ? 1 : 0;
}

void JumpToWord(bool forward) {
    const int number = NumberAfterJump(ListedWords(Direction), forward);
    if (!SelectCellOfNumber(number)) {
        CursorRow = CursorCol = 0;
    }
}
