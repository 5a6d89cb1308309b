// The puzzle compiler: the file it writes, read back by rules written a second time and plainly,
// and what it says about texts it cannot take.
//
// COMPILE_PUZZLE_PATH is the built program.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "support/boards.h"
#include "support/temporary_home.h"
#include "tools/puzzle_text.h"

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
    "    Whoo knew?\n";

std::string Compile(const std::string& text) {
    PuzzleTextError error;
    const auto bytes = CompilePuzzle(text, error);
    EXPECT_TRUE(bytes) << "line " << error.line << ": " << error.reason << "\n" << text;
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string(99, '\0');
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

std::string GridsOf(const std::string& file) {
    return file.substr(52, 2 * ByteAt(file, 0x2C) * ByteAt(file, 0x2D));
}

// Title, author, copyright, the clues and the notes.
std::vector<std::string> TextsOf(const std::string& file) {
    std::vector<std::string> texts;
    for (std::size_t at = 52 + GridsOf(file).size(); at < file.size();) {
        texts.push_back(file.c_str() + at);
        at += texts.back().size() + 1;
    }
    EXPECT_EQ(texts.size(), WordAt(file, 0x2E) + 4U);
    return texts;
}

// Division and remainder, no bit tricks.
unsigned SlowChecksum(const std::string& bytes) {
    unsigned sum = 0;
    for (const char byte : bytes) {
        sum = sum / 2 + sum % 2 * 32768;
        sum = (sum + static_cast<unsigned char>(byte)) % 65536;
    }
    return sum;
}

// An absent text counts for nothing, a clue counts without its end.
void ExpectChecksums(const std::string& file) {
    const std::vector<std::string> all = TextsOf(file);
    std::string texts;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool clue = i > 2 && i + 1 < all.size();
        texts += all[i] + (clue || all[i].empty() ? "" : std::string(1, '\0'));
    }
    const std::string info = file.substr(0x2C, 8);
    const std::string grids = GridsOf(file);
    const std::string parts[] = {info, grids.substr(0, grids.size() / 2),
                                 grids.substr(grids.size() / 2), texts};
    EXPECT_EQ(WordAt(file, 0x0E), SlowChecksum(info));
    EXPECT_EQ(WordAt(file, 0x00), SlowChecksum(info + grids + texts));
    for (std::size_t part = 0; part < 4; ++part) {
        const unsigned checksum = SlowChecksum(parts[part]);
        EXPECT_EQ(ByteAt(file, 0x10 + part) ^ static_cast<unsigned>("ICHE"[part]), checksum % 256);
        EXPECT_EQ(ByteAt(file, 0x14 + part) ^ static_cast<unsigned>("ATED"[part]), checksum / 256);
    }
}

TEST(CompiledPuzzle, HoldsEveryPartInItsPlace) {
    const std::string file = Compile(birds);
    EXPECT_EQ(file.substr(2, 12), std::string("ACROSS&DOWN\0", 12));
    EXPECT_EQ(file.substr(0x18, 4), std::string("1.3\0", 4));
    EXPECT_EQ(file.substr(0x30, 4), std::string("\1\0\0\0", 4)) << "ordinary, not scrambled";
    EXPECT_EQ(GridsOf(file), "OWLA.ORAT----.----");
    EXPECT_EQ(TextsOf(file),
              (std::vector<std::string>{"Two Birds", "A. Setter", "\xA9 2026 A. Setter",
                                        "It gives a hoot", "Boat mover", "Destiny's draw",
                                        "Cheese fan", "Both birds are one.\r\n\r\nWhoo knew?"}));
    // 03 03 04 00 01 00 00 00, each sum rotated right by one bit before the next byte is added:
    // 0003, 8001 + 3 = 8004, 4002 + 4 = 4006, 2003, 9001 + 1 = 9002, 4801, A400, 5200.
    EXPECT_EQ(WordAt(file, 0x0E), 0x5200U);
    ExpectChecksums(file);
    ExpectChecksums(Compile(birds.substr(birds.find("Grid:"))));
}

TEST(CompiledPuzzle, IsTheSameHoweverTheTextIsLaidOut) {
    const std::string file = Compile(birds);
    EXPECT_EQ(Compile(Replace(birds, "OWL\n", "\towl \t\r\n")), file);
    EXPECT_EQ(Compile("\xEF\xBB\xBF" + Replace(birds, "A#O", "a.o\n")), file);
    EXPECT_EQ(Compile(Replace(birds, "Title:", "Title :") + "\n"), file);
    EXPECT_EQ(Compile(birds.substr(0, birds.size() - 1)), file);
}

TEST(CompiledPuzzle, PutsCluesOfRandomBoardsInOrder) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        BoardRows rows = seed == 0 ? RandomBoard(random, 255, 255) : RandomBoard(random);
        rows.back().back() = 'Z';  // never a board without a letter
        std::vector<std::string> names;
        int number = 0;
        const PlainWord* before = nullptr;
        const std::vector<PlainWord> words = WordsOf(rows);
        for (const PlainWord& word : words) {
            const bool sharesStart =
                before != nullptr && before->row == word.row && before->col == word.col;
            number += sharesStart ? 0 : 1;
            names.push_back(std::to_string(number) + (word.direction == 0 ? " across" : " down"));
            before = &word;
        }
        std::vector<std::string> shuffled = names;
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        std::string text = "Grid:" + BoardText(rows) + "\nClues:\n";
        for (const std::string& name : shuffled) {
            text += name + ": " + name + "\n";
        }
        const std::string file = Compile(text);
        names.insert(names.begin(), 3, "");
        names.push_back("");
        ASSERT_EQ(TextsOf(file), names);
        ExpectChecksums(file);
    }
}

// Windows-1252 where the text fits, UTF-8 for the one that does not, or that would be taken for it.
TEST(CompiledPuzzle, EncodesEachText) {
    const std::pair<std::string, std::string> examples[] = {
        {"Crème ÿ", "Cr\350me \377"},
        {"“Don’t” – €5 Š", "\223Don\222t\224 \226 \2005 \212"},
        {"naïve 猫", "naïve 猫"},
        {"Ã©", "Ã©"},
        {"â€“", "â€“"}};
    for (const auto& [text, bytes] : examples) {
        const std::string file = Compile(Replace(birds, "Cheese fan", text));
        EXPECT_EQ(TextsOf(file)[6], bytes);
        EXPECT_EQ(TextsOf(file)[2], "\xA9 2026 A. Setter");
    }
}

TEST(WrongText, IsNamedByLineAndReason) {
    struct Example {
        std::string text;
        int line;
        std::string reason;
    };
    const std::string threeAcross = "3 across: Cheese fan";
    const Example examples[] = {
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
        {Replace(birds, "fan", "f\xE9"), 12, "not UTF-8"},
        {Replace(birds, "fan", "f\xED\xA0\x80"), 12, "not UTF-8"},
        {Replace(birds, "fan", "f\xF4\x90\x80\x80"), 12, "not UTF-8"},
        {Replace(birds, "Birds", std::string("Bi\0rds", 6)), 1, "NUL"},
        {Replace(birds, "fan", "f\x1B[1m"), 12, "control"},
    };
    for (const Example& example : examples) {
        PuzzleTextError error;
        EXPECT_FALSE(CompilePuzzle(example.text, error)) << example.text;
        EXPECT_EQ(error.line, example.line) << error.reason;
        EXPECT_NE(error.reason.find(example.reason), std::string::npos) << error.reason;
    }
}

// Mostly for the sanitizers: bytes taken out, put in and changed anywhere.
TEST(WrongText, NeverCrashesTheCompiler) {
    for (unsigned seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        std::string text = birds;
        for (unsigned change = 1 + random() % 4; change > 0; --change) {
            text.erase(random() % text.size(), random() % 3 == 0 ? random() % 30 : 0);
            text.insert(random() % text.size(), 1, static_cast<char>(random()));
        }
        PuzzleTextError error;
        EXPECT_TRUE(CompilePuzzle(text, error) || (error.line >= 1 && !error.reason.empty()));
    }
}

// Faults: half a puzzle that a build calls up to date, a puzzle written over its own text.
TEST(CompileProgram, WritesWholePuzzlesOrNothing) {
    const TemporaryHome home;
    const auto run = [&home](const std::string& input, const std::string& output) {
        const std::string command = "cd '" + home.documents().string() + "' && '" +
                                    COMPILE_PUZZLE_PATH + "' " + input + " " + output + " 2>said";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    const auto read = [&home](const char* name) { return ReadBytes(home.documents() / name); };
    WriteBytes(home.documents() / "good.txt", birds);
    WriteBytes(home.documents() / "bad.txt", Replace(birds, "RAT", "R T"));
    WriteBytes(home.documents() / "birds.puz", std::string(9999, '!'));
    EXPECT_EQ(run("good.txt", "birds.puz"), 0);
    EXPECT_EQ(read("birds.puz"), Compile(birds));
    EXPECT_EQ(run("bad.txt", "birds.puz"), 1);
    EXPECT_EQ(read("birds.puz"), Compile(birds));
    EXPECT_EQ(read("said").find("bad.txt:8: \" \" in the grid"), 0U) << read("said");
    EXPECT_EQ(run("none.txt", "birds.puz"), 1);
    EXPECT_EQ(run("good.txt", "none/birds.puz"), 1);
    EXPECT_EQ(run("good.txt", "good.txt"), 1);
    EXPECT_EQ(read("good.txt"), birds);
    EXPECT_EQ(home.Files().size(), 4U) << "a temporary file was left";
}

}  // namespace
