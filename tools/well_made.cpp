#include "tools/well_made.h"

#include <algorithm>
#include <set>
#include <utility>

namespace puzzle_text {

namespace {

constexpr std::size_t largestBoard = 40;
constexpr std::size_t shortestWord = 3;
constexpr std::size_t longestClue = 70;  // bytes

bool HasGoodShape(const Grid& grid, const Source& source, PuzzleTextError& error) {
    const int line = source.rows[0].number;
    if (grid.width != grid.height || grid.width > largestBoard) {
        return Fail(error, line, "the board is not square, or larger than 40 by 40");
    }
    if (grid.squares[0] == blackSquare) {
        return Fail(error, line, "the board begins with a black square");
    }
    const std::size_t count = grid.squares.size();
    for (std::size_t i = 0; i < count; ++i) {
        if ((grid.squares[i] == blackSquare) != (grid.squares[count - 1 - i] == blackSquare)) {
            return Fail(error, source.rows[i / grid.width].number,
                        "the board does not look the same upside down");
        }
    }
    return true;
}

// All squares that can be reached from the first one.
bool IsInOnePiece(const Grid& grid) {
    std::set<std::size_t> reached;
    std::vector<std::size_t> next = {0};
    while (!next.empty()) {
        const std::size_t square = next.back();
        next.pop_back();
        if (grid.squares[square] == blackSquare || !reached.insert(square).second) {
            continue;
        }
        const std::size_t column = square % grid.width;
        for (const auto& [isThere, neighbour] :
             {std::pair(column > 0, square - 1), std::pair(column + 1 < grid.width, square + 1),
              std::pair(square >= grid.width, square - grid.width),
              std::pair(square + grid.width < grid.squares.size(), square + grid.width)}) {
            if (isThere) {
                next.push_back(neighbour);
            }
        }
    }
    const auto letters =
        grid.squares.size() -
        static_cast<std::size_t>(std::count(grid.squares.begin(), grid.squares.end(), blackSquare));
    return reached.size() == letters;
}

// A line of the board ended by a black square, so that every word has one behind it.
std::string Squares(const Grid& grid, bool across, std::size_t index) {
    std::string squares;
    for (std::size_t i = 0; i < grid.width; ++i) {
        squares += grid.squares[across ? index * grid.width + i : i * grid.width + index];
    }
    return squares + blackSquare;
}

bool HasGoodWords(const Grid& grid, const Source& source, PuzzleTextError& error) {
    std::set<std::string> words;
    for (std::size_t i = 0; i < 2 * grid.height; ++i) {
        const bool across = i < grid.height;
        const std::string squares = Squares(grid, across, i % grid.height);
        const int line = source.rows[across ? i : 0].number;
        std::string word;
        for (const char square : squares) {
            if (square != blackSquare) {
                word += square;
            } else if (!word.empty() && word.size() < shortestWord) {
                return Fail(error, line, "\"" + word + "\" is too short for a word");
            } else if (!word.empty() && !words.insert(std::exchange(word, {})).second) {
                return Fail(error, line, "a word is there twice");
            }
        }
    }
    return true;
}

bool HasShortClues(const Source& source, PuzzleTextError& error) {
    const auto tooLong =
        std::find_if(source.clues.begin(), source.clues.end(),
                     [](const Clue& clue) { return clue.text.size() > longestClue; });
    return tooLong == source.clues.end() ||
           Fail(error, tooLong->line, "the clue is longer than 70 characters");
}

}  // namespace

bool IsWellMade(const Grid& grid, const Source& source, PuzzleTextError& error) {
    if (!HasGoodShape(grid, source, error) || !HasGoodWords(grid, source, error) ||
        !HasShortClues(source, error)) {
        return false;
    }
    return IsInOnePiece(grid) ||
           Fail(error, source.rows[0].number, "the board is not in one piece");
}

}  // namespace puzzle_text
