// The puzzle compiler beside a second, plain writer of its files, what it says about texts it
// cannot take, and the bundled puzzles: that an edit of a grid or a clue has not spoiled one.
//
// COMPILE_PUZZLE_PATH is the built program, PUZZLES_PATH the folder with the puzzles' texts.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "support/boards.h"
#include "support/temporary_home.h"
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

// What follows the header; texts are title, author, copyright, the clues and the notes.
std::string PlainBody(const BoardRows& rows, const std::vector<std::string>& texts) {
    return PuzzleOfBoard(rows, texts).Bytes().substr(gridOffset);
}

// Windows-1252 where a text fits, UTF-8 for the one that does not, or that would be taken for it.
TEST(CompiledPuzzle, HoldsEveryPartInItsPlace) {
    const std::pair<std::string, std::string> clues[] = {
        {"Cheese fan", "Cheese fan"},
        {"Crème ÿ", "Cr\350me \377"},
        {"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92"},
        {"“”•–—˜™š›œžŸ", "\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"naïve 猫", "naïve 猫"},
        {"Ã© or â€“", "Ã© or â€“"}};
    for (const auto& [clue, bytes] : clues) {
        EXPECT_EQ(
            Compile(Replace(birds, "Cheese fan", clue)).substr(gridOffset),
            PlainBody({"OWL", "A.O", "RAT"}, {"Two Birds", "A. Setter", "\xA9 2026 A. Setter",
                                              "It gives a hoot", "Boat mover", "Destiny's draw",
                                              bytes, "Both birds are one.\r\n\r\nWhoo knew?"}));
    }
    // Its checksums were reckoned by hand once.
    EXPECT_EQ(Compile(birds).substr(0, gridOffset),
              "\x62\x0A"
              "ACROSS&DOWN\0\0\x52\x49\xDA\x11\xD8\x13\xA1\xA6\x71"
              "1.3\0"s +
                  std::string(16, '\0') + "\3\3\4\0\1\0\0\0"s);
}

TEST(CompiledPuzzle, IsTheSameHoweverTheTextIsLaidOut) {
    for (const std::string& text :
         {Replace(birds, "OWL\n", "\towl \t\r\n"), "\xEF\xBB\xBF" + Replace(birds, "A#O", "a.o\n"),
          Replace(birds, "Title:", "Title :") + "\n", birds.substr(0, birds.size() - 1)}) {
        EXPECT_EQ(Compile(text), Compile(birds));
    }
}

TEST(CompiledPuzzle, PutsCluesOfRandomBoardsInOrder) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const int most = seed == 0 ? 255 : 13;
        BoardRows rows =
            RandomBoard(random, most - int(seed % 13), most - int(seed % 7), seed % 50);
        rows.back().back() = 'Z';  // never a board without a letter
        std::vector<std::string> clues;
        std::map<std::pair<int, int>, std::size_t> numbers;
        for (const PlainWord& word : WordsOf(rows)) {
            const auto at = numbers.try_emplace({word.row, word.col}, numbers.size() + 1).first;
            clues.push_back(std::to_string(at->second) +
                            (word.direction == 0 ? " across" : " down"));
        }
        std::vector<std::string> texts(clues.size() + 4);
        std::copy(clues.begin(), clues.end(), texts.begin() + 3);
        std::shuffle(clues.begin(), clues.end(), random);
        std::string source = "Grid:";
        for (const std::string& row : rows) {
            source += "\n" + row;
        }
        source += "\nClues:\n";
        for (const std::string& clue : clues) {
            source += clue + ": " + clue + "\n";
        }
        ASSERT_TRUE(Compile(source).substr(gridOffset) == PlainBody(rows, texts));
    }
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
        PuzzleTextError error;
        EXPECT_FALSE(CompilePuzzle(text, error)) << text;
        EXPECT_EQ(error.line, line) << error.reason;
        EXPECT_NE(error.reason.find(reason), std::string::npos) << error.reason;
    }
}

// Faults: half a puzzle that a build calls up to date, a puzzle written over its own text.
TEST(CompileProgram, WritesWholePuzzlesOrNothing) {
    const TemporaryHome home;
    const auto run = [&home](const std::string& arguments) {
        const std::string command = "cd '" + home.documents().string() + "' && '" +
                                    COMPILE_PUZZLE_PATH + "' " + arguments + " 2>said";
        return WEXITSTATUS(std::system(command.c_str()));
    };
    const auto read = [&home](const char* name) { return ReadBytes(home.documents() / name); };
    WriteBytes(home.documents() / "good.txt", birds);
    WriteBytes(home.documents() / "bad.txt", Replace(birds, "RAT", "R T"));
    WriteBytes(home.documents() / "birds.puz", std::string(9999, '!'));
    EXPECT_EQ(run("good.txt birds.puz"), 0);
    EXPECT_EQ(run("none.txt birds.puz"), 1);
    std::filesystem::create_directory(home.documents() / "folder");
    EXPECT_EQ(run("good.txt folder"), 1);
    EXPECT_EQ(run("good.txt good.txt"), 1);
    EXPECT_EQ(run("good.txt"), 2);
    EXPECT_EQ(run("bad.txt birds.puz"), 1);
    EXPECT_TRUE(read("said").starts_with("bad.txt:8: \" \" in the grid")) << read("said");
    EXPECT_EQ(read("birds.puz"), Compile(birds));
    EXPECT_EQ(read("good.txt"), birds);
    EXPECT_EQ(home.Files().size(), 4U) << "a temporary file was left";
}

// Symmetrical, without short words, small enough for the game and its clue bar.
TEST(BundledPuzzles, AreWellMade) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(PUZZLES_PATH)) {
        if (entry.path().extension() != ".txt" || entry.path().filename() == "CMakeLists.txt") {
            continue;
        }
        SCOPED_TRACE(entry.path().filename());
        ++count;
        const std::string file = Compile(ReadBytes(entry.path()));
        const auto side = static_cast<std::size_t>(file[widthOffset]);
        ASSERT_TRUE(file[widthOffset] == file[heightOffset] && file.size() <= 16000u);
        std::string cells = file.substr(gridOffset, side * side);
        BoardRows rows;
        for (std::size_t row = 0; row < side; ++row) {
            rows.push_back(cells.substr(row * side, side));
        }
        const std::vector<PlainWord> words = WordsOf(rows);
        for (std::size_t i = 0; i < side * side; ++i) {
            const bool black = cells[i] == '.';
            EXPECT_EQ(black, cells[side * side - 1 - i] == '.') << i;
            for (int direction : {0, 1}) {
                const auto word = WordAt(words, int(i / side), int(i % side), direction);
                EXPECT_TRUE(black || word.length >= 3) << i;
            }
        }
        const auto texts = QByteArray::fromStdString(file.substr(gridOffset + 2 * side * side));
        for (const QByteArray& clue : texts.split('\0').mid(3, qsizetype(words.size()))) {
            EXPECT_LE(clue.size(), 70) << clue.toStdString();
        }
    }
    EXPECT_GE(count, 1) << "no puzzle in " << PUZZLES_PATH;
}

}  // namespace
