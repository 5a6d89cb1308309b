// The puzzle compiler: the file it writes, read back by rules written a second time and plainly,
// and what it says about texts it cannot take.
//
// COMPILE_PUZZLE_PATH is the built program.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tools/puzzle_text.h"

#ifndef COMPILE_PUZZLE_PATH
#error "define COMPILE_PUZZLE_PATH as the path of the built compile_puzzle"
#endif

namespace {

const std::string birds =
    "Title: Two Birds\n"
    "Author: A. Setter\n"
    "Copyright: © 2026 A. Setter\n"
    "\n"
    "Grid:\n"
    "    OWL\n"
    "    A#O\n"
    "    RAT\n"
    "\n"
    "Clues:\n"
    "    1 across: It gives a hoot\n"
    "    3 across: Cheese fan\n"
    "    1 down: Boat mover\n"
    "    2 down: Destiny's draw\n"
    "\n"
    "Notes:\n"
    "    Both birds are one.\n"
    "\n"
    "    Whoo knew?\n"
    "\n";

std::string Compile(const std::string& text) {
    PuzzleTextError error;
    const auto bytes = CompilePuzzle(text, error);
    EXPECT_TRUE(bytes) << "line " << error.line << ": " << error.reason << "\n" << text;
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string(52, '\0');
}

PuzzleTextError CompileWrong(const std::string& text) {
    PuzzleTextError error;
    EXPECT_FALSE(CompilePuzzle(text, error)) << text;
    return error;
}

std::string Replace(std::string text, const std::string& old, const std::string& by) {
    const std::size_t position = text.find(old);
    EXPECT_NE(position, std::string::npos) << old;
    return position == std::string::npos ? text : text.replace(position, old.size(), by);
}

unsigned ByteAt(const std::string& file, std::size_t offset) {
    return static_cast<unsigned char>(file.at(offset));
}

unsigned WordAt(const std::string& file, std::size_t offset) {
    return ByteAt(file, offset) + 256 * ByteAt(file, offset + 1);
}

struct ReadBack {
    unsigned width = 0;
    unsigned height = 0;
    std::string solution;
    std::string player;
    std::string title;
    std::string author;
    std::string copyright;
    std::vector<std::string> clues;
    std::string notes;
};

ReadBack ReadFile(const std::string& file) {
    ReadBack puzzle;
    puzzle.width = ByteAt(file, 0x2C);
    puzzle.height = ByteAt(file, 0x2D);
    const std::size_t cells = puzzle.width * puzzle.height;
    puzzle.solution = file.substr(52, cells);
    puzzle.player = file.substr(52 + cells, cells);
    std::size_t position = 52 + 2 * cells;
    const auto nextText = [&] {
        const std::size_t end = file.find('\0', position);
        EXPECT_NE(end, std::string::npos) << "a text without its end";
        const std::string text = file.substr(position, end - position);
        position = end + 1;
        return text;
    };
    puzzle.title = nextText();
    puzzle.author = nextText();
    puzzle.copyright = nextText();
    for (unsigned count = WordAt(file, 0x2E); count > 0; --count) {
        puzzle.clues.push_back(nextText());
    }
    puzzle.notes = nextText();
    EXPECT_EQ(position, file.size()) << "bytes after the notes";
    return puzzle;
}

// ---- A second, slow way to the checksums: division and remainder, no bit tricks ----

unsigned SlowChecksum(unsigned start, const std::string& bytes) {
    unsigned sum = start;
    for (const char byte : bytes) {
        const unsigned lowestBit = sum % 2;
        sum = sum / 2 + lowestBit * 32768;
        sum = (sum + static_cast<unsigned char>(byte)) % 65536;
    }
    return sum;
}

std::string WithNul(const std::string& text) {
    return text.empty() ? "" : text + std::string(1, '\0');
}

void ExpectChecksums(const std::string& file) {
    const ReadBack puzzle = ReadFile(file);
    std::string texts = WithNul(puzzle.title) + WithNul(puzzle.author) + WithNul(puzzle.copyright);
    for (const std::string& clue : puzzle.clues) {
        texts += clue;
    }
    texts += WithNul(puzzle.notes);

    const std::string info = file.substr(0x2C, 8);
    EXPECT_EQ(WordAt(file, 0x0E), SlowChecksum(0, info));
    EXPECT_EQ(WordAt(file, 0x00), SlowChecksum(0, info + puzzle.solution + puzzle.player + texts));
    const std::string parts[] = {info, puzzle.solution, puzzle.player, texts};
    for (std::size_t part = 0; part < 4; ++part) {
        const unsigned checksum = SlowChecksum(0, parts[part]);
        EXPECT_EQ(ByteAt(file, 0x10 + part) ^ static_cast<unsigned>("ICHE"[part]), checksum % 256);
        EXPECT_EQ(ByteAt(file, 0x14 + part) ^ static_cast<unsigned>("ATED"[part]), checksum / 256);
    }
}

// ---- Boards made at random ----

struct Board {
    std::vector<std::string> rows;

    char At(int row, int column) const {
        if (row < 0 || column < 0 || row >= static_cast<int>(rows.size()) ||
            column >= static_cast<int>(rows[0].size())) {
            return '.';
        }
        return rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
};

Board MakeBoard(std::mt19937& random, std::size_t width, std::size_t height, int blackPercent) {
    Board board;
    for (std::size_t row = 0; row < height; ++row) {
        std::string squares;
        for (std::size_t column = 0; column < width; ++column) {
            const bool black = static_cast<int>(random() % 100) < blackPercent;
            squares += black ? '.' : static_cast<char>('A' + random() % 26);
        }
        board.rows.push_back(squares);
    }
    board.rows[height - 1][width - 1] = 'Z';  // never a board without a letter
    return board;
}

// Clue names in file order. Words are collected by direction, each as a whole run of letters,
// and only then brought into order and numbered by where they start.
std::vector<std::string> ListWords(const Board& board) {
    std::map<std::pair<int, int>, std::vector<std::string>> starts;
    for (const bool across : {true, false}) {
        for (int row = 0; row < static_cast<int>(board.rows.size()); ++row) {
            for (int column = 0; column < static_cast<int>(board.rows[0].size()); ++column) {
                const int down = across ? 0 : 1;
                const int right = 1 - down;
                if (board.At(row - down, column - right) != '.') {
                    continue;
                }
                int length = 0;
                while (board.At(row + length * down, column + length * right) != '.') {
                    ++length;
                }
                if (length > 1) {
                    starts[{row, column}].push_back(across ? "across" : "down");
                }
            }
        }
    }
    std::vector<std::string> names;
    int number = 0;
    for (const auto& [place, directions] : starts) {
        ++number;
        for (const std::string& direction : directions) {
            names.push_back(std::to_string(number) + " " + direction);
        }
    }
    return names;
}

std::string WriteText(const Board& board, const std::vector<std::string>& names) {
    std::string text = "Grid:\n";
    for (const std::string& row : board.rows) {
        text += row + "\n";
    }
    text += "Clues:\n";
    for (const std::string& name : names) {
        text += name + ": text of " + name + "\n";
    }
    return text;
}

}  // namespace

// ---- The file ----

TEST(CompiledPuzzle, HoldsEveryPartInItsPlace) {
    const std::string file = Compile(birds);
    EXPECT_EQ(file.substr(2, 12), std::string("ACROSS&DOWN\0", 12));
    EXPECT_EQ(file.substr(0x18, 4), std::string("1.3\0", 4));
    EXPECT_EQ(file.substr(0x1C, 16), std::string(16, '\0'));
    EXPECT_EQ(WordAt(file, 0x30), 1U) << "an ordinary puzzle";
    EXPECT_EQ(WordAt(file, 0x32), 0U) << "not scrambled";

    const ReadBack puzzle = ReadFile(file);
    EXPECT_EQ(puzzle.width, 3U);
    EXPECT_EQ(puzzle.height, 3U);
    EXPECT_EQ(puzzle.solution, "OWLA.ORAT");
    EXPECT_EQ(puzzle.player, "----.----");
    EXPECT_EQ(puzzle.title, "Two Birds");
    EXPECT_EQ(puzzle.author, "A. Setter");
    EXPECT_EQ(puzzle.copyright, "\xA9 2026 A. Setter");
    const std::vector<std::string> clues = {"It gives a hoot", "Boat mover", "Destiny's draw",
                                            "Cheese fan"};
    EXPECT_EQ(puzzle.clues, clues);
    EXPECT_EQ(puzzle.notes, "Both birds are one.\r\n\r\nWhoo knew?");
}

TEST(CompiledPuzzle, IsTheSameHoweverTheTextIsLaidOut) {
    const std::string file = Compile(birds);
    std::string dosLines;
    for (const char character : birds) {
        dosLines += character == '\n' ? std::string("\r\n") : std::string(1, character);
    }
    EXPECT_EQ(Compile(dosLines), file) << "CR LF";
    EXPECT_EQ(Compile("\xEF\xBB\xBF" + birds), file) << "byte order mark";
    EXPECT_EQ(Compile(Replace(birds, "OWL", "\towl \t")), file) << "lower case, tabs";
    EXPECT_EQ(Compile(Replace(birds, "A#O", "a.o\n")), file) << "'.', a blank line";
    EXPECT_EQ(Compile(Replace(birds, "Title:", "Title :")), file) << "blank before the colon";
    EXPECT_EQ(Compile(birds.substr(0, birds.size() - 2)), file) << "no line end at the end";
}

TEST(CompiledPuzzle, ReadsRowsAndColumnsTheRightWayRound) {
    const ReadBack wide =
        ReadFile(Compile("Grid:\nAB.\n.CD\nClues:\n1 across: one\n2 down: two\n"
                         "3 across: three"));
    EXPECT_EQ(wide.width, 3U);
    EXPECT_EQ(wide.height, 2U);
    EXPECT_EQ(wide.solution, "AB..CD");
    EXPECT_EQ(wide.clues, (std::vector<std::string>{"one", "two", "three"}));

    const ReadBack tall = ReadFile(Compile("Grid:\nA\nB\nC\nClues:\n1 down: all"));
    EXPECT_EQ(tall.width, 1U);
    EXPECT_EQ(tall.height, 3U);
    EXPECT_EQ(tall.solution, "ABC");
}

TEST(CompiledPuzzle, PutsCluesOfRandomBoardsInOrder) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const std::size_t width = 1 + random() % 20;
        const std::size_t height = 1 + random() % 20;
        const Board board = MakeBoard(random, width, height, static_cast<int>(random() % 60));
        const std::vector<std::string> names = ListWords(board);
        std::vector<std::string> shuffled = names;
        std::shuffle(shuffled.begin(), shuffled.end(), random);

        const std::string file = Compile(WriteText(board, shuffled));
        std::vector<std::string> expected;
        for (const std::string& name : names) {
            expected.push_back("text of " + name);
        }
        ASSERT_EQ(ReadFile(file).clues, expected);
        ExpectChecksums(file);
    }
}

TEST(CompiledPuzzle, TakesTheSmallestAndTheLargestBoards) {
    const ReadBack one = ReadFile(Compile("Grid:\nQ\n"));
    EXPECT_EQ(one.solution, "Q");
    EXPECT_TRUE(one.clues.empty());

    std::mt19937 random(1);
    for (const std::size_t side : {40U, 255U}) {
        const Board board = MakeBoard(random, side, side, 25);
        const std::vector<std::string> names = ListWords(board);
        const std::string file = Compile(WriteText(board, names));
        EXPECT_EQ(ReadFile(file).width, side);
        EXPECT_EQ(ReadFile(file).height, side);
        EXPECT_EQ(ReadFile(file).clues.size(), names.size());
        ExpectChecksums(file);
    }
}

// ---- Checksums ----

TEST(Checksums, AreTheOnesWorkedOutByHand) {
    // 03 03 04 00 01 00 00 00, each sum rotated right by one bit before the next byte is added:
    // 0003, 8001 + 3 = 8004, 4002 + 4 = 4006, 2003, 9001 + 1 = 9002, 4801, A400, 5200.
    EXPECT_EQ(WordAt(Compile(birds), 0x0E), 0x5200U);
    // One cell without texts. 01 01 00 00 01 00 00 00: 0001, 8001, C000, 6000, 3001, 9800, 4C00,
    // 2600. Then the solution "Q", 1300 + 51 = 1351, and the player's "-", 89A8 + 2D = 89D5.
    const std::string file = Compile("Grid:\nQ\n");
    EXPECT_EQ(WordAt(file, 0x0E), 0x2600U);
    EXPECT_EQ(WordAt(file, 0x00), 0x89D5U);
}

TEST(Checksums, LeaveOutTextsThatAreAbsent) {
    ExpectChecksums(Compile(birds));
    ExpectChecksums(Compile(birds.substr(0, birds.find("Notes:"))));
    ExpectChecksums(Compile(birds.substr(birds.find("Grid:"))));
    ExpectChecksums(Compile(Replace(birds, "Author: A. Setter\n", "")));
    ExpectChecksums(Compile(Replace(birds, "Title: Two Birds", "Title:")));
}

// ---- Encoding ----

TEST(Encoding, IsWindowsWhereTheTextFits) {
    const std::pair<const char*, const char*> examples[] = {
        {"Crème brûlée, ÿ",
         "Cr\xE8me br\xFBl\xE9"
         "e, \xFF"},
        {"“Don’t” – or do… €5 ™",
         "\x93"
         "Don\x92t\x94 \x96 or do\x85 \x80"
         "5 \x99"},
        {"Š œ Ÿ Ž", "\x8A \x9C \x9F \x8E"},
        {"plain", "plain"},
    };
    for (const auto& [text, bytes] : examples) {
        const std::string file = Compile(Replace(birds, "Cheese fan", text));
        EXPECT_EQ(ReadFile(file).clues[3], bytes);
        ExpectChecksums(file);
    }
}

TEST(Encoding, IsUtf8ForTheOneTextThatNeedsIt) {
    for (const char* text : {"Α and Ω", "naïve 猫", "🐀", "a\xC2\xAD\xE2\x86\x92"}) {
        const std::string file = Compile(Replace(birds, "Cheese fan", text));
        EXPECT_EQ(ReadFile(file).clues[3], text);
        EXPECT_EQ(ReadFile(file).copyright, "\xA9 2026 A. Setter") << "the others stay Windows";
        ExpectChecksums(file);
    }
}

TEST(Encoding, NeverLooksLikeAnotherText) {
    // In Windows-1252 these are the bytes of "é" and of "–" in UTF-8.
    for (const char* text : {"Ã©", "â€“"}) {
        EXPECT_EQ(ReadFile(Compile(Replace(birds, "Cheese fan", text))).clues[3], text);
    }
}

// ---- Texts that cannot be taken ----

TEST(WrongText, IsNamedByLineAndReason) {
    struct Example {
        std::string text;
        int line;
        std::string reason;
    };
    const std::string wide(256, 'A');
    std::string tall = "Grid:\n";
    for (int row = 0; row < 256; ++row) {
        tall += "A\n";
    }
    const Example examples[] = {
        {"", 1, "no grid"},
        {"Title: Nothing\n\n", 2, "no grid"},
        {"Grid:\n\nClues:\n", 3, "no grid"},
        {"Title: x\nGrid:\n#.#\n...\n", 3, "no letter"},
        {Replace(birds, "A#O", "A#OX"), 7, "a row of 4 squares, but the first row has 3"},
        {Replace(birds, "RAT", "RA"), 8, "a row of 2 squares, but the first row has 3"},
        {Replace(birds, "A#O", "A O"), 7, "\" \" in the grid"},
        {Replace(birds, "A#O", "A1O"), 7, "\"1\" in the grid"},
        {Replace(birds, "A#O", "AéO"), 7, "\"é\" in the grid"},
        {"Grid:\n" + wide + "\n", 2, "larger than 255"},
        {tall, 257, "larger than 255"},
        {"Hello\n" + birds, 1, "\"Hello\" belongs to no section"},
        {Replace(birds, "Author:", "Autor:"), 2, "\"Autor: A. Setter\" belongs to no section"},
        {Replace(birds, "Two Birds\n", "Two\nBirds\n"), 2, "\"Birds\" belongs to no section"},
        {Replace(birds, "Clues:", "Title: Again\nClues:"), 10, "a second section \"Title\""},
        {Replace(birds, "Clues:", "Grid:\nClues:"), 10, "a second section \"Grid\""},
    };
    for (const Example& example : examples) {
        const PuzzleTextError error = CompileWrong(example.text);
        EXPECT_EQ(error.line, example.line) << error.reason;
        EXPECT_NE(error.reason.find(example.reason), std::string::npos) << error.reason;
    }
}

TEST(WrongText, BytesThatAreNoTextAreNamed) {
    const std::string notUtf8[] = {
        "\xE9",              // Windows-1252
        "\x80",              // no lead byte
        "\xC3",              // cut off by the line's end
        "\xE2\x82",          // the same
        "\xC0\xAF",          // longer than needed
        "\xE0\x80\xAF",      // the same
        "\xF0\x8F\xBF\xBF",  // the same
        "\xED\xA0\x80",      // a surrogate
        "\xF4\x90\x80\x80",  // beyond Unicode
        "\xFF",
    };
    for (const std::string& bytes : notUtf8) {
        const PuzzleTextError error = CompileWrong(Replace(birds, "fan", "f" + bytes));
        EXPECT_EQ(error.line, 12);
        EXPECT_NE(error.reason.find("not UTF-8"), std::string::npos) << error.reason;
    }
    const std::string nul(1, '\0');
    const PuzzleTextError inTitle = CompileWrong(Replace(birds, "Birds", "Bi" + nul + "rds"));
    EXPECT_EQ(inTitle.line, 1);
    EXPECT_NE(inTitle.reason.find("NUL"), std::string::npos);
    EXPECT_EQ(CompileWrong(birds + nul).line, 21) << "in the notes";
    EXPECT_EQ(CompileWrong(Replace(birds, "fan", "f\x1B[1m")).line, 12);
    EXPECT_EQ(CompileWrong(Replace(birds, "fan", "f\xC2\x85")).line, 12) << "a C1 control";
}

TEST(WrongText, ClueThatIsMissingDoubledOrTooManyIsNamed) {
    const std::string threeDown = "3 across: Cheese fan";
    struct Example {
        std::string text;
        int line;
        std::string reason;
    };
    const Example examples[] = {
        {Replace(birds, "1 across: It gives a hoot", ""), 6,
         "no clue for 1 across, which starts here in column 1"},
        {Replace(birds, "2 down: Destiny's draw", ""), 6,
         "no clue for 2 down, which starts here in column 3"},
        {Replace(birds, threeDown, ""), 8, "no clue for 3 across, which starts here in column 1"},
        {birds.substr(0, birds.find("Clues:")), 6, "no clue for 1 across"},
        {Replace(birds, "2 down:", "1 down:"), 14,
         "a second clue for 1 down; the first is in line 13"},
        {Replace(birds, "2 down:", "2 across: No\n2 down:"), 14, "no word at 2 across"},
        {Replace(birds, threeDown, "3 down: Cheese fan"), 12, "no word at 3 down"},
        {Replace(birds, threeDown, "4 across: Cheese fan"), 12, "no word at 4 across"},
        {Replace(birds, threeDown, "99999 across: Cheese fan"), 12, "no word at 99999 across"},
        {Replace(birds, threeDown, "99999999999999999999 across: x"), 12, "expected a clue"},
        {Replace(birds, threeDown, "0 across: Cheese fan"), 12, "expected a clue"},
        {Replace(birds, threeDown, "-1 across: Cheese fan"), 12, "expected a clue"},
        {Replace(birds, threeDown, "3 acros: Cheese fan"), 12, "expected a clue"},
        {Replace(birds, threeDown, "3 across Cheese fan"), 12, "expected a clue"},
        {Replace(birds, threeDown, "across: Cheese fan"), 12, "expected a clue"},
        {Replace(birds, threeDown, "3 across:  "), 12, "no text"},
    };
    for (const Example& example : examples) {
        const PuzzleTextError error = CompileWrong(example.text);
        EXPECT_EQ(error.line, example.line) << error.reason;
        EXPECT_NE(error.reason.find(example.reason), std::string::npos) << error.reason;
    }
}

TEST(WrongText, NeverCrashesTheCompiler) {
    // Mostly for the sanitizers: bytes taken out, put in and changed anywhere.
    for (unsigned seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        std::string text = birds;
        for (unsigned change = 1 + random() % 4; change > 0; --change) {
            const std::size_t position = random() % text.size();
            const char byte = static_cast<char>(random() % 256);
            switch (random() % 3) {
                case 0: text.erase(position, 1 + random() % 30); break;
                case 1: text.insert(position, 1, byte); break;
                default: text[position] = byte;
            }
        }
        PuzzleTextError error;
        const auto bytes = CompilePuzzle(text, error);
        if (bytes) {
            ExpectChecksums(std::string(bytes->begin(), bytes->end()));
        } else {
            EXPECT_GE(error.line, 1);
            EXPECT_FALSE(error.reason.empty());
        }
    }
}

// ---- The program ----

namespace {

class CompileProgram : public testing::Test {
protected:
    void SetUp() override {
        // Tests may run side by side, each in a process of its own.
        const std::string name = "compile puzzle " + std::to_string(getpid());
        folder = std::filesystem::path(testing::TempDir()) / name;
        std::filesystem::create_directories(folder);
    }
    void TearDown() override {
        std::filesystem::remove_all(folder);
    }

    std::string PathOf(const std::string& name) const {
        return (folder / name).string();
    }
    void Write(const std::string& name, const std::string& content) const {
        std::ofstream(PathOf(name), std::ios::binary) << content;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(PathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    // The exit status; what it said on the error stream is in the file "said".
    int Run(const std::string& input, const std::string& output) const {
        const std::string command = std::string("'") + COMPILE_PUZZLE_PATH + "' '" + PathOf(input) +
                                    "' '" + PathOf(output) + "' 2> '" + PathOf("said") + "'";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::ptrdiff_t CountFiles() const {
        return std::distance(std::filesystem::directory_iterator(folder), {});
    }

    std::filesystem::path folder;
};

}  // namespace

TEST_F(CompileProgram, WritesThePuzzleOverAnOlderOne) {
    Write("birds.txt", birds);
    Write("birds.puz", "an older and, who knows, longer puzzle" + std::string(9999, '!'));
    EXPECT_EQ(Run("birds.txt", "birds.puz"), 0);
    EXPECT_EQ(Read("birds.puz"), Compile(birds));
    EXPECT_EQ(Read("said"), "");
    EXPECT_EQ(CountFiles(), 3) << "a temporary file was left";
}

TEST_F(CompileProgram, LeavesTheOutputAloneWhenTheTextIsWrong) {
    Write("birds.txt", Replace(birds, "RAT", "R T"));
    Write("birds.puz", "old");
    EXPECT_EQ(Run("birds.txt", "birds.puz"), 1);
    EXPECT_EQ(Read("birds.puz"), "old");
    EXPECT_EQ(Read("said").find(PathOf("birds.txt") + ":8: \" \" in the grid"), 0U) << Read("said");
    EXPECT_EQ(Run("birds.txt", "new.puz"), 1);
    EXPECT_EQ(CountFiles(), 3) << "a file was made";
}

TEST_F(CompileProgram, SaysWhatItCannotReadOrWrite) {
    Write("birds.txt", birds);
    std::filesystem::create_directory(folder / "taken.puz");
    EXPECT_EQ(Run("none.txt", "birds.puz"), 1);
    EXPECT_EQ(Read("said"), PathOf("none.txt") + ": cannot be read\n");
    EXPECT_EQ(Run("taken.puz", "birds.puz"), 1) << "a folder";
    EXPECT_EQ(Run("birds.txt", "none/birds.puz"), 1);
    EXPECT_EQ(Read("said"), PathOf("none/birds.puz") + ": cannot be written\n");
    EXPECT_EQ(Run("birds.txt", "taken.puz"), 1);
    EXPECT_EQ(Read("said"), PathOf("taken.puz") + ": cannot be written\n");
    EXPECT_EQ(CountFiles(), 3) << "a temporary file was left";
}

TEST_F(CompileProgram, NeverWritesOverThePuzzlesText) {
    Write("birds.txt", birds);
    EXPECT_EQ(Run("birds.txt", "birds.txt"), 1);
    EXPECT_EQ(Read("birds.txt"), birds);
}
