#include "play/fill_clear.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace {

enum class Scope { Letter, Word, Puzzle };

struct Operation {
    const char* name;
    void (*run)();
    Scope scope;
    bool fills;
};

constexpr Operation operations[] = {
    {"fill letter", FillLetter, Scope::Letter, true},
    {"fill word", FillWord, Scope::Word, true},
    {"fill puzzle", FillPuzzle, Scope::Puzzle, true},
    {"clear letter", ClearLetter, Scope::Letter, false},
    {"clear word", ClearWord, Scope::Word, false},
    {"clear puzzle", ClearPuzzle, Scope::Puzzle, false},
};

// Letters right and wrong, empty cells, and here and there a grid that disagrees with the solution
// about a black square.
void EnterAnything(std::mt19937& random) {
    for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
        const auto what = random() % 20;
        if (what == 0) {
            PlayerGrid[cell] = PlayerGrid[cell] == '.' ? 'Q' : '.';
        } else if (PlayerGrid[cell] != '.' && what < 8) {
            PlayerGrid[cell] = static_cast<char>('A' + random() % 26);
        } else if (PlayerGrid[cell] != '.' && what < 12) {
            PlayerGrid[cell] = SolutionGrid[cell];
        }
    }
}

bool InScope(Scope scope, const std::vector<PlainWord>& words, int row, int col) {
    switch (scope) {
        case Scope::Letter: return row == CursorRow && col == CursorCol;
        case Scope::Word: return WordAt(words, CursorRow, CursorCol, Direction).Contains(row, col);
        default: return true;
    }
}

// Only the whole puzzle takes its black squares from the solution.
char PlainCell(const Operation& operation, char entered, char solution) {
    if (operation.scope != Scope::Puzzle && entered == '.') {
        return '.';
    }
    if (operation.fills) {
        return solution;
    }
    return operation.scope == Scope::Puzzle && solution == '.' ? '.' : '-';
}

void ExpectPlainOperation(const Operation& operation, const BoardRows& rows,
                          const std::vector<PlainWord>& words) {
    std::string expected(PlayerGrid, maxCells);
    std::size_t cell = 0;
    for (int row = 0; row < PuzzleHeight; ++row) {
        for (int col = 0; col < PuzzleWidth; ++col, ++cell) {
            const auto solution =
                rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
            if (InScope(operation.scope, words, row, col)) {
                expected[cell] = PlainCell(operation, expected[cell], solution);
            }
        }
    }
    const std::tuple selection(CursorRow, CursorCol, Direction);
    operation.run();
    ASSERT_TRUE(std::string(PlayerGrid, maxCells) == expected);
    ASSERT_EQ(std::tuple(CursorRow, CursorCol, Direction), selection);
}

// Faults: the other direction's word, a word one cell short, a black square or a cell beyond the
// board overwritten, a selection on a black square that takes its neighbours along.
TEST(FillAndClear, AgreeWithGoingThroughTheBoard) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        SCOPED_TRACE("seed " + std::to_string(seed) + BoardText(rows));
        std::fill(std::begin(PlayerGrid), std::end(PlayerGrid), '#');
        PlaceBoard(rows);
        const std::vector<PlainWord> words = WordsOf(rows);
        for (int round = 0; round < 40; ++round) {
            EnterAnything(random);
            CursorRow = static_cast<int>(random() % rows.size());
            CursorCol = static_cast<int>(random() % rows[0].size());
            Direction = static_cast<int>(random() % 2);
            const Operation& operation = operations[random() % std::size(operations)];
            SCOPED_TRACE(std::string(operation.name) + " at " + std::to_string(CursorRow) + ", " +
                         std::to_string(CursorCol) + " direction " + std::to_string(Direction));
            ASSERT_NO_FATAL_FAILURE(ExpectPlainOperation(operation, rows, words));
        }
    }
}

}  // namespace
