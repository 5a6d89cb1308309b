#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "board/board_picture.h"
#include "platform/dialogs.h"
#include "platform/qt/host/host_window.h"
#include "storage/paths.h"

namespace {

const BoardRows otherBoard = {
    "ABCD",  //
    "EF.G",  //
    "HIJK",  //
    "LMNO",
};

class Opening : public testing::Test {
protected:
    Opening() {
        ForgetPuzzle();
        PutFile("first.puz", Begun(PuzzleBytes(squareBoard, "First"), 6));
        PutFile("second.puz", Begun(PuzzleBytes(otherBoard, "Second"), 4));
        handheld.emplace(home);
    }
    ~Opening() override {
        handheld.reset();
        EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>());
    }

    // With a first letter that somebody has entered: a puzzle starts empty all the same.
    static std::string Begun(std::string bytes, std::size_t side) {
        constexpr std::size_t solution = 52;
        bytes[solution + side * side] = 'Q';
        return bytes;
    }
    void PutFile(const std::string& name, const std::string& bytes) {
        WriteBytes(home.documents() / name, bytes);
    }
    void Choose(const std::string& name, int answer = IDYES) {
        ChooseNextFile(home.documents() / name);
        AnswerNextMessageBox(answer);
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
    }
    static ShownMessage Question(const std::u16string& name) {
        return {u"Do you want to load the puzzle " + name + u" ?", u"Confirm"};
    }
    void Open(const std::string& name) {
        Choose(name);
        EXPECT_EQ(TakeShownMessages(),
                  (std::vector<ShownMessage>{Question(std::u16string(name.begin(), name.end()))}));
    }
    static std::u16string Path() {
        return CurrentPuzzlePath;
    }
    // Everything that a player would miss.
    struct Play {
        std::u16string path;
        std::string letters;
        std::string solution;
        std::string title;
        std::string clue;
        bool operator==(const Play&) const = default;
    };
    static Play Present() {
        return {Path(), PlayerLetters(),
                std::string(SolutionGrid, static_cast<std::size_t>(PuzzleWidth * PuzzleHeight)),
                TitleText, ClueTable[1]};
    }

    TemporaryHome home;
    std::optional<Handheld> handheld;
};

TEST_F(Opening, AnotherPuzzleAndTheFirstAgainKeepsEveryLetter) {
    EXPECT_EQ(PlayerLetters().find_first_not_of("-."), std::string::npos);
    handheld->Type("XYZ");
    handheld->TapCell(4, 3);
    handheld->Type("Q");
    const std::string firstLetters = PlayerLetters();
    Open("second.puz");
    EXPECT_EQ(Path(), u"\\My Documents\\second.puz");
    EXPECT_EQ(PlayerLetters(), "------.---------");
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 0));
    ExpectPicture(otherBoard, true);
    handheld->Type("MN");
    const std::string secondLetters = PlayerLetters();
    EXPECT_EQ(secondLetters.substr(0, 4), "MN--");

    Open("first.puz");
    EXPECT_EQ(PlayerLetters(), firstLetters);
    EXPECT_STREQ(ClueTable[0], "Clue 0");
    Open("second.puz");
    EXPECT_EQ(PlayerLetters(), secondLetters);
}

TEST_F(Opening, ANewPuzzleOfTheSameShapeStartsEmpty) {
    handheld->Type("XYZ");
    PutFile("twin.puz", PuzzleBytes(squareBoard, "Twin"));
    Open("twin.puz");
    EXPECT_EQ(PlayerLetters().find_first_not_of("-."), std::string::npos);
}

TEST_F(Opening, CancelAndNoChangeAndWriteNothing) {
    handheld->Type("XYZ");
    const Play before = Present();
    const auto files = home.Files();
    ChooseNextFile({});
    EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
    EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>());
    Choose("second.puz", IDNO);
    Choose("second.puz", 0);
    EXPECT_EQ(TakeShownMessages(),
              (std::vector<ShownMessage>{Question(u"second.puz"), Question(u"second.puz")}));
    EXPECT_EQ(Present(), before);
    EXPECT_EQ(CursorCol, 2);
    EXPECT_TRUE(home.Files() == files);
}

// Faults: the puzzle in play is lost to a file that is none, or its letters are.
TEST_F(Opening, FilesThatCannotBePlayedLeaveThePuzzleInPlay) {
    const std::string good = PuzzleBytes(otherBoard);
    std::string tooLarge = good;
    tooLarge[44] = tooLarge[45] = 41;
    const std::u16string noPuzzle = u"This file is not a puzzle that Quadrel can open.";
    const std::u16string notSquare = u"Quadrel plays square puzzles only. This one is ";
    const std::pair<std::string, std::u16string> files[] = {
        {"<html><body>The page you asked for is not here, sorry.</body></html>", noPuzzle},
        {"", noPuzzle},
        {tooLarge, noPuzzle},
        {good.substr(0, 52 + 31), noPuzzle},
        {PuzzleBytes(BoardRows(21, std::string(15, 'A'))), notSquare + u"15 by 21."},
        {PuzzleBytes(lopsidedBoard), notSquare + u"7 by 5."}};
    handheld->Type("XYZ");
    const Play before = Present();
    for (const auto& [bytes, reason] : files) {
        PutFile("broken.puz", bytes);
        const auto filesBefore = home.Files();
        Choose("broken.puz");
        EXPECT_EQ(TakeShownMessages(),
                  (std::vector<ShownMessage>{Question(u"broken.puz"), {reason, u"Open File"}}))
            << bytes.size() << " bytes";
        EXPECT_EQ(Present(), before) << bytes.size() << " bytes";
        EXPECT_EQ(handheld->Pixel(BoardLeft + 3 * CellSize + 9, 9), RGB(0, 0, 0));
        EXPECT_TRUE(reason == noPuzzle || home.Files() == filesBefore);
    }
    handheld->Press('V');
    EXPECT_EQ(PlayerLetters()[static_cast<std::size_t>(CursorRow * 6)], 'V');
}

// Between the choice and the answer another program may take the file away.
TEST_F(Opening, AFileThatIsGoneLeavesThePuzzleInPlayAndItsProgressSaved) {
    handheld->Type("XYZ");
    const Play before = Present();
    DoDuringNextMessageBox([this] { std::filesystem::remove(home.documents() / "second.puz"); });
    Open("second.puz");
    EXPECT_EQ(Present(), before);
    EXPECT_TRUE(std::filesystem::exists(home.documents() / "first.dat"));
    Open("first.puz");
    EXPECT_EQ(Present(), before);
}

TEST_F(Opening, ProgressOfAnotherPuzzleUnderTheSameNameIsDropped) {
    Open("second.puz");
    handheld->Type("MNOP");
    Open("first.puz");
    BoardRows moved = otherBoard;
    std::swap(moved[1][2], moved[2][1]);
    for (const BoardRows& rows : {moved, squareBoard}) {
        PutFile("second.puz", PuzzleBytes(rows));
        Open("second.puz");
        EXPECT_EQ(PlayerLetters().find_first_not_of("-."), std::string::npos);
        for (int i = 0; i < PuzzleWidth * PuzzleHeight; ++i) {
            EXPECT_EQ(PlayerGrid[i] == '.', SolutionGrid[i] == '.') << i;
        }
        PutFile("second.puz", PuzzleBytes(otherBoard));
        Open("first.puz");
        PutFile("second.dat", ReadBytes(home.documents() / "first.dat"));
    }
}

TEST_F(Opening, FindsAPuzzleWhenTheStartFoundNone) {
    handheld.reset();
    std::filesystem::remove(home.stateFile());
    std::filesystem::rename(home.documents() / "first.puz", home.root() / "first.puz");
    std::filesystem::remove(home.documents() / "second.puz");
    ForgetPuzzle();
    handheld.emplace(home);
    ASSERT_EQ(TakeShownMessages().size(), 1u);
    Choose("../first.puz");
    EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{Question(u"first.puz")}));
    EXPECT_EQ(PlayerLetters().size(), 36u);
    handheld->Type("XYZ");
    const std::string letters = PlayerLetters();
    handheld.reset();
    handheld.emplace(home);
    EXPECT_EQ(PlayerLetters(), letters);
}

// Closing the window answers the open question with No and saves.
TEST_F(Opening, ClosingDuringTheQuestionEndsTheProgramWithItsState) {
    handheld->Type("XYZ");
    DoDuringNextMessageBox([] { Host().close(); });
    Choose("second.puz", 0);
    EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{Question(u"second.puz")}));
    EXPECT_FALSE(handheld->Running());
    EXPECT_NE(ReadBytes(home.stateFile()).find("XYZ.--"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(home.documents() / "first.dat"));
}

}  // namespace
