#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>

#include "app/view.h"
#include "platform/dialogs.h"
#include "resources/ids.h"
#include "support/dialogs.h"
#include "support/played_board.h"

namespace {

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
        Play(rows, size);
        SelectCell(1, 1, 0);
    }
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDialog(
            *handheld, [this] { handheld->PressButton("Open the clue list"); }, use);
    }
    void ExpectSelection(int row, int col, int direction) {
        EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(row, col, direction));
        EXPECT_EQ(ClueChosen, 0);
    }
};

// The words of one direction and their lines, numbered by going along.
std::vector<std::pair<PlainWord, std::string>> ExpectedLines(int direction) {
    std::vector<std::pair<PlainWord, std::string>> lines;
    int number = 0;
    int clue = 0;
    const PlainWord* before = nullptr;
    const std::vector<PlainWord> words = WordsOf(manyNumbers);
    for (const PlainWord& word : words) {
        const bool sharesStart = before && before->row == word.row && before->col == word.col;
        number += sharesStart ? 0 : 1;
        const std::string text = clue++ == 0 ? "Café “quoted”" : "Clue";
        if (word.direction == direction) {
            lines.push_back({word, std::to_string(number) + (number < 10 ? ".  " : ". ") + text +
                                       (direction == down ? "  (" : " (") +
                                       std::to_string(word.length) + ")"});
        }
        before = &word;
    }
    return lines;
}

TEST_F(ClueList, EveryLineOfBothTabsStandsForItsWord) {
    std::vector<std::string> texts(3 + WordsOf(manyNumbers).size(), "Clue");
    texts[3] = "Caf\xE9 \x93quoted\x94";
    WriteBytes(home.documents() / "a.puz", PuzzleOfBoard(manyNumbers, texts).Bytes());
    OpenPuzzle(home.documents() / "a.puz");
    Magnification = largeSize;
    ComputeLayout(MainWindow);
    for (int direction : {across, down}) {
        const auto expected = ExpectedLines(direction);
        for (int line = 0; line < static_cast<int>(expected.size()); ++line) {
            Use([&](OpenDialog& dialog) {
                EXPECT_EQ(dialog.Lines(controlClues).size(), ExpectedLines(across).size());
                dialog.Press(Qt::Key_Down);
                dialog.TapTab(controlClueTabs, direction);
                EXPECT_EQ(dialog.SelectedLine(controlClues), direction == down ? -1 : 0);
                EXPECT_TRUE(dialog.HasFocus(controlClues) || direction == across);
                const auto lines = dialog.Lines(controlClues);
                ASSERT_EQ(lines.size(), expected.size());
                EXPECT_EQ(lines[static_cast<std::size_t>(line)], expected[line].second);
                dialog.TapLine(controlClues, line);
                EXPECT_FALSE(dialog.IsOpen());
            });
            const PlainWord& word = expected[line].first;
            ExpectSelection(word.row, word.col, direction);
            EXPECT_LE((word.row + 1) * CellSize, ScrollY + ViewHeight) << "it is scrolled to";
            ExpectFullRepaint();
        }
    }
}

TEST_F(ClueList, KeysGoAlongTheLinesAndEnterOrSpaceTakesOne) {
    Start(manyNumbers);
    for (int key : {int(Qt::Key_Return), int(Qt::Key_Space)}) {
        Use([&](OpenDialog& dialog) {
            EXPECT_EQ(dialog.SelectedLine(controlClues), -1);
            EXPECT_TRUE(dialog.HasFocus(controlClues));
            auto* list = dialog.Find<QListWidget>(controlClues);
            dialog.Press(Qt::Key_Right);
            EXPECT_GT(list->horizontalScrollBar()->value(), 0);
            dialog.Press(Qt::Key_Left);
            EXPECT_EQ(list->horizontalScrollBar()->value(), 0);
            dialog.Press(Qt::Key_End);
            EXPECT_EQ(list->currentRow(), list->count() - 1);
            dialog.Press(Qt::Key_Home);
            dialog.Press(Qt::Key_Down);
            EXPECT_TRUE(dialog.IsOpen());
            dialog.Press(key);
            EXPECT_FALSE(dialog.IsOpen());
        });
        ExpectSelection(0, 5, across);
        SelectCell(1, 1, 0);
    }
}

TEST_F(ClueList, ClosingOrLiftingTheStylusElsewhereChoosesNothing) {
    Start(manyNumbers);
    Use([](OpenDialog& dialog) {
        auto* list = dialog.Find<QListWidget>(controlClues);
        const QPointF line = list->visualItemRect(list->item(1)).center();
        const QPointF hiddenLine = list->visualItemRect(list->item(list->count() - 1)).center();
        const double middle = list->viewport()->height() / 2.0;
        ASSERT_GT(hiddenLine.y(), list->viewport()->height());
        for (QPointF place :
             {hiddenLine, QPointF(-5, middle), QPointF(list->viewport()->width() + 5, middle)}) {
            dialog.Drag(list->viewport(), line, place);
            EXPECT_TRUE(dialog.IsOpen());
        }
        dialog.Tap(commandClose);
        EXPECT_FALSE(dialog.IsOpen());
    });
    ExpectSelection(1, 1, across);
    Use([](OpenDialog& dialog) {
        dialog.Press(Qt::Key_Return);
        EXPECT_FALSE(dialog.IsOpen()) << "nothing is selected";
    });
    ExpectSelection(1, 1, across);
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
