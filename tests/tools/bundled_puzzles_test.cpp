// The bundled puzzles: that an edit of a grid or a clue has not spoiled one.
//
// PUZZLES_PATH is the folder with their texts.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tools/puzzle_text.h"

#ifndef PUZZLES_PATH
#error "define PUZZLES_PATH as the folder of the bundled puzzles"
#endif

namespace {

constexpr std::size_t largestSide = 40;     // what the game can hold
constexpr std::size_t largestFile = 16000;  // the same
constexpr std::size_t largestClue = 70;     // bytes, in the small clue bar
constexpr std::size_t shortestWord = 3;

struct Entry {
    std::string name;
    std::string answer;
    std::string clue;
};

struct Puzzle {
    std::size_t side = 0;
    std::string squares;
    std::string title;
    std::string author;
    std::string copyright;
    std::vector<Entry> entries;

    char At(std::size_t row, std::size_t column) const {
        return row < side && column < side ? squares[row * side + column] : '.';
    }
};

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string ReadWord(const Puzzle& puzzle, std::size_t row, std::size_t column, bool across) {
    std::string word;
    while (puzzle.At(row, column) != '.') {
        word += puzzle.At(row, column);
        ++(across ? column : row);
    }
    return word;
}

// The words in clue order, still without their clues. Before the first row or column comes a
// black square too: 0 - 1 is beyond every side.
void FindEntries(Puzzle& puzzle) {
    int number = 0;
    for (std::size_t row = 0; row < puzzle.side; ++row) {
        for (std::size_t column = 0; column < puzzle.side; ++column) {
            const std::string across = ReadWord(puzzle, row, column, true);
            const std::string down = ReadWord(puzzle, row, column, false);
            const bool startsAcross = across.size() > 1 && puzzle.At(row, column - 1) == '.';
            const bool startsDown = down.size() > 1 && puzzle.At(row - 1, column) == '.';
            number += startsAcross || startsDown ? 1 : 0;
            if (startsAcross) {
                puzzle.entries.push_back({std::to_string(number) + " across", across, ""});
            }
            if (startsDown) {
                puzzle.entries.push_back({std::to_string(number) + " down", down, ""});
            }
        }
    }
}

Puzzle ReadPuzzle(const std::string& file) {
    Puzzle puzzle;
    puzzle.side = static_cast<unsigned char>(file[0x2C]);
    EXPECT_EQ(file[0x2C], file[0x2D]) << "not square";
    const std::size_t cells = puzzle.side * puzzle.side;
    puzzle.squares = file.substr(52, cells);
    std::size_t position = 52 + 2 * cells;
    const auto nextText = [&] {
        const std::string text = file.c_str() + position;
        position += text.size() + 1;
        return text;
    };
    puzzle.title = nextText();
    puzzle.author = nextText();
    puzzle.copyright = nextText();
    FindEntries(puzzle);
    for (Entry& entry : puzzle.entries) {
        entry.clue = nextText();
    }
    return puzzle;
}

std::vector<std::string> SplitWords(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char character : text) {
        if (std::isalpha(static_cast<unsigned char>(character))) {
            words.back() += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    return words;
}

// Whether one word begins with the other, or nearly: SHINE with SHINING, BAKE with BAKER.
bool ShareRoot(const std::string& one, const std::string& other) {
    const std::size_t shorter = std::min(one.size(), other.size());
    if (shorter < 3) {
        return one == other;
    }
    const std::size_t root = std::max<std::size_t>(shorter - 1, 3);
    const std::size_t longer = std::max(one.size(), other.size());
    return one.compare(0, root, other, 0, root) == 0 && longer - root <= 3;
}

void ExpectGoodShape(const Puzzle& puzzle) {
    EXPECT_LE(puzzle.side, largestSide);
    EXPECT_NE(puzzle.At(0, 0), '.') << "the player starts on a black square";
    for (std::size_t index = 0; index < puzzle.squares.size(); ++index) {
        const char turned = puzzle.squares[puzzle.squares.size() - 1 - index];
        EXPECT_EQ(puzzle.squares[index] == '.', turned == '.') << "lopsided at " << index;
    }
}

// Every letter is in a word both ways when the letters of the words each way add up to all.
void ExpectEveryLetterCrossed(const Puzzle& puzzle) {
    std::size_t across = 0;
    std::size_t down = 0;
    for (const Entry& entry : puzzle.entries) {
        EXPECT_GE(entry.answer.size(), shortestWord) << entry.answer;
        (entry.name.ends_with("across") ? across : down) += entry.answer.size();
    }
    const auto blacks = std::count(puzzle.squares.begin(), puzzle.squares.end(), '.');
    const std::size_t letters = puzzle.squares.size() - static_cast<std::size_t>(blacks);
    EXPECT_EQ(across, letters);
    EXPECT_EQ(down, letters);
}

void ExpectOnePiece(const Puzzle& puzzle) {
    std::string left = puzzle.squares;
    std::vector<std::size_t> reached = {0};
    while (!reached.empty()) {
        const std::size_t cell = reached.back();
        reached.pop_back();
        if (left[cell] == '.') {
            continue;
        }
        left[cell] = '.';
        const std::size_t column = cell % puzzle.side;
        if (column > 0) {
            reached.push_back(cell - 1);
        }
        if (column + 1 < puzzle.side) {
            reached.push_back(cell + 1);
        }
        if (cell >= puzzle.side) {
            reached.push_back(cell - puzzle.side);
        }
        if (cell + puzzle.side < left.size()) {
            reached.push_back(cell + puzzle.side);
        }
    }
    EXPECT_EQ(left.find_first_not_of('.'), std::string::npos) << "the grid falls apart";
}

void ExpectGoodClues(const Puzzle& puzzle) {
    std::set<std::string> answers;
    std::set<std::string> clues;
    for (const Entry& entry : puzzle.entries) {
        SCOPED_TRACE(entry.name + ": " + entry.clue + " (" + entry.answer + ")");
        EXPECT_TRUE(answers.insert(entry.answer).second) << "a word twice";
        EXPECT_TRUE(clues.insert(entry.clue).second) << "a clue twice";
        EXPECT_LE(entry.clue.size(), largestClue);
        for (const std::string& word : SplitWords(entry.clue)) {
            EXPECT_FALSE(ShareRoot(entry.answer, word)) << word << " gives it away";
        }
    }
}

}  // namespace

TEST(BundledPuzzles, AreWellMade) {
    int count = 0;
    for (const auto& file : std::filesystem::directory_iterator(PUZZLES_PATH)) {
        if (file.path().extension() != ".txt" || file.path().filename() == "CMakeLists.txt") {
            continue;
        }
        SCOPED_TRACE(file.path().filename());
        ++count;
        PuzzleTextError error;
        const auto bytes = CompilePuzzle(ReadFile(file.path()), error);
        ASSERT_TRUE(bytes) << "line " << error.line << ": " << error.reason;
        EXPECT_LE(bytes->size(), largestFile);
        const Puzzle puzzle = ReadPuzzle(std::string(bytes->begin(), bytes->end()));
        EXPECT_FALSE(puzzle.title.empty());
        EXPECT_EQ(puzzle.author, "The Quadrel team");
        EXPECT_EQ(puzzle.copyright, "\xA9 2026 The Quadrel team");
        ExpectGoodShape(puzzle);
        ExpectEveryLetterCrossed(puzzle);
        ExpectOnePiece(puzzle);
        ExpectGoodClues(puzzle);
    }
    EXPECT_GE(count, 1) << "no puzzle in " << PUZZLES_PATH;
}
