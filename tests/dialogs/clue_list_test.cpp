
#include "support/dialogs.h"

namespace {

class ClueList : public DialogTest {
protected:
    void Start(const BoardRows& rows) {
        Play(rows, smallSize);
        SelectCell(1, 1, 0);
    }
    void ExpectSelection(int row, int col, int direction) {
        EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(row, col, direction));
        EXPECT_EQ(ClueChosen, 0);
    }
};

TEST_F(ClueList, EveryLineOfBothTabsStandsForItsWord) {
    std::vector<std::string> texts(20, "Clue");
    texts[3] = "Caf\xE9 \x93quoted\x94";
    WriteBytes(home.documents() / "a.puz", PuzzleOfBoard(squareBoard, texts).Bytes());
    OpenPuzzle(home.documents() / "a.puz");
    Magnification = largeSize;
    ComputeLayout(MainWindow);
    std::map<std::pair<int, int>, std::size_t> numbers;
    int lines[] = {0, 0};
    for (const PlainWord& word : WordsOf(squareBoard)) {
        const int tab = word.direction;
        const auto at = numbers.try_emplace({word.row, word.col}, numbers.size() + 1).first;
        const std::string number = std::to_string(at->second) + ".   ";
        const std::string text = word.index == 0 ? "Café “quoted”" : tab == 0 ? "Clue" : "Clue ";
        Use(commandClueList, [&](OpenDialog& dialog) {
            dialog.Press(Qt::Key_Down);
            dialog.TapTab(controlClueTabs, tab);
            EXPECT_EQ(dialog.Find<QListWidget>(controlClues)->currentRow(), -tab);
            EXPECT_EQ(dialog.Lines(controlClues).at(std::size_t(lines[tab])),
                      number.substr(0, 4) + text + " (" + std::to_string(word.length) + ")");
            dialog.TapLine(controlClues, lines[tab]++);
            EXPECT_FALSE(dialog.IsOpen());
        });
        ExpectSelection(word.row, word.col, tab);
        EXPECT_LE((word.row + 1) * CellSize, ScrollY + ViewHeight) << "it is scrolled to";
        ExpectFullRepaint();
    }
}

TEST_F(ClueList, KeysGoAlongTheLinesAndEnterOrSpaceTakesOne) {
    Start(BoardRows(12, "ABCDE.GHIJKL"));
    for (int key : {int(Qt::Key_Return), int(Qt::Key_Space)}) {
        Use(commandClueList, [&](OpenDialog& dialog) {
            auto* list = dialog.Find<QListWidget>(controlClues);
            EXPECT_EQ(list->currentRow(), -1);
            EXPECT_TRUE(dialog.HasFocus(controlClues));
            for (int arrow : {Qt::Key_Right, Qt::Key_Left}) {
                dialog.Press(arrow);
                EXPECT_EQ(list->horizontalScrollBar()->value() > 0, arrow == Qt::Key_Right);
            }
            dialog.Press(Qt::Key_End);
            EXPECT_EQ(list->currentRow(), list->count() - 1);
            dialog.Press(Qt::Key_Right);
            dialog.TapTab(controlClueTabs, 1);
            EXPECT_EQ(list->horizontalScrollBar()->value() + list->verticalScrollBar()->value(), 0);
            dialog.TapTab(controlClueTabs, 0);
            dialog.Press(Qt::Key_Home);
            dialog.Press(Qt::Key_Down);
            EXPECT_TRUE(dialog.IsOpen());
            dialog.Press(key);
            EXPECT_FALSE(dialog.IsOpen());
        });
        ExpectSelection(0, 6, 0);
        SelectCell(1, 1, 0);
    }
}

TEST_F(ClueList, ClosingOrLiftingTheStylusElsewhereChoosesNothing) {
    Start(BoardRows(30, "ABC"));
    Use(commandClueList, [](OpenDialog& dialog) {
        QWidget* view = dialog.Find<QListWidget>(controlClues)->viewport();
        const double middle = view->height() / 2.0;
        for (QPointF place : {QPointF(9, view->height() + 5), QPointF(-5, middle),
                              QPointF(view->width() + 5, middle)}) {
            dialog.Drag(view, {9, 5}, place);
            EXPECT_TRUE(dialog.IsOpen());
        }
        dialog.Tap(commandClose);
        EXPECT_FALSE(dialog.IsOpen());
    });
    Use(commandClueList, [](OpenDialog& dialog) {
        dialog.Press(Qt::Key_Return);
        EXPECT_FALSE(dialog.IsOpen()) << "nothing is selected";
    });
    Start({"A.", ".B"});
    Use(commandClueList, [](OpenDialog& dialog) {
        EXPECT_TRUE(dialog.Lines(controlClues).empty());
        dialog.Tap(controlClues);
        dialog.TapTab(controlClueTabs, 1);
        EXPECT_TRUE(dialog.Lines(controlClues).empty());
        EXPECT_TRUE(dialog.IsOpen());
    });
    ExpectSelection(1, 1, 0);
}

}  // namespace
