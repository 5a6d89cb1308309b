#include "model/numbering.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace {

using Record = std::vector<int>;

Record CellAt(int index) {
    return {Cells[index].acrossClue, Cells[index].downClue, Cells[index].clueNumber};
}

std::vector<Record> Listed(const WordRecord (&list)[maxWords]) {
    std::vector<Record> records;
    for (const WordRecord& word : list) {
        if (word.clueNumber != -1) {
            records.push_back({word.clueIndex, word.clueNumber, word.length});
        }
    }
    return records;
}

struct PlainNumbering {
    std::vector<Record> cells;
    std::vector<Record> lists[2];
};

PlainNumbering NumberPlainly(const BoardRows& rows) {
    const std::size_t width = rows[0].size();
    PlainNumbering result;
    result.cells.assign(maxCells, {-1, -1, -1});
    const std::vector<PlainWord> words = WordsOf(rows);
    int number = 0;
    for (std::size_t clue = 0; clue < words.size(); ++clue) {
        const PlainWord& word = words[clue];
        const bool sharesStart =
            clue > 0 && words[clue - 1].row == word.row && words[clue - 1].col == word.col;
        number += sharesStart ? 0 : 1;
        const auto direction = static_cast<std::size_t>(word.direction);
        result.lists[direction].push_back({static_cast<int>(clue), number, word.length});
        for (std::size_t i = 0; i < width * rows.size(); ++i) {
            if (word.Contains(static_cast<int>(i / width), static_cast<int>(i % width))) {
                result.cells[i][direction] = static_cast<int>(clue);
            }
        }
        const auto start = static_cast<std::size_t>(word.row) * width;
        result.cells[start + static_cast<std::size_t>(word.col)][2] = number;
    }
    return result;
}

void ExpectPlainNumbering(const BoardRows& rows) {
    SCOPED_TRACE(BoardText(rows));
    PlaceBoard(rows);
    const PlainNumbering plain = NumberPlainly(rows);
    for (int i = 0; i < maxCells; ++i) {
        ASSERT_EQ(CellAt(i), plain.cells[static_cast<std::size_t>(i)]) << "cell " << i;
    }
    ASSERT_EQ(Listed(AcrossList), plain.lists[0]);
    ASSERT_EQ(Listed(DownList), plain.lists[1]);
    const WordCount count = CountWords(SolutionGrid, PuzzleWidth, PuzzleHeight);
    ASSERT_EQ(static_cast<std::size_t>(count.across), plain.lists[0].size());
    ASSERT_EQ(static_cast<std::size_t>(count.down), plain.lists[1].size());
}

}  // namespace

TEST(Numbering, AgreesWithCuttingRowsAndColumns) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        ASSERT_NO_FATAL_FAILURE(ExpectPlainNumbering(RandomBoard(random)));
    }
    std::mt19937 random(1);
    ExpectPlainNumbering(RandomBoard(random, 40, 40));
}
