#include "play/letter_entry.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/windows.h"
#include "play/settings.h"
#include "support/boards.h"
#include "support/without_window.h"

namespace {

class LetterEntry : public testing::Test {
protected:
    ~LetterEntry() override {
        AutoSkip = 0;
    }

private:
    WithoutWindow withoutWindow;
};

// The position in the word, counted from its first cell, after a letter in the cell at `start`.
int PlainAdvance(const std::string& entries, int start) {
    const int last = static_cast<int>(entries.size()) - 1;
    if (AutoSkip == 0) {
        return std::min(start + 1, last);
    }
    const std::size_t empty = entries.find('-', static_cast<std::size_t>(start) + 1);
    return empty == std::string::npos ? last : static_cast<int>(empty);
}

std::string EntriesOf(const PlainWord& word) {
    std::string entries;
    for (int i = 0; i < word.length; ++i) {
        const int row = word.row + (word.direction == 1 ? i : 0);
        const int col = word.col + (word.direction == 0 ? i : 0);
        entries += PlayerGrid[row * PuzzleWidth + col];
    }
    return entries;
}

// Presses one key and checks the grid and the selection it leaves.
void ExpectPlainKey(const std::vector<PlainWord>& words, int key) {
    const int cell = CursorRow * PuzzleWidth + CursorCol;
    std::string grid(PlayerGrid, maxCells);
    const auto index = static_cast<std::size_t>(cell);
    PlainWord word = WordAt(words, CursorRow, CursorCol, Direction);
    const int start = Direction == 0 ? CursorCol - word.col : CursorRow - word.row;
    int position = start;
    if (grid[index] != '.') {
        position = key == VK_BACK ? std::max(start - 1, 0) : PlainAdvance(EntriesOf(word), start);
        grid[index] = key == VK_BACK ? '-' : static_cast<char>(key);
    }
    HandleKeyDown(key);
    ASSERT_TRUE(grid == std::string(PlayerGrid, maxCells));
    ASSERT_EQ(std::pair(CursorRow, CursorCol),
              std::pair(word.row + (Direction == 1 ? position : 0),
                        word.col + (Direction == 0 ? position : 0)));
}

}  // namespace

TEST_F(LetterEntry, AgreesWithReadingTheWord) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        SCOPED_TRACE("seed " + std::to_string(seed) + BoardText(rows));
        PlaceBoard(rows);
        const std::vector<PlainWord> words = WordsOf(rows);
        for (int press = 0; press < 100; ++press) {
            AutoSkip = static_cast<int>(random() % 2);
            Direction = static_cast<int>(random() % 2);
            if (press % 10 == 0) {
                CursorRow = static_cast<int>(random() % rows.size());
                CursorCol = static_cast<int>(random() % rows[0].size());
            }
            const int key = random() % 3 == 0 ? VK_BACK : 'A' + static_cast<int>(random() % 26);
            SCOPED_TRACE("press " + std::to_string(press) + " of key " + std::to_string(key));
            ASSERT_NO_FATAL_FAILURE(ExpectPlainKey(words, key));
        }
    }
}

TEST_F(LetterEntry, OtherKeysTurnJumpOrDoNothing) {
    PlaceBoard({"AB.CD", "E.FGH"});
    HandleKeyDown(VK_RETURN);
    EXPECT_EQ(Direction, 1);
    HandleKeyDown(VK_RIGHT);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 3));
    HandleKeyDown(VK_DOWN);
    HandleKeyDown(VK_UP);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 3));
    HandleKeyDown(VK_LEFT);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 0));
    for (int key : {int{'A' - 1}, int{'Z' + 1}, int{'a'}, VK_TAB, VK_ESCAPE, VK_DELETE, 0, -1}) {
        const std::string before(PlayerGrid, maxCells);
        HandleKeyDown(key);
        EXPECT_TRUE(before == std::string(PlayerGrid, maxCells)) << key;
        EXPECT_EQ(CursorRow + CursorCol, 0) << key;
    }
}

TEST_F(LetterEntry, TypingNeverScrollsAndOtherKeysDo) {
    PlaceBoard(BoardRows(15, std::string(10, '.') + "ABCDE"));
    CellSize = 20;
    ViewWidth = 240;
    ViewHeight = 248;
    CursorCol = 14;
    HandleKeyDown('A');
    EXPECT_EQ(ScrollX, 0);
    HandleKeyDown('1');
    EXPECT_EQ(ScrollX, 60);
    EXPECT_EQ(ScrollY, 0);
}

// Before the first puzzle the records hold zeros, and a file that is not square leaves sizes that
// belong to no grid.
TEST_F(LetterEntry, StatesWithoutAPuzzleAreSafe) {
    for (const auto& [width, height] : {std::pair{15, 15}, {100, 16}, {0, 127}, {127, 0}}) {
        for (int record : {0, -1}) {
            std::fill(std::begin(Cells), std::end(Cells), CellRecord{record, record, record});
            std::fill(std::begin(AcrossList), std::end(AcrossList), WordRecord{record, record, 0});
            std::fill(std::begin(DownList), std::end(DownList), WordRecord{record, record, 0});
            std::memset(PlayerGrid, 0, sizeof PlayerGrid);
            PuzzleWidth = width;
            PuzzleHeight = height;
            std::mt19937 random(static_cast<unsigned>(width));
            constexpr int keys[] = {VK_BACK, VK_RETURN, VK_LEFT, VK_RIGHT, 'A', 'Z'};
            for (int press = 0; press < 100; ++press) {
                AutoSkip = static_cast<int>(random() % 2);
                CursorRow = press % 20 == 0 ? std::max(height - 1, 0) : CursorRow;
                CursorCol = press % 20 == 0 ? std::max(width - 1, 0) : CursorCol;
                HandleKeyDown(keys[random() % std::size(keys)]);
                ASSERT_TRUE(CursorRow >= 0 && CursorRow < std::max(height, 1));
                ASSERT_TRUE(CursorCol >= 0 && CursorCol < std::max(width, 1));
            }
        }
    }
}
