#include "model/puzzle_file.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "model/puzzle_parser.h"
#include "platform/types.h"
#include "support/boards.h"
#include "support/message_boxes.h"
#include "support/temporary_home.h"

namespace {

const ShownMessage refusal{u"This file is not a puzzle that Quadrel can open.", u"Open File"};

const BoardRows ringRows = {"ABC", "D.E", "FGH"};

RawPuzzle Ring() {
    return PuzzleOfBoard(ringRows,
                         {"T", "A", "C", "one across", "one down", "two down", "three across", ""});
}

std::string Repeat(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

// 13 across words a row, 27 down words in all.
BoardRows ManyAcrossWords(std::size_t count) {
    BoardRows rows(40, std::string(40, '.'));
    std::fill_n(rows.begin(), count, Repeat("AA.", 13) + "A");
    return rows;
}

// A hundred blocks of two by two, of four words each; then the last row begins as given.
BoardRows FourHundredWords(const std::string& lastRow) {
    BoardRows rows(40, std::string(40, '.'));
    for (std::size_t block = 0; block < 100; ++block) {
        rows[block / 13 * 3].replace(block % 13 * 3, 2, "AA");
        rows[block / 13 * 3 + 1].replace(block % 13 * 3, 2, "AA");
    }
    rows[39].replace(0, lastRow.size(), lastRow);
    return rows;
}

// Everything that a refused file must leave alone, as bytes.
std::string ModelBytes() {
    std::string bytes(PuzzleImage, sizeof PuzzleImage);
    bytes.append(SolutionGrid, sizeof SolutionGrid).append(PlayerGrid, sizeof PlayerGrid);
    bytes.append(TitleText, sizeof TitleText);
    bytes.append(reinterpret_cast<const char*>(Cells), sizeof Cells);
    bytes.append(reinterpret_cast<const char*>(ClueTable.data()), sizeof ClueTable);
    return bytes + std::to_string(PuzzleWidth) + "x" + std::to_string(PuzzleHeight);
}

class PuzzleFile : public testing::Test {
protected:
    PuzzleFile() {
        TakeShownMessages();
        ResetPlayerGrid = 1;
    }
    // What ReadPuzzleFile leaves in the path buffer is in `path`.
    bool Read(const std::string& bytes) {
        WriteBytes(home.documents() / "p.puz", bytes);
        std::u16string(u"\\My Documents\\p.puz").append(1, u'\0').copy(path, MAX_PATH);
        return ReadPuzzleFile(path);
    }
    void Open(const std::string& bytes) {
        ASSERT_TRUE(Read(bytes));
        ParsePuzzle();
        ASSERT_TRUE(TakeShownMessages().empty());
    }
    // 0 by 0 where there is no puzzle.
    std::pair<int, int> PeekedSize() const {
        std::pair<int, int> size;
        const bool known = PeekPuzzleSize(u"\\My Documents\\p.puz", &size.first, &size.second);
        return known ? size : std::pair(0, 0);
    }
    void ExpectRefused(const std::string& bytes) {
        const std::string before = ModelBytes();
        EXPECT_FALSE(Read(bytes));
        EXPECT_EQ(path, std::u16string(u"Could not open the file"));
        EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>{refusal});
        EXPECT_TRUE(ModelBytes() == before);
        EXPECT_EQ(PeekedSize(), std::pair(0, 0));
    }

    TemporaryHome home;
    WCHAR path[MAX_PATH] = {};
};

}  // namespace

TEST_F(PuzzleFile, ReadsTextsAndDropsLettersOfThePlayer) {
    RawPuzzle puzzle = Ring();
    puzzle.grids.replace(9, 9, "AxC-.-Zq.");
    CursorRow = CursorCol = 2;
    Open(puzzle.Bytes());
    EXPECT_STREQ(TitleText, "T\nA\nC");
    EXPECT_STREQ(ClueTable[0], "one across");
    EXPECT_STREQ(ClueTable[3], "three across");
    EXPECT_STREQ(ClueTable[4], "");
    EXPECT_EQ(std::string(SolutionGrid, 9), "ABCD.EFGH");
    // Its own black squares, even where the solution has a letter.
    EXPECT_EQ(std::string(PlayerGrid, 9), "----.---.");
    EXPECT_EQ(CursorRow + CursorCol, 0);

    std::memcpy(PlayerGrid, "XYZ-.-XYZ", 9);
    ResetPlayerGrid = 0;
    Open(puzzle.Bytes());
    EXPECT_EQ(std::string(PlayerGrid, 9), "XYZ-.-XYZ");
}

TEST_F(PuzzleFile, NotesAreOneEntryMoreAndForeignSectionsStayHarmless) {
    RawPuzzle puzzle = Ring();
    puzzle.texts.back() = "some notes";
    std::mt19937 random(7);
    std::string tail = "GEXT\x09";
    for (int i = 0; i < 20000; ++i) {
        tail += random() % 3 == 0 ? '\0' : static_cast<char>(random());
    }
    Open(puzzle.Bytes() + tail);
    EXPECT_STREQ(ClueTable[3], "three across");
    EXPECT_STREQ(ClueTable[4], "some notes");
    EXPECT_EQ(AcrossList[1].clueIndex, 3);
    Open(puzzle.Bytes() + Repeat(std::string_view("x\0", 2), 7000));
    EXPECT_STREQ(ClueTable[maxClues - 1], "x");
}

// The texts of the file before must not show through where a file has none.
TEST_F(PuzzleFile, CutAtEveryByte) {
    RawPuzzle older = Ring();
    older.texts = std::vector<std::string>(50, std::string(90, 'o'));
    const std::string whole = Ring().Bytes();
    const std::vector<std::string> texts = Ring().texts;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        Open(older.Bytes());
        const std::string cut = whole.substr(0, length);
        if (length < gridOffset + 18) {
            ExpectRefused(cut);
            continue;
        }
        Open(cut);
        EXPECT_EQ(std::strchr(TitleText, 'o'), nullptr);
        for (std::size_t clue = 0; clue < maxClues; ++clue) {
            const std::string expected = clue < 4 ? texts[3 + clue] : "";
            EXPECT_EQ(expected.rfind(ClueTable[clue], 0), 0U) << clue << ": " << ClueTable[clue];
        }
    }
}

TEST_F(PuzzleFile, TextsWithoutEndStayInside) {
    RawPuzzle puzzle = Ring();
    Open(puzzle.Bytes().substr(0, gridOffset + 18) + std::string(40000, 'x'));
    EXPECT_EQ(std::strlen(TitleText), titleTextSize - 1U);
    EXPECT_STREQ(ClueTable[0], "");

    // A character that does not fit whole is left out whole.
    puzzle.texts[0] = Repeat("\xC3\xA9", 200);
    Open(puzzle.Bytes());
    EXPECT_EQ(TitleText, Repeat("\xC3\xA9", 131));

    puzzle.texts[0] = "T";
    puzzle.texts[5] = std::string(16000, 'c');
    Open(puzzle.Bytes());
    EXPECT_LT(std::strlen(ClueTable[2]), 16000U);
    EXPECT_STREQ(ClueTable[3], "");
}

TEST_F(PuzzleFile, RefusesWhatTheModelCannotHold) {
    Open(Ring().Bytes());
    for (const auto& [width, height] :
         {std::pair(41, 41), {127, 127}, {128, 128}, {255, 255}, {200, 15}, {67, 24}}) {
        SCOPED_TRACE(width);
        ExpectRefused(RawPuzzle{width, height, std::string(9000, 'A'), {"T", "A", "C"}}.Bytes());
    }
    ExpectRefused(PuzzleOfBoard(ManyAcrossWords(24), {}).Bytes());
    ExpectRefused(PuzzleOfBoard(FourHundredWords("AA"), {}).Bytes());
    ExpectRefused(Repeat("No puzzle at all, just words and more words. ", 100));
}

TEST_F(PuzzleFile, TakesTheLargestBoards) {
    Open(PuzzleOfBoard(ManyAcrossWords(23), {}).Bytes());
    EXPECT_EQ(AcrossList[298].length, 2);
    Open(PuzzleOfBoard(FourHundredWords("A"), {}).Bytes());
    EXPECT_EQ(AcrossList[199].clueIndex, 399);
    Open(PuzzleOfBoard(BoardRows(40, std::string(40, 'Q')), {"T", "A", "C"}).Bytes());
    EXPECT_EQ(AcrossList[39].length, 40);
    EXPECT_EQ(SolutionGrid[maxCells - 1], 'Q');
}

TEST_F(PuzzleFile, NotSquareStopsAfterTheSizes) {
    Open(Ring().Bytes());
    Open(RawPuzzle{15, 21, std::string(630, 'A'), {"other"}}.Bytes());
    EXPECT_EQ(std::pair(PuzzleWidth, PuzzleHeight), std::pair(15, 21));
    EXPECT_EQ(Cells[0].clueNumber, -1);
    EXPECT_EQ(AcrossList[0].clueNumber, -1);
    EXPECT_EQ(std::string(SolutionGrid, 9), "ABCD.EFGH");
    EXPECT_STREQ(TitleText, "T\nA\nC");
    EXPECT_EQ(PeekedSize(), std::pair(15, 21));

    Open(RawPuzzle{}.Bytes());
    EXPECT_EQ(std::pair(PuzzleWidth, PuzzleHeight), std::pair(15, 15));
    EXPECT_EQ(Cells[0].clueNumber, -1);
}
