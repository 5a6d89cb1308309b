// The puzzle compiler's files, and what it says about texts that it cannot take.
#include <gtest/gtest.h>

#include "support/boards.h"
#include "tools/puzzle_text.h"

namespace {

using namespace std::string_literals;

const std::string birds = R"(Title: Two Birds
Author: A. Setter
Copyright: © 2026 A. Setter

Grid:
    OWL
    A#O
    RAT

Clues:
    1 across: It gives a hoot
    3 across: Cheese fan
    1 down: Boat mover
    2 down: Destiny's draw

Notes:
    Both birds are one.

    Whoo knew?
)";

std::string Compile(const std::string& text) {
    PuzzleTextError error;
    const auto bytes = CompilePuzzle(text, error);
    EXPECT_TRUE(bytes) << "line " << error.line << ": " << error.reason << "\n" << text;
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string(99, '\0');
}

std::string Replace(std::string text, const std::string& old, const std::string& by) {
    return text.replace(text.find(old), old.size(), by);
}

// Windows-1252 where a text fits, UTF-8 for the one that does not, or that would be taken for it;
// how the text is laid out does not matter.
TEST(CompiledPuzzle, HoldsEveryPartInItsPlace) {
    const std::string fan = "Cheese fan";
    const std::tuple<std::string, std::string, std::string> changes[] = {
        {fan, "Crème ÿ", "Cr\350me \377"},
        {fan, "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92"},
        {fan, "“”•–—˜™š›œžŸ", "\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {fan, "naïve 猫", "naïve 猫"},
        {fan, "Ã© or â€“", "Ã© or â€“"},
        {"OWL\n", "\towl \t\r\n", fan},
        {"Title", "\xEF\xBB\xBFTitle ", fan},
        {"A#O", "a.o\n", fan},
        {"knew?\n", "knew?", fan},
        {"knew?\n", "knew?\n\n", fan}};
    for (const auto& [old, by, clue] : changes) {
        EXPECT_EQ(Compile(Replace(birds, old, by)).substr(gridOffset),
                  "OWLA.ORAT----.----Two Birds\0A. Setter\0\xA9 2026 A. Setter\0"
                  "It gives a hoot\0Boat mover\0Destiny's draw\0"s +
                      clue + "\0Both birds are one.\r\n\r\nWhoo knew?\0"s);
    }
    // Its checksums were reckoned by hand once.
    EXPECT_EQ(Compile(birds).substr(0, gridOffset),
              "\x62\x0A"
              "ACROSS&DOWN\0\0\x52\x49\xDA\x11\xD8\x13\xA1\xA6\x71"
              "1.3\0"s +
                  std::string(16, '\0') + "\3\3\4\0\1\0\0\0"s);
}

// A text whose clues say which words they belong to, in any order; they are added to the texts in
// the file's.
std::string SourceOf(const BoardRows& rows, std::vector<std::string>& texts) {
    std::vector<std::string> clues;
    std::map<std::pair<int, int>, std::size_t> numbers;
    for (const PlainWord& word : WordsOf(rows)) {
        const auto at = numbers.try_emplace({word.row, word.col}, numbers.size() + 1).first;
        clues.push_back(std::to_string(at->second) + (word.direction == 0 ? " across" : " down"));
    }
    texts.insert(texts.end(), clues.begin(), clues.end());
    std::shuffle(clues.begin(), clues.end(), std::mt19937(unsigned(rows.size())));
    std::string source = "Grid:";
    for (const std::string& row : rows) {
        source += "\n" + row;
    }
    source += "\nClues:\n";
    for (const std::string& clue : clues) {
        source += clue + ": " + clue + "\n";
    }
    return source;
}

TEST(CompiledPuzzle, PutsCluesOfRandomBoardsInOrder) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::mt19937 random(seed);
        const int most = seed == 0 ? 255 : 13;
        BoardRows rows =
            RandomBoard(random, most - int(seed % 13), most - int(seed % 7), seed % 50);
        rows.back().back() = 'Z';  // never a board without a letter
        std::vector<std::string> texts(3);
        const std::string source = SourceOf(rows, texts);
        texts.emplace_back();  // the notes
        ASSERT_EQ(Compile(source).substr(gridOffset),
                  PuzzleOfBoard(rows, texts).Bytes().substr(gridOffset));
    }
}

void ExpectRefused(const std::string& text, int line, const std::string& reason) {
    PuzzleTextError error;
    EXPECT_FALSE(CompilePuzzle(text, error, Standard::Bundled)) << text;
    EXPECT_EQ(error.line, line) << error.reason;
    EXPECT_NE(error.reason.find(reason), std::string::npos) << error.reason;
}

TEST(WrongText, IsNamedByLineAndReason) {
    const std::string threeAcross = "3 across: Cheese fan";
    const std::tuple<std::string, int, std::string> examples[] = {
        {"", 1, "no grid"},
        {"Title: x\nGrid:\n#.#\n...\n", 3, "no letter"},
        {Replace(birds, "A#O", "A#OX"), 7, "a row of 4 squares, but the first row has 3"},
        {Replace(birds, "A#O", "AéO"), 7, "\"é\" in the grid"},
        {"Grid:\n" + std::string(256, 'A') + "\n", 2, "larger than 255"},
        {Replace(birds, "Author:", "Autor:"), 2, "\"Autor: A. Setter\" belongs to no section"},
        {Replace(birds, "Clues:", "Grid:\nClues:"), 10, "a second section \"Grid\""},
        {Replace(birds, threeAcross, ""), 8, "no clue for 3 across, which starts here in column 1"},
        {Replace(birds, "2 down:", "1 down:"), 14,
         "a second clue for 1 down; the first is in line 13"},
        {Replace(birds, "3 across", "3 down"), 12, "no word at 3 down"},
        {Replace(birds, "3 across", "99999999999999999999 across"), 12, "expected a clue"},
        {Replace(birds, threeAcross, "3 across:  "), 12, "no text"},
        {Replace(birds, "fan", "f\xED\xA0\x80"), 12, "not UTF-8"},
        {Replace(birds, "fan", "f\xF4\x90\x80\x80"), 12, "not UTF-8"},
        {Replace(birds, "Birds", "Bi\0rds"s), 1, "NUL"},
        {Replace(birds, "fan", "f\x1B[1m"), 12, "control"},
    };
    for (const auto& [text, line, reason] : examples) {
        ExpectRefused(text, line, reason);
    }
}

TEST(WrongText, ThatIsBundledIsNotWellMade) {
    const std::tuple<BoardRows, int, std::string> boards[] = {
        {{"ABC", "DEF"}, 2, "not square"},
        {BoardRows(41, std::string(41, 'A')), 2, "larger than 40"},
        {{".ABC", "DEFG", "HIJK", "LMN."}, 2, "begins with a black"},
        {{"ABCD", "EFG.", "HIJK", "LMNO"}, 3, "upside down"},
        {{"AB", "CD"}, 2, "\"AB\" is too short"},
        {{"ABC", "BDE", "CEF"}, 2, "twice"},
        {{"ABC....", "DEF....", "GHI....", ".......", "....JKL", "....MNO", "....PQR"},
         2,
         "one piece"}};
    std::vector<std::string> texts;
    for (const auto& [rows, line, reason] : boards) {
        const std::string source = SourceOf(rows, texts);
        Compile(source);
        ExpectRefused(source, line, reason);
    }
    const std::string good = SourceOf({"ABC", "DEF", "GHI"}, texts);
    ExpectRefused(Replace(good, ": 1 down", ':' + std::string(71, 'n')), 7, "longer than 70");
}

}  // namespace
