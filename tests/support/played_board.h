// A running program with a board of the test's choice in play.
#pragma once

#include "app/layout.h"
#include "app/repaint.h"
#include "model/puzzle_parser.h"
#include "play/settings.h"
#include "support/boards.h"
#include "support/handheld.h"
#include "support/message_boxes.h"

// No puzzle that can be opened: it is not square.
inline const BoardRows lopsidedBoard = {"ABC", "DEF"};

// Not symmetric, with words that end at the right and at the bottom edge.
inline const BoardRows squareBoard = {
    "ABC.DE",  //
    "FGHIJK",  //
    "LM.NOP",  //
    "QRSTUV",  //
    ".WXYZA",  //
    "BC.DEF",
};

inline constexpr MagnificationFlags smallSize{1, 0, 0};
inline constexpr MagnificationFlags mediumSize{0, 1, 0};
inline constexpr MagnificationFlags largeSize{0, 0, 1};

// Every word has its ClueOf; files of boards with other sides are made too.
inline std::string PuzzleBytes(const BoardRows& rows, const std::string& title = "Title") {
    std::vector<std::string> texts = {title, "Author", "Copyright"};
    for (std::size_t i = 0; i < WordsOf(rows).size(); ++i) {
        texts.push_back(ClueOf(i));
    }
    texts.push_back("");
    return PuzzleOfBoard(rows, texts).Bytes();
}

// The grids as a new process has them: every test of this one leaves its puzzle behind.
inline void ForgetPuzzle() {
    std::fill(std::begin(SolutionGrid), std::end(SolutionGrid), '\0');
    std::fill(std::begin(PlayerGrid), std::end(PlayerGrid), '\0');
    ViewWidth = ViewHeight = BufferWidth = BufferHeight = 0;
}

// The letters that the player has entered, row by row.
inline std::string PlayerLetters() {
    return std::string(PlayerGrid, static_cast<std::size_t>(PuzzleWidth * PuzzleHeight));
}

inline void SelectCell(int row, int col, int direction) {
    CursorRow = row;
    CursorCol = col;
    Direction = direction;
}

class PlayedBoard : public testing::Test {
protected:
    explicit PlayedBoard(const BoardRows& puzzle = {"ABC", "D.E", "FGH"}) {
        WriteBytes(home.documents() / "start.puz", PuzzleBytes(puzzle));
        handheld = std::make_unique<Handheld>(home);
    }
    ~PlayedBoard() override {
        handheld.reset();
        ForgetPlans();
        TakeShownChoosers();
        EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>());
    }

    void Play(const BoardRows& rows, MagnificationFlags size) {
        std::fill(PuzzleBytes(rows).copy(PuzzleImage, puzzleImageSize) + PuzzleImage,
                  std::end(PuzzleImage), '\0');
        ResetPlayerGrid = 1;
        ParsePuzzle();
        Magnification = size;
        ComputeLayout(MainWindow);
        RepaintFully(MainWindow);
    }

    void OpenPuzzle(const std::filesystem::path& file) {
        ChooseNextFile(file);
        AnswerNextMessageBox(IDYES);
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
        TakeShownMessages();
    }
    void Restart() {
        handheld.reset();
        ForgetPuzzle();
        handheld = std::make_unique<Handheld>(home);
    }

    // Whatever is on the screen is what painting everything anew leaves there.
    void ExpectFullRepaint() {
        const QImage shown = handheld->Client();
        RepaintFully(MainWindow);
        EXPECT_EQ(handheld->Client(), shown);
    }

    TemporaryHome home;
    std::unique_ptr<Handheld> handheld;
};
