#include "tools/puzzle_words.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace puzzle_text {

namespace {

struct Word {
    int number;
    Direction direction;
    int line;  // of the row where the word starts
    std::size_t column;
};

char NormaliseSquare(char square) {
    if (square == '#') {
        return blackSquare;
    }
    return static_cast<char>(std::toupper(static_cast<unsigned char>(square)));
}

bool StartsAcross(const Grid& grid, std::size_t row, std::size_t column) {
    return grid.IsWhite(row, column) && (column == 0 || !grid.IsWhite(row, column - 1)) &&
           column + 1 < grid.width && grid.IsWhite(row, column + 1);
}

bool StartsDown(const Grid& grid, std::size_t row, std::size_t column) {
    return grid.IsWhite(row, column) && (row == 0 || !grid.IsWhite(row - 1, column)) &&
           row + 1 < grid.height && grid.IsWhite(row + 1, column);
}

// The words in the order in which the file lists their clues: by number, across before down.
std::vector<Word> NumberWords(const Grid& grid, const std::vector<Line>& rows) {
    std::vector<Word> words;
    int number = 1;
    for (std::size_t row = 0; row < grid.height; ++row) {
        for (std::size_t column = 0; column < grid.width; ++column) {
            const bool across = StartsAcross(grid, row, column);
            const bool down = StartsDown(grid, row, column);
            const int line = rows[row].number;
            if (across) {
                words.push_back({number, Direction::Across, line, column});
            }
            if (down) {
                words.push_back({number, Direction::Down, line, column});
            }
            if (across || down) {
                ++number;
            }
        }
    }
    return words;
}

std::pair<int, Direction> ClueOrder(int number, Direction direction) {
    return {number, direction};
}

std::string NameWord(int number, Direction direction) {
    return std::to_string(number) + (direction == Direction::Across ? " across" : " down");
}

bool CheckForDoubles(const std::vector<Clue>& sorted, PuzzleTextError& error) {
    const auto doubled =
        std::adjacent_find(sorted.begin(), sorted.end(), [](const Clue& one, const Clue& other) {
            return ClueOrder(one.number, one.direction) == ClueOrder(other.number, other.direction);
        });
    if (doubled == sorted.end()) {
        return true;
    }
    const Clue& second = doubled[1];
    return Fail(error, second.line,
                "a second clue for " + NameWord(second.number, second.direction) +
                    "; the first is in line " + std::to_string(doubled->line));
}

bool FailForExtraClue(const Clue& clue, PuzzleTextError& error) {
    return Fail(error, clue.line,
                "the grid has no word at " + NameWord(clue.number, clue.direction));
}

bool FailForMissingClue(const Word& word, PuzzleTextError& error) {
    return Fail(error, word.line,
                "no clue for " + NameWord(word.number, word.direction) +
                    ", which starts here in column " + std::to_string(word.column + 1));
}

}  // namespace

bool BuildGrid(const Source& source, Grid& grid, PuzzleTextError& error) {
    if (source.rows.empty()) {
        return Fail(error, source.lastLine, "the puzzle has no grid");
    }
    grid.width = source.rows[0].text.size();
    grid.height = source.rows.size();
    for (const Line& row : source.rows) {
        for (const char square : row.text) {
            grid.squares.push_back(NormaliseSquare(square));
        }
    }
    if (grid.squares.find_first_not_of(blackSquare) == std::string::npos) {
        return Fail(error, source.rows[0].number, "the grid has no letter in it");
    }
    return true;
}

// A clue that fits no word is named before a word without a clue: a mistyped number makes
// one of each, and its line is the one to mend.
bool SortClues(const Grid& grid, Source& source, PuzzleTextError& error) {
    const std::vector<Word> words = NumberWords(grid, source.rows);
    std::vector<Clue>& clues = source.clues;
    std::stable_sort(clues.begin(), clues.end(), [](const Clue& one, const Clue& other) {
        return ClueOrder(one.number, one.direction) < ClueOrder(other.number, other.direction);
    });
    if (!CheckForDoubles(clues, error)) {
        return false;
    }
    const Word* missing = nullptr;
    auto clue = clues.begin();
    for (const Word& word : words) {
        const auto order = ClueOrder(word.number, word.direction);
        if (clue != clues.end() && ClueOrder(clue->number, clue->direction) < order) {
            break;
        }
        if (clue != clues.end() && ClueOrder(clue->number, clue->direction) == order) {
            ++clue;
        } else if (missing == nullptr) {
            missing = &word;
        }
    }
    if (clue != clues.end()) {
        return FailForExtraClue(*clue, error);
    }
    return missing == nullptr || FailForMissingClue(*missing, error);
}

}  // namespace puzzle_text
