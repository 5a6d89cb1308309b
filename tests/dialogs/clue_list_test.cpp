#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <algorithm>

#include "app/view.h"
#include "platform/dialogs.h"
#include "resources/ids.h"
#include "support/dialogs.h"
#include "support/played_board.h"

namespace {

constexpr const char* clueListButton = "Open the clue list";
constexpr int across = 0;
constexpr int down = 1;

// Down words start at 1 to 9 in the first row and at 10 below it; the rest have across words, too.
const BoardRows manyNumbers = {
    "ABCD.EFGHI.J",  //
    "KLMN.OPQRS.T",  //
    "UV.WXYZ.ABCD",  //
    "EF.GHIJ.KLMN",  //
    "..O.........",  //
    "PQRSTUVWXYZA",  //
    "BC.DEFG.HIJK",  //
    "LM.NOPQ.RSTU",  //
    "VWXY.ZABC.DE",  //
    "FGHI.JKLM.NO",  //
    "PQRS.TUVW.XY",  //
    "ZABC.DEFG.HI",
};

class ClueList : public PlayedBoard {
protected:
    void Start(const BoardRows& rows, MagnificationFlags size = smallSize) {
        Open(PuzzleBytes(rows));
        Play(rows, size);
        SelectCell(1, 1, 0);
    }
    void Open(const std::string& bytes) {
        WriteBytes(home.documents() / "listed.puz", bytes);
        OpenPuzzle(home.documents() / "listed.puz");
    }
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDialog(
            *handheld, [this] { handheld->PressButton(clueListButton); }, use);
    }
    void ExpectSelection(int row, int col, int direction) {
        EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(row, col, direction));
    }
};

TEST_F(ClueList, LinesStandBelowEachOtherAndTellTheirTabsApart) {
    std::vector<std::string> texts = {"Title", "Author", "Copyright"};
    for (size_t i = 0; i < WordsOf(manyNumbers).size(); ++i) {
        texts.push_back("Clue");
    }
    texts[3] = "Caf\xE9 \x93quoted\x94";
    Open(PuzzleOfBoard(manyNumbers, texts).Bytes());
    SelectCell(0, 0, down);
    Use([](OpenDialog& dialog) {
        EXPECT_EQ(dialog.Title(), "Quadrel Clues");
        const std::vector<std::string> lines = dialog.Lines(controlClues);
        EXPECT_EQ(lines[0], "1.  Café “quoted” (4)");
        EXPECT_EQ(dialog.SelectedLine(controlClues), -1);
        EXPECT_TRUE(dialog.HasFocus(controlClues));
        EXPECT_NE(std::find(lines.begin(), lines.end(), "11. Clue (4)"), lines.end());
        dialog.TapTab(controlClueTabs, down);
        const std::vector<std::string> downLines = dialog.Lines(controlClues);
        ASSERT_GE(downLines.size(), 10u);
        EXPECT_EQ(downLines[8], "9.  Clue  (4)");
        EXPECT_EQ(downLines[9], "10. Clue  (4)");
    });
}

TEST_F(ClueList, TappingALineShowsTheFirstCellOfItsWordAtOnce) {
    Start(manyNumbers, largeSize);
    for (int direction : {across, down}) {
        int line = 0;
        for (const PlainWord& word : WordsOf(manyNumbers)) {
            if (word.direction != direction) {
                continue;
            }
            Use([&](OpenDialog& dialog) {
                dialog.TapTab(controlClueTabs, direction);
                dialog.TapLine(controlClues, line);
                EXPECT_FALSE(dialog.IsOpen());
            });
            ExpectSelection(word.row, word.col, direction);
            EXPECT_LE((word.row + 1) * CellSize, ScrollY + ViewHeight) << "it is scrolled to";
            EXPECT_EQ(ClueChosen, 0);
            ExpectFullRepaint();
            ++line;
        }
    }
}

TEST_F(ClueList, ArrowsOnlyMoveAndEnterOrSpaceTakesTheLine) {
    Start(squareBoard);
    for (int key : {int(Qt::Key_Return), int(Qt::Key_Space)}) {
        Use([&](OpenDialog& dialog) {
            dialog.Press(Qt::Key_Down);
            dialog.Press(Qt::Key_Down);
            EXPECT_TRUE(dialog.IsOpen());
            EXPECT_EQ(dialog.SelectedLine(controlClues), 1);
            dialog.Press(key);
            EXPECT_FALSE(dialog.IsOpen());
        });
        ExpectSelection(0, 4, across);
        SelectCell(1, 1, 0);
    }
}

TEST_F(ClueList, LiftingTheStylusOutsideTheListChoosesNothing) {
    Start(manyNumbers);
    Use([](OpenDialog& dialog) {
        auto* list = qobject_cast<QListWidget*>(dialog.Widget(controlClues));
        const QPointF line = list->visualItemRect(list->item(1)).center();
        const QPointF hiddenLine = list->visualItemRect(list->item(list->count() - 1)).center();
        const double middle = list->viewport()->height() / 2.0;
        ASSERT_GT(hiddenLine.y(), list->viewport()->height());
        for (QPointF place :
             {hiddenLine, QPointF(-5, middle), QPointF(list->viewport()->width() + 5, middle)}) {
            dialog.Drag(list->viewport(), line, place);
            EXPECT_TRUE(dialog.IsOpen());
        }
    });
    ExpectSelection(1, 1, across);
}

TEST_F(ClueList, KeysReachTheLastLineAndTheEndsOfLongLines) {
    Start(manyNumbers);
    Use([](OpenDialog& dialog) {
        auto* list = qobject_cast<QListWidget*>(dialog.Widget(controlClues));
        dialog.Press(Qt::Key_Right);
        EXPECT_GT(list->horizontalScrollBar()->value(), 0);
        dialog.Press(Qt::Key_Left);
        EXPECT_EQ(list->horizontalScrollBar()->value(), 0);
        EXPECT_EQ(dialog.SelectedLine(controlClues), -1);
        dialog.Press(Qt::Key_End);
        EXPECT_EQ(dialog.SelectedLine(controlClues), list->count() - 1);
    });
}

TEST_F(ClueList, NothingIsChosenByClosing) {
    Start(squareBoard);
    SelectCell(3, 2, down);
    const std::function<void(OpenDialog&)> ways[] = {
        [](OpenDialog& dialog) { dialog.Press(Qt::Key_Return); },
        [](OpenDialog& dialog) { dialog.Press(Qt::Key_Escape); },
        [](OpenDialog& dialog) {
            dialog.Press(Qt::Key_Down);
            dialog.Tap(commandClose);
        },
    };
    for (const auto& way : ways) {
        Use([&](OpenDialog& dialog) {
            way(dialog);
            EXPECT_FALSE(dialog.IsOpen());
        });
        ExpectSelection(3, 2, down);
        EXPECT_EQ(ClueChosen, 0);
    }
}

TEST_F(ClueList, ATabIsFilledAnewEachTime) {
    Start(squareBoard);
    Use([](OpenDialog& dialog) {
        const std::vector<std::string> acrossLines = dialog.Lines(controlClues);
        dialog.Press(Qt::Key_Down);
        dialog.TapTab(controlClueTabs, down);
        EXPECT_EQ(dialog.SelectedLine(controlClues), -1);
        EXPECT_TRUE(dialog.HasFocus(controlClues));
        EXPECT_NE(dialog.Lines(controlClues), acrossLines);
        dialog.TapTab(controlClueTabs, across);
        EXPECT_EQ(dialog.Lines(controlClues), acrossLines);
    });
    Use([](OpenDialog& dialog) { dialog.TapTab(controlClueTabs, down); });
    Use([](OpenDialog& dialog) { EXPECT_EQ(dialog.Lines(controlClues)[0], "1.  Clue 0 (3)"); });
}

TEST_F(ClueList, APuzzleWithoutWordsHasNothingToChoose) {
    Start({"A.", ".B"});
    Use([](OpenDialog& dialog) {
        EXPECT_TRUE(dialog.Lines(controlClues).empty());
        dialog.Tap(controlClues);
        dialog.TapTab(controlClueTabs, down);
        EXPECT_TRUE(dialog.Lines(controlClues).empty());
        EXPECT_TRUE(dialog.IsOpen());
    });
    ExpectSelection(1, 1, 0);
}

}  // namespace
