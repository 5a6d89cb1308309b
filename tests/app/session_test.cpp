// Sessions from start to end with what they say and the files they leave.

#include "platform/files.h"
#include "storage/paths.h"
#include "support/no_space.h"
#include "support/played_board.h"

namespace {

const BoardRows otherBoard = {"ABCD", "EF.G", "HIJK", "LMNO"};

using Messages = std::vector<ShownMessage>;

class Session : public PlayedBoard {
protected:
    Session() : PlayedBoard(squareBoard) {
        PutFile("second.puz", PuzzleBytes(otherBoard));
    }
    void PutFile(const std::string& name, const std::string& bytes) {
        WriteBytes(home.documents() / name, bytes);
    }
    void Remove(const std::string& name) {
        std::filesystem::remove(home.documents() / name);
    }
    // What is said after the question whether it shall be loaded.
    Messages Choose(const std::string& name, int answer = IDYES) {
        ChooseNextFile(home.documents() / name);
        AnswerNextMessageBox(answer);
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
        Messages said = TakeShownMessages();
        const std::u16string wide(name.begin(), name.end());
        EXPECT_EQ(said.at(0),
                  (ShownMessage{u"Do you want to load the puzzle " + wide + u" ?", u"Confirm"}));
        said.erase(said.begin());
        return said;
    }
    void Open(const std::string& name) {
        EXPECT_EQ(Choose(name), Messages());
    }
    static bool IsEmpty() {
        const std::string solution(SolutionGrid, PlayerLetters().size());
        return PlayerLetters() == EmptyBoard({solution})[0];
    }
    bool StateHolds(const std::string& letters) {
        return ReadBytes(home.stateFile()).find(letters) != std::string::npos;
    }
};

// A start may find letters of another puzzle, or another puzzle than the one that was left.
TEST_F(Session, LettersOfAnotherPuzzleAreDropped) {
    handheld->Type("XYZ");
    BoardRows moved = squareBoard;
    moved[1][2] = '.';
    PutFile("start.puz", PuzzleBytes(moved));
    Restart();
    EXPECT_TRUE(IsEmpty()) << "after a start with other black squares";
    handheld->Type("XYZ");
    handheld.reset();
    Remove("start.puz");
    Remove("second.puz");
    // Of the same squares: only that the letters belong to another file tells them apart.
    PutFile("third.puz", PuzzleBytes(moved));
    Restart();
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\third.puz");
    EXPECT_TRUE(IsEmpty()) << "of the fallback";
    PutFile("second.puz", PuzzleBytes(otherBoard));
    Open("second.puz");
    handheld->Type("XYZ");
    Open("third.puz");
    PutFile("second.puz", PuzzleBytes({"ABCD", "E.FG", "HIJK", "LMNO"}));
    Open("second.puz");
    EXPECT_TRUE(IsEmpty()) << "of an older file of the same name";
}

// A file may be none, or go while the question is open. Closing the window answers it with No and
// saves.
TEST_F(Session, WhatHappensDuringTheQuestionCostsNoLetters) {
    handheld->Type("XYZ");
    DoDuringNextMessageBox([this] { Remove("second.puz"); });
    EXPECT_EQ(Choose("second.puz"), (Messages{{u"This file could not be opened.", u"Open File"}}));
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
    PutFile("second.puz", RawPuzzle{0, 0, "", {"T", "A", "C"}}.Bytes());
    EXPECT_EQ(Choose("second.puz"),
              (Messages{{u"This file is not a puzzle that Quadrel can open.", u"Open File"}}));
    DoDuringNextMessageBox([] { Host().close(); });
    EXPECT_EQ(Choose("second.puz", 0), Messages());
    EXPECT_FALSE(handheld->Running());
    EXPECT_TRUE(StateHolds("XYZ.--"));
}

// A folder with a puzzle's name is none, nor are files that cannot be played.
TEST_F(Session, WithoutAPuzzleEverythingIsTakenCalmlyAndOneIsShownWhereverItIs) {
    handheld.reset();
    std::filesystem::remove(home.stateFile());
    Remove("second.puz");
    Remove("start.puz");
    std::filesystem::create_directory(home.documents() / "a.puz");
    PutFile("b.puz", std::string(81, '\x0F'));
    PutFile("c.puz", PuzzleBytes(lopsidedBoard));
    PutFile("d.puz", RawPuzzle{0, 0, "", {"T", "A", "C"}}.Bytes());
    Restart();
    EXPECT_EQ(TakeShownMessages(),
              (Messages{{u"Please choose a puzzle file from the Available Puzzles option.",
                         u"Choose File"}}));
    ExpectLooksAsRecorded(handheld->Screen(), "No puzzle");
    handheld->Tap(3, 3);
    for (int key : {int{'A'}, int{Qt::Key_Left}, int{Qt::Key_Right}, int{Qt::Key_Return},
                    int{Qt::Key_Backspace}}) {
        handheld->Press(key);
    }
    handheld->PressPanelButton();
    handheld->RightClick(100, 100);
    handheld->Close();
    EXPECT_EQ(ReadBytes(home.stateFile()).size(), 4096u);
    PutFile("Quadrel Puzzles/e.puz", PuzzleBytes(otherBoard));
    Restart();
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\Quadrel Puzzles\\e.puz");
    EXPECT_TRUE(IsEmpty());
}

// What is missing or locked today may be there and unlocked tomorrow.
TEST_F(Session, LettersWaitForTheirPuzzle) {
    BoardRows scrambled = squareBoard;
    for (std::string& row : scrambled) {
        std::replace_if(row.begin(), row.end(), isalpha, 'Q');
    }
    std::string locked = PuzzleBytes(scrambled);
    locked[50] = 4;
    handheld->Type("XYZ");
    for (const std::string& bytes : {locked, PuzzleBytes(squareBoard)}) {
        PutFile("start.puz", bytes);
        Restart();
        EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
    }
    handheld.reset();
    Remove("start.puz");
    Restart();
    EXPECT_EQ(PuzzleWidth, 4);
    PutFile("start.puz", locked);
    Open("start.puz");
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
}

// A folder in the place of a file cannot be replaced, whoever asks.
TEST_F(Session, LettersThatCannotBeWrittenInOnePlaceGoToTheOther) {
    const auto besideIt = home.documents() / "start.dat";
    std::filesystem::create_directory(besideIt);
    handheld->Type("XYZ");
    Open("second.puz");
    const std::size_t files = home.Files().size();
    Open("start.puz");
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
    std::filesystem::remove(besideIt);
    Open("second.puz");
    EXPECT_EQ(home.Files().size(), files + 1) << "the second place is left behind";
    Open("start.puz");
    std::filesystem::create_directory(home.stateFile());
    handheld->Type("Q");
    while (SendMessageW(MainWindow, WM_KEEPSTATE, 0, 0) != 0) {
    }
    EXPECT_NE(ReadBytes(besideIt).find("QYZ."), std::string::npos) << "in place of the state";
}

TEST_F(Session, TheStateIsKeptWhileItIsPlayedAndAFullDiskIsToldOnce) {
    const auto keep = [] { return SendMessageW(MainWindow, WM_KEEPSTATE, 0, 0); };
    handheld->Type("XYZ");
    EXPECT_EQ(keep(), 1);
    EXPECT_EQ(keep(), 0);
    EXPECT_TRUE(StateHolds("XYZ"));
    std::filesystem::remove(home.stateFile());
    EXPECT_EQ(keep(), 0);
    EXPECT_FALSE(std::filesystem::exists(home.stateFile())) << "nothing has changed";
    {
        const NoSpace full;
        handheld->Type("Q");
        for (int time = 0; time < 6; ++time) {
            keep();
        }
        EXPECT_EQ(TakeShownMessages().size(), 1u);
        AnswerNextMessageBox(IDYES);
        EXPECT_EQ(Choose("second.puz", IDNO).size(), 1u);
        EXPECT_EQ(PlayerLetters().substr(0, 4), "XYQ.");
    }
    keep();
    EXPECT_EQ(AwaitFiles(), 0u);
    EXPECT_TRUE(StateHolds("XYQ."));
}

}  // namespace
