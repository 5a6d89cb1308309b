#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <random>

#include "board/board_picture.h"
#include "platform/dialogs.h"
#include "storage/paths.h"
#include "support/menus.h"

namespace {

constexpr const char* mainMenu = "Main Menu";
constexpr const char* hintMenu = "Display a hint";
constexpr const char* sizeMenu = "Puzzle magnification";

class Commands : public PlayedBoard {
protected:
    // Right, wrong and empty cells; nothing on the screen is what a repaint would leave.
    void PlaySpoilt(MagnificationFlags size) {
        Play(lopsidedBoard, size);
        std::mt19937 random(23);
        for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
            if (SolutionGrid[cell] != '.' && random() % 2 == 0) {
                PlayerGrid[cell] = random() % 2 == 0 ? SolutionGrid[cell] : 'W';
            }
        }
        SelectCell(3, 5, 1);
        Spoil();
    }
    void Spoil() {
        EXPECT_TRUE(ChooseFromBar(*handheld, hintMenu, {"Entire Puzzle"}));
        spoilt = handheld->Client();
    }
    void Choose(const ItemPath& path) {
        EXPECT_TRUE(ChooseFromBar(*handheld, mainMenu, path)) << path.join("/").toStdString();
    }
    // In the cell that the held menu acts on.
    static POINT HeldPoint() {
        return {BoardLeft + 5 * CellSize + 6, 3 * CellSize + 6};
    }

    QImage spoilt;
};

struct Change {
    ItemPath path;
    int direction;
    std::vector<int> cells;
    bool fills;
};

// The X of STUVWXY, and of EKRX down.
const std::vector<int> selectedCell = {3 * 7 + 5};
const std::vector<int> selectedDownWord = {5, 12, 19, 26};
const std::vector<int> selectedAcrossWord = {21, 22, 23, 24, 25, 26, 27};

std::vector<int> EveryCell() {
    std::vector<int> cells;
    for (int cell = 0; cell < 5 * 7; ++cell) {
        cells.push_back(cell);
    }
    return cells;
}

const Change changes[] = {
    {{"Fill", "Letter"}, 0, selectedCell, true},
    {{"Fill", "Word"}, 0, selectedAcrossWord, true},
    {{"Fill", "Word"}, 1, selectedDownWord, true},
    {{"Fill", "Puzzle"}, 1, EveryCell(), true},
    {{"Clear", "Letter"}, 1, selectedCell, false},
    {{"Clear", "Word"}, 0, selectedAcrossWord, false},
    {{"Clear", "Word"}, 1, selectedDownWord, false},
    {{"Clear", "Puzzle"}, 0, EveryCell(), false},
};

std::string LettersAfter(const Change& change) {
    std::string letters = PlayerLetters();
    for (int cell : change.cells) {
        char& letter = letters[static_cast<std::size_t>(cell)];
        letter = change.fills || letter == '.' ? SolutionGrid[cell] : '-';
    }
    return letters;
}

// Faults: a wrong scope, the direction is turned, something is not painted anew, the menu of a held
// cell acts on the cell selected before.
TEST_F(Commands, FillAndClearChangeTheirScopeAndRepaintEverything) {
    const ShownMessage question{u"Do you want to clear the puzzle ? This cannot be undone.",
                                u"Are You Sure?"};
    for (MagnificationFlags size : sizes) {
        for (bool held : {false, true}) {
            for (const Change& change : changes) {
                SCOPED_TRACE(change.path.join("/").toStdString());
                PlaySpoilt(size);
                SelectCell(held ? 0 : 3, held ? 0 : 5, change.direction);
                const std::string expected = LettersAfter(change);
                const bool asks = change.path == ItemPath{"Clear", "Puzzle"};
                if (asks) {
                    AnswerNextMessageBox(IDYES);
                }
                if (held) {
                    EXPECT_TRUE(ChooseFromContext(*handheld, HeldPoint(), change.path));
                } else {
                    Choose(change.path);
                }
                EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>(asks ? 1 : 0, question));
                EXPECT_EQ(PlayerLetters(), expected);
                EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction),
                          std::tuple(3, 5, change.direction));
                ExpectFullRepaint();
            }
        }
    }
}

TEST_F(Commands, TheUnsureClearNothing) {
    PlaySpoilt(mediumSize);
    const std::string letters = PlayerLetters();
    for (int answer : {IDNO, 0}) {
        AnswerNextMessageBox(answer);
        Choose({"Clear", "Puzzle"});
        EXPECT_EQ(PlayerLetters(), letters);
        EXPECT_EQ(handheld->Client(), spoilt) << "No repaints nothing";
    }
    TakeShownMessages();
}

TEST_F(Commands, AStrayEnterClearsNoPuzzle) {
    PlaySpoilt(mediumSize);
    const std::string letters = PlayerLetters();
    DoDuringNextMessageBox([] {
        const QPointer<QWidget> box = QApplication::activeModalWidget();
        SendKey(box->focusWidget(), Qt::Key_Return);
        while (box != nullptr && box->isVisible()) {
            QCoreApplication::processEvents();
        }
    });
    Choose({"Clear", "Puzzle"});
    EXPECT_EQ(TakeShownMessages().size(), 1u);
    EXPECT_EQ(PlayerLetters(), letters);
}

// Faults: a size that is already chosen does nothing, the selection or the scroll stays, a
// highlight is painted, the buffer keeps its old size.
TEST_F(Commands, SizesStartAtTheTopLeftCornerWithoutAHighlight) {
    std::mt19937 random(3);
    BoardRows rows = RandomBoard(random, 19, 19);
    const std::pair<const char*, int> cells[] = {{"Small", 12}, {"Medium", 20}, {"Large", 24}};
    for (MagnificationFlags before : sizes) {
        for (const auto& [text, cellSize] : cells) {
            Play(rows, before);
            SelectCell(17, 16, 1);
            ScrollX = ScrollY = before.Small == 1 ? 0 : 100;
            EXPECT_TRUE(ChooseFromBar(*handheld, sizeMenu, {text}));
            EXPECT_EQ(CellSize, cellSize);
            EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(0, 0, 1));
            EXPECT_EQ(std::pair(ScrollX, ScrollY), std::pair(0, 0));
            ExpectPicture(rows, false);
            EXPECT_EQ(handheld->Client().copy(0, 0, 240, 248), BufferImage().copy(0, 0, 240, 248));
        }
    }
}

TEST_F(Commands, AutoSkipTogglesWithoutARepaintAndNumbersRepaintEverything) {
    PlaySpoilt(largeSize);
    for (int expected : {1, 0}) {
        Choose({"Toggle", "Auto Skip"});
        EXPECT_EQ(AutoSkip, expected);
        EXPECT_EQ(handheld->Client(), spoilt);
    }
    PlayerGrid[21] = '-';
    for (int expected : {1, 0}) {
        Spoil();
        Choose({"Toggle", "Numbers"});
        EXPECT_EQ(ShowNumbers, expected);
        EXPECT_EQ(InkOfCell(lopsidedBoard, 3, 0, false).empty(), expected == 0);
        ExpectFullRepaint();
    }
}

// The directions of the board, the highlight and the clue bar turn together.
TEST_F(Commands, DirectionButtonTurnsAndRepaints) {
    PlaySpoilt(smallSize);
    for (int expected : {0, 1}) {
        Spoil();
        EXPECT_TRUE(handheld->PressButton("Toggle clues across / down"));
        EXPECT_EQ(Direction, expected);
        ExpectFullRepaint();
    }
}

TEST_F(Commands, PuzzleInfoShowsTheTextsOfTheFile) {
    Choose({"Puzzle Info"});
    const auto messages = TakeShownMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].title, u"Puzzle Information");
    QStringList lines = QString::fromStdU16String(messages[0].text).split('\n');
    for (QString& line : lines) {
        line = line.trimmed();
    }
    lines.removeAll("");
    EXPECT_EQ(lines, (QStringList{"Title", "Author", "Copyright"}));
}

// Settings that came with the file of a puzzle must show in the menus.
TEST_F(Commands, CheckMarksFollowTheSettingsOfAnOpenedPuzzle) {
    const auto open = [this](const char* name) {
        ChooseNextFile(home.documents() / name);
        AnswerNextMessageBox(IDYES);
        Choose({"Puzzles", "Available"});
        TakeShownMessages();
    };
    const auto expectMarks = [this] {
        const auto main = LookAtMenu(*handheld, mainMenu).items;
        EXPECT_EQ(main.at("Toggle/Auto Skip").checked, AutoSkip == 1);
        EXPECT_EQ(main.at("Toggle/Numbers").checked, ShowNumbers == 1);
        const auto size = LookAtMenu(*handheld, sizeMenu).items;
        EXPECT_EQ(size.at("Small").checked, Magnification.Small == 1);
        EXPECT_EQ(size.at("Medium").checked, Magnification.Medium == 1);
        EXPECT_EQ(size.at("Large").checked, Magnification.Large == 1);
    };
    WriteBytes(home.documents() / "other.puz", PuzzleBytes(squareBoard));
    Choose({"Toggle", "Numbers"});
    EXPECT_TRUE(ChooseFromBar(*handheld, sizeMenu, {"Large"}));
    open("other.puz");
    Choose({"Toggle", "Auto Skip"});
    Choose({"Toggle", "Numbers"});
    EXPECT_TRUE(ChooseFromBar(*handheld, sizeMenu, {"Medium"}));
    open("start.puz");
    EXPECT_EQ(std::tuple(AutoSkip, ShowNumbers, Magnification.Large), std::tuple(0, 1, 1));
    expectMarks();
    open("other.puz");
    EXPECT_EQ(std::tuple(AutoSkip, ShowNumbers, Magnification.Medium), std::tuple(1, 0, 1));
    expectMarks();
    Restart();
    EXPECT_EQ(std::tuple(AutoSkip, ShowNumbers, Magnification.Medium), std::tuple(1, 0, 1));
    expectMarks();
}

}  // namespace
