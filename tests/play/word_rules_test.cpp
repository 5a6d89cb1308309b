#include <gtest/gtest.h>

#include "play/word_extent.h"
#include "play/word_jump.h"
#include "support/boards.h"

namespace {

void Select(int row, int col, int direction) {
    CursorRow = row;
    CursorCol = col;
    Direction = direction;
}

// Which cell a jump ought to select, looked up in the words of one direction in clue order.
std::pair<int, int> PlainJump(const std::vector<PlainWord>& all, bool forward) {
    std::vector<PlainWord> words;
    std::copy_if(all.begin(), all.end(), std::back_inserter(words),
                 [](const PlainWord& word) { return word.direction == Direction; });
    std::size_t current = 0;
    while (current < words.size() && !words[current].Contains(CursorRow, CursorCol)) {
        ++current;
    }
    if (forward ? current + 1 >= words.size() : current == 0) {
        return {0, 0};
    }
    const PlainWord& target = words[forward ? current + 1 : current - 1];
    return {target.row, target.col};
}

template <typename Check>
void ForEachSelection(const BoardRows& rows, Check check) {
    for (int direction = 0; direction < 2; ++direction) {
        for (int i = 0; i < PuzzleWidth * PuzzleHeight; ++i) {
            Select(i / PuzzleWidth, i % PuzzleWidth, direction);
            SCOPED_TRACE("row " + std::to_string(CursorRow) + ", column " +
                         std::to_string(CursorCol) + ", direction " + std::to_string(direction) +
                         BoardText(rows));
            ASSERT_NO_FATAL_FAILURE(check());
        }
    }
}

}  // namespace

TEST(WordRules, ExtentsAndJumpsAgreeWithCuttingRowsAndColumns) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        PlaceBoard(rows);
        const std::vector<PlainWord> words = WordsOf(rows);
        ASSERT_NO_FATAL_FAILURE(ForEachSelection(rows, [&words] {
            const auto [row, col, direction] = std::tuple(CursorRow, CursorCol, Direction);
            const PlainWord word = WordAt(words, row, col, direction);
            const WordExtent extent = FindSelectedExtent();
            const int first = direction == 0 ? word.col : word.row;
            ASSERT_EQ(extent.first, first);
            ASSERT_EQ(extent.last, first + word.length - 1);
            for (bool forward : {false, true}) {
                Select(row, col, direction);
                const auto expected = PlainJump(words, forward);
                JumpToWord(forward);
                ASSERT_EQ(std::pair(CursorRow, CursorCol), expected) << "forward " << forward;
                ASSERT_EQ(Direction, direction);
            }
        }));
    }
}
