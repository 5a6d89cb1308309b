#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <algorithm>
#include <functional>
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
    bool IsChecked(const char* button, const QString& item) {
        const ShownMenu menu = LookAtMenu(*handheld, button);
        EXPECT_EQ(menu.items.count(item), 1u);
        return menu.items.at(item).checked;
    }

    // Whatever is on the screen is what painting everything anew leaves there.
    void ExpectFullRepaint() {
        const QImage shown = handheld->Client();
        EXPECT_NE(shown, spoilt);
        RepaintFully(MainWindow);
        EXPECT_EQ(handheld->Client(), shown);
    }

    QImage spoilt;
};

std::string GridWith(const std::string& letters, const std::vector<int>& cells,
                     const std::function<char(int)>& change) {
    std::string grid = letters;
    for (int cell : cells) {
        grid[static_cast<std::size_t>(cell)] = change(cell);
    }
    return grid;
}

constexpr auto solutionOf = [](int cell) { return SolutionGrid[cell]; };
constexpr auto emptied = [](int) { return '-'; };

// The X of STUVWXY, and of EKRX down.
const std::vector<int> selectedCell = {3 * 7 + 5};
const std::vector<int> selectedDownWord = {5, 12, 19, 26};
const std::vector<int> selectedAcrossWord = {21, 22, 23, 24, 25, 26, 27};

TEST_F(Commands, FillAndClearChangeTheirScopeAndRepaintEverything) {
    for (MagnificationFlags size : sizes) {
        const auto change = [&](const ItemPath& path, int direction, const auto& cells,
                                const std::function<char(int)>& to) {
            PlaySpoilt(size);
            Direction = direction;
            const std::string expected = GridWith(PlayerLetters(), cells, to);
            Choose(path);
            EXPECT_EQ(PlayerLetters(), expected) << path.join("/").toStdString();
            EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(3, 5, direction));
            ExpectFullRepaint();
        };
        change({"Fill", "Letter"}, 0, selectedCell, solutionOf);
        change({"Fill", "Word"}, 0, selectedAcrossWord, solutionOf);
        change({"Fill", "Word"}, 1, selectedDownWord, solutionOf);
        change({"Clear", "Letter"}, 0, selectedCell, emptied);
        change({"Clear", "Word"}, 0, selectedAcrossWord, emptied);
        change({"Clear", "Word"}, 1, selectedDownWord, emptied);
        PlaySpoilt(size);
        Choose({"Fill", "Puzzle"});
        EXPECT_EQ(PlayerLetters(), std::string(SolutionGrid, 35));
        ExpectFullRepaint();
    }
}

TEST_F(Commands, ClearPuzzleAsksAndOnlyYesClears) {
    const ShownMessage question{u"Do you want to clear the puzzle ? This cannot be undone.",
                                u"Are You Sure?"};
    for (int answer : {IDNO, 0, IDYES}) {
        PlaySpoilt(mediumSize);
        std::string expected = PlayerLetters();
        if (answer == IDYES) {
            std::replace_if(
                expected.begin(), expected.end(), [](char cell) { return cell != '.'; }, '-');
        }
        AnswerNextMessageBox(answer);
        Choose({"Clear", "Puzzle"});
        EXPECT_EQ(TakeShownMessages(), std::vector{question});
        EXPECT_EQ(PlayerLetters(), expected);
        if (answer == IDYES) {
            ExpectFullRepaint();
        } else {
            EXPECT_EQ(handheld->Client(), spoilt) << "No repaints nothing";
        }
    }
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
        EXPECT_EQ(IsChecked(mainMenu, "Toggle/Auto Skip"), expected == 1);
        EXPECT_FALSE(IsChecked(mainMenu, "Toggle/Numbers"));
    }
    const auto cornerInk = [] { return InkOfCell(lopsidedBoard, 3, 0, false).empty(); };
    PlayerGrid[21] = '-';
    for (int expected : {1, 0}) {
        Spoil();
        Choose({"Toggle", "Numbers"});
        EXPECT_EQ(ShowNumbers, expected);
        EXPECT_EQ(cornerInk(), expected == 0);
        EXPECT_EQ(IsChecked(mainMenu, "Toggle/Numbers"), expected == 1);
        EXPECT_FALSE(IsChecked(mainMenu, "Toggle/Auto Skip"));
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
    const QImage before = handheld->Client();
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
    EXPECT_EQ(handheld->Client(), before);
}

TEST_F(Commands, AvailableOpensAPuzzleWithItsFirstWordSelected) {
    WriteBytes(home.documents() / "other.puz", PuzzleBytes(squareBoard));
    handheld->Press(Qt::Key_Return);
    ChooseNextFile(home.documents() / "other.puz");
    AnswerNextMessageBox(IDYES);
    Choose({"Puzzles", "Available"});
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\other.puz");
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 0));
    ExpectPicture(squareBoard, true);
    EXPECT_EQ(TakeShownMessages().size(), 1u);
}

// Settings that came with the file of a puzzle must show in the menus.
TEST_F(Commands, CheckMarksFollowTheSettingsOfAnOpenedPuzzle) {
    const auto open = [this](const char* name) {
        ChooseNextFile(home.documents() / name);
        AnswerNextMessageBox(IDYES);
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
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
    handheld.reset();
    handheld = std::make_unique<Handheld>(home);
    EXPECT_EQ(std::tuple(AutoSkip, ShowNumbers, Magnification.Medium), std::tuple(1, 0, 1));
    expectMarks();
}

// Faults: the menu acts on the cell selected before, the hold turns the direction.
TEST_F(Commands, ContextMenuActsOnTheCellJustHeld) {
    for (MagnificationFlags size : sizes) {
        for (int direction : {0, 1}) {
            const auto hold = [&](const ItemPath& path) {
                const POINT point{BoardLeft + 5 * CellSize + 6, 3 * CellSize + 6};
                EXPECT_TRUE(ChooseFromContext(*handheld, point, path))
                    << path.join("/").toStdString();
                EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(3, 5, direction));
                return PlayerLetters();
            };
            const auto& word = direction == 0 ? selectedAcrossWord : selectedDownWord;
            Play(lopsidedBoard, size);
            SelectCell(0, 0, direction);
            const std::string empty = PlayerLetters();
            const std::string filled = GridWith(empty, word, solutionOf);
            EXPECT_EQ(hold({"Fill", "Word"}), filled);
            ExpectFullRepaint();
            SelectCell(0, 0, direction);
            EXPECT_EQ(hold({"Clear", "Letter"}), GridWith(filled, selectedCell, emptied));
            EXPECT_EQ(hold({"Clear", "Word"}), empty);
            EXPECT_EQ(hold({"Fill", "Letter"}), GridWith(empty, selectedCell, solutionOf));
            EXPECT_EQ(hold({"Fill", "Puzzle"}), std::string(SolutionGrid, 35));
            AnswerNextMessageBox(IDYES);
            EXPECT_EQ(hold({"Clear", "Puzzle"}), empty);
            TakeShownMessages();
        }
    }
}

// The same hints as the bar's, by their pictures.
TEST_F(Commands, ContextMenuShowsTheHintsOfTheHeldCell) {
    Play(lopsidedBoard, mediumSize);
    const std::pair<const char*, const char*> hints[] = {
        {"Letter", "Current Letter"}, {"Word", "Current Word"}, {"Puzzle", "Entire Puzzle"}};
    for (const auto& [held, current] : hints) {
        SelectCell(3, 5, 0);
        EXPECT_TRUE(ChooseFromBar(*handheld, hintMenu, {current}));
        const QImage expected = handheld->Client();
        SelectCell(0, 0, 0);
        RepaintFully(MainWindow);
        const POINT point{BoardLeft + 5 * CellSize + 6, 3 * CellSize + 6};
        EXPECT_TRUE(ChooseFromContext(*handheld, point, {"View", held}));
        EXPECT_EQ(handheld->Client(), expected) << held;
    }
}

}  // namespace
