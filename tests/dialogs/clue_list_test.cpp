#include <QtWidgets/QScrollBar>

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

struct ClueLine {
    int row;
    int col;
    std::string text;
};

TEST_F(ClueList, EveryLineOfBothTabsStandsForItsWord) {
    const std::vector<ClueLine> tabs[] = {
        {{0, 0, "1.  Café “quoted” (3)"},
         {0, 4, "4.  Clue (2)"},
         {1, 0, "6.  Clue (6)"},
         {2, 0, "8.  Clue (2)"},
         {2, 3, "9.  Clue (3)"},
         {3, 0, "10. Clue (6)"},
         {4, 1, "12. Clue (5)"},
         {5, 0, "13. Clue (2)"},
         {5, 3, "14. Clue (3)"}},
        {{0, 0, "1.  Clue  (4)"},
         {0, 1, "2.  Clue  (6)"},
         {0, 2, "3.  Clue  (2)"},
         {0, 4, "4.  Clue  (6)"},
         {0, 5, "5.  Clue  (6)"},
         {1, 3, "7.  Clue  (5)"},
         {3, 2, "11. Clue  (2)"}},
    };
    std::vector<std::string> texts(20, "Clue");
    texts[3] = "Caf\xE9 \x93quoted\x94";
    WriteBytes(home.documents() / "a.puz", PuzzleOfBoard(squareBoard, texts).Bytes());
    OpenPuzzle(home.documents() / "a.puz");
    Magnification = largeSize;
    ComputeLayout(MainWindow);
    for (int tab : {0, 1}) {
        for (std::size_t line = 0; line < tabs[tab].size(); ++line) {
            const ClueLine& expected = tabs[tab][line];
            Use(commandClueList, [&](OpenDialog& dialog) {
                EXPECT_EQ(dialog.Lines(controlClues).size(), tabs[0].size());
                dialog.Press(Qt::Key_Down);
                dialog.TapTab(controlClueTabs, tab);
                EXPECT_EQ(dialog.SelectedLine(controlClues), -tab);
                const auto lines = dialog.Lines(controlClues);
                ASSERT_EQ(lines.size(), tabs[tab].size());
                EXPECT_EQ(lines[line], expected.text);
                dialog.TapLine(controlClues, static_cast<int>(line));
                EXPECT_FALSE(dialog.IsOpen());
            });
            ExpectSelection(expected.row, expected.col, tab);
            EXPECT_LE((expected.row + 1) * CellSize, ScrollY + ViewHeight) << "it is scrolled to";
            ExpectFullRepaint();
        }
    }
}

TEST_F(ClueList, KeysGoAlongTheLinesAndEnterOrSpaceTakesOne) {
    Start(BoardRows(12, "ABCDE.GHIJKL"));
    for (int key : {int(Qt::Key_Return), int(Qt::Key_Space)}) {
        Use(commandClueList, [&](OpenDialog& dialog) {
            EXPECT_EQ(dialog.SelectedLine(controlClues), -1);
            EXPECT_TRUE(dialog.HasFocus(controlClues));
            auto* list = dialog.Find<QListWidget>(controlClues);
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
