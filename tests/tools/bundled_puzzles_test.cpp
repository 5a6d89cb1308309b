// The bundled puzzles: that an edit of a grid or a clue has not spoiled one.
//
// PUZZLES_PATH is the folder with their texts.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "support/boards.h"
#include "support/temporary_home.h"
#include "tools/puzzle_text.h"

namespace {

constexpr std::size_t largestSide = 40;     // what the game can hold
constexpr std::size_t largestFile = 16000;  // the same
constexpr std::size_t largestClue = 70;     // bytes, in the small clue bar
constexpr int shortestWord = 3;

BoardRows RowsOf(const std::string& file) {
    const auto side = static_cast<std::size_t>(static_cast<unsigned char>(file[0x2C]));
    EXPECT_EQ(file[0x2C], file[0x2D]) << "not square";
    EXPECT_LE(side, largestSide);
    BoardRows rows;
    for (std::size_t row = 0; row < side; ++row) {
        rows.push_back(file.substr(52 + row * side, side));
    }
    return rows;
}

std::string AnswerOf(const BoardRows& rows, const PlainWord& word) {
    std::string answer;
    for (int i = 0; i < word.length; ++i) {
        const int row = word.row + (word.direction == 1 ? i : 0);
        const int col = word.col + (word.direction == 0 ? i : 0);
        answer += rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
    }
    return answer;
}

// Blackens the cells that can be reached.
void Reach(BoardRows& rows, std::size_t row, std::size_t col) {
    if (row < rows.size() && col < rows.size() && rows[row][col] != '.') {
        rows[row][col] = '.';
        Reach(rows, row + 1, col);
        Reach(rows, row - 1, col);
        Reach(rows, row, col + 1);
        Reach(rows, row, col - 1);
    }
}

// Every letter is in a word both ways when the letters of the words each way add up to all.
void ExpectGoodShape(const BoardRows& rows) {
    std::string squares;
    for (const std::string& row : rows) {
        squares += row;
    }
    EXPECT_NE(squares[0], '.') << "the player starts on a black square";
    for (std::size_t i = 0; i < squares.size(); ++i) {
        EXPECT_EQ(squares[i] == '.', squares[squares.size() - 1 - i] == '.') << "lopsided at " << i;
    }
    std::ptrdiff_t crossed[2] = {};
    for (const PlainWord& word : WordsOf(rows)) {
        EXPECT_GE(word.length, shortestWord) << AnswerOf(rows, word);
        crossed[word.direction] += word.length;
    }
    const auto letters =
        std::count_if(squares.begin(), squares.end(), [](char c) { return c != '.'; });
    EXPECT_EQ(crossed[0], letters);
    EXPECT_EQ(crossed[1], letters);
    BoardRows left = rows;
    Reach(left, 0, 0);
    EXPECT_EQ(left, BoardRows(rows.size(), std::string(rows.size(), '.'))) << "it falls apart";
}

// The clues stand in the order of the words, from the text on.
void ExpectGoodClues(const BoardRows& rows, const char* clue) {
    std::set<std::string> answers;
    std::set<std::string> clues;
    for (const PlainWord& word : WordsOf(rows)) {
        const std::string answer = AnswerOf(rows, word);
        const std::string text = clue;
        SCOPED_TRACE(answer + ": " + text);
        EXPECT_TRUE(answers.insert(answer).second) << "a word twice";
        EXPECT_TRUE(clues.insert(text).second) << "a clue twice";
        EXPECT_LE(text.size(), largestClue);
        clue += text.size() + 1;
    }
}

TEST(BundledPuzzles, AreWellMade) {
    const std::string signature("\0The Quadrel team\0\xA9 2026 The Quadrel team\0", 42);
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(PUZZLES_PATH)) {
        if (entry.path().extension() != ".txt" || entry.path().filename() == "CMakeLists.txt") {
            continue;
        }
        SCOPED_TRACE(entry.path().filename());
        ++count;
        PuzzleTextError error;
        const auto bytes = CompilePuzzle(ReadBytes(entry.path()), error);
        ASSERT_TRUE(bytes) << "line " << error.line << ": " << error.reason;
        EXPECT_LE(bytes->size(), largestFile);
        const std::string file(bytes->begin(), bytes->end());
        const BoardRows rows = RowsOf(file);
        ExpectGoodShape(rows);
        const std::size_t texts = 52 + 2 * rows.size() * rows.size();
        const std::size_t signedAt = file.find(signature, texts);
        ASSERT_GT(signedAt, texts) << "a title, and the team's name";
        ASSERT_NE(signedAt, std::string::npos);
        ExpectGoodClues(rows, file.c_str() + signedAt + signature.size());
    }
    EXPECT_GE(count, 1) << "no puzzle in " << PUZZLES_PATH;
}

}  // namespace
