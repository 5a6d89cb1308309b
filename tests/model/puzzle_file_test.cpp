#include "model/puzzle_file.h"

#include <cstring>

#include "model/puzzle_parser.h"
#include "support/boards.h"
#include "support/message_boxes.h"
#include "support/temporary_home.h"

namespace {

RawPuzzle Ring() {
    return PuzzleOfBoard({"ABC", "D.E", "FGH"},
                         {"T", "A", "C", "one across", "one down", "two down", "three across", ""});
}

// 13 across words a row, 27 down words in all.
BoardRows ManyAcrossWords(std::size_t count) {
    BoardRows rows(40, std::string(40, '.'));
    std::fill_n(rows.begin(), count, QByteArray("AA.").repeated(13).toStdString() + "A");
    return rows;
}

// A hundred blocks of two by two, of four words each; then the last row begins as given.
BoardRows FourHundredWords(const std::string& lastRow) {
    BoardRows rows(40, std::string(40, '.'));
    for (std::size_t row = 0; row < 200; ++row) {
        rows[row / 26 * 3 + row % 2].replace(row / 2 % 13 * 3, 2, "AA");
    }
    rows[39].replace(0, lastRow.size(), lastRow);
    return rows;
}

class PuzzleFile : public testing::Test {
protected:
    bool Read(const std::string& bytes) {
        WriteBytes(home.documents() / "p.puz", bytes);
        WCHAR path[MAX_PATH] = u"\\My Documents\\p.puz";
        const bool read = ReadPuzzleFile(path);
        EXPECT_EQ(std::u16string(path) == u"Could not open the file", !read);
        return read;
    }
    void Open(const std::string& bytes) {
        ASSERT_TRUE(Read(bytes));
        ResetPlayerGrid = 1;
        ParsePuzzle();
        ASSERT_TRUE(TakeShownMessages().empty());
    }
    void ExpectRefused(const std::string& bytes) {
        const std::string before(PuzzleImage, sizeof PuzzleImage);
        EXPECT_FALSE(Read(bytes));
        EXPECT_EQ(TakeShownMessages().size(), 1u);
        EXPECT_TRUE(std::string(PuzzleImage, sizeof PuzzleImage) == before);
        int size = 0;
        EXPECT_FALSE(PeekPuzzleSize(u"\\My Documents\\p.puz", &size, &size));
    }

    TemporaryHome home;
};

// The texts of the file before must not show through where a file has none.
TEST_F(PuzzleFile, CutAtEveryByte) {
    RawPuzzle older = Ring();
    older.texts = std::vector<std::string>(50, std::string(90, 'o'));
    const std::string whole = Ring().Bytes();
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        Open(older.Bytes());
        const std::string cut = whole.substr(0, length);
        if (length < gridOffset + 18) {
            ExpectRefused(cut);
            continue;
        }
        Open(cut);
        EXPECT_EQ(std::strchr(TitleText, 'o'), nullptr);
        for (std::size_t clue = 0; clue < maxClues; ++clue) {
            const std::string expected = clue < 4 ? Ring().texts[3 + clue] : "";
            EXPECT_EQ(expected.rfind(ClueTable[clue], 0), 0U) << length << ", clue " << clue;
        }
    }
    EXPECT_STREQ(TitleText, "T\nA\nC");
    EXPECT_STREQ(ClueTable[3], "three across");
}

TEST_F(PuzzleFile, TextsWithoutEndAndForeignSectionsStayHarmless) {
    RawPuzzle puzzle = Ring();
    Open(puzzle.Bytes().substr(0, gridOffset + 18) + std::string(40000, 'x'));
    EXPECT_EQ(std::strlen(TitleText), titleTextSize - 1U);
    EXPECT_STREQ(ClueTable[0], "");
    puzzle.texts.back() = "some notes";
    Open(puzzle.Bytes() + QByteArray("x\0", 2).repeated(7000).toStdString());
    EXPECT_STREQ(ClueTable[maxClues - 1], "x");
    // A character that does not fit whole is left out whole.
    puzzle.texts[0] = QByteArray("\xC3\xA9").repeated(200);
    Open(puzzle.Bytes());
    EXPECT_EQ(TitleText, QByteArray("\xC3\xA9").repeated(131));
}

TEST_F(PuzzleFile, TakesTheLargestBoardsAndRefusesWhatTheModelCannotHold) {
    BoardRows threeHundred = ManyAcrossWords(23);
    threeHundred[39].replace(0, 2, "AA");
    Open(PuzzleOfBoard(threeHundred, {}).Bytes());
    EXPECT_EQ(AcrossList[299].length, 2);
    Open(PuzzleOfBoard(FourHundredWords("A"), {}).Bytes());
    EXPECT_EQ(AcrossList[199].clueIndex, 399);
    Open(PuzzleOfBoard(BoardRows(40, std::string(40, 'Q')), {"T", "A", "C"}).Bytes());
    EXPECT_EQ(std::pair(AcrossList[39].length, SolutionGrid[maxCells - 1]), std::pair(40, 'Q'));
    for (int side : {41, 127, 128, 255}) {
        ExpectRefused(RawPuzzle{side, side, std::string(9000, 'A'), {"T", "A", "C"}}.Bytes());
    }
    ExpectRefused(RawPuzzle{67, 24, std::string(9000, 'A'), {"T", "A", "C"}}.Bytes());
    ExpectRefused(PuzzleOfBoard(ManyAcrossWords(24), {}).Bytes());
    ExpectRefused(PuzzleOfBoard(FourHundredWords("AA"), {}).Bytes());
}

// The bare board of a start without a puzzle takes the place of one of size 0.
TEST_F(PuzzleFile, NotSquareStopsAfterTheSizes) {
    Open(Ring().Bytes());
    Open(RawPuzzle{15, 21, std::string(630, 'A'), {"other"}}.Bytes());
    EXPECT_EQ(PuzzleHeight, 21);
    Open(RawPuzzle{}.Bytes());
    EXPECT_EQ(std::pair(PuzzleWidth, PuzzleHeight), std::pair(15, 15));
    EXPECT_EQ(Cells[0].clueNumber + AcrossList[0].clueNumber, -2);
    EXPECT_STREQ(TitleText, "T\nA\nC");
}

}  // namespace
