#include "play/letter_entry.h"

#include <algorithm>

#include "app/repaint.h"
#include "app/view.h"
#include "board/board_painter.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/windows.h"
#include "play/scroll_into_view.h"
#include "play/settings.h"
#include "play/word_extent.h"
#include "play/word_jump.h"

namespace {

bool IsLetterKey(int key) {
    return key >= 'A' && key <= 'Z';
}

bool SelectionTakesLetters() {
    return IsOnBoard(CursorRow, CursorCol) && PlayerGrid[SelectedCell()] != blackSquare;
}

// Column across, row down.
int& CursorInWord() {
    return Direction == 0 ? CursorCol : CursorRow;
}

char PlayerCellInWord(int position) {
    return Direction == 0 ? PlayerGrid[CellIndex(CursorRow, position)]
                          : PlayerGrid[CellIndex(position, CursorCol)];
}

// The first empty cell from the selected one on, or the word's last cell. A black square in the
// player's grid stops the search too: it can be found in a word when a file's two grids disagree.
int PositionAfterSkip(int last) {
    const int start = CursorInWord();
    int position = start;
    while (position <= last && PlayerCellInWord(position) != emptyCell &&
           PlayerCellInWord(position) != blackSquare) {
        ++position;
    }
    const bool overshot = position > last || PlayerCellInWord(position) == blackSquare;
    return overshot ? std::max(position - 1, start) : position;
}

}  // namespace

void HandleKeyDown(int key) {
    if (key == VK_BACK || IsLetterKey(key)) {
        HandleEntryKey(key);
        return;
    }
    if (key == VK_RETURN) {
        ToggleDirection();
    } else if (key == VK_LEFT || key == VK_UP) {
        JumpToWord(false);
    } else if (key == VK_RIGHT || key == VK_DOWN) {
        JumpToWord(true);
    }
    PaintBoardAndSelection(MainWindow);
    ScrollIntoView();
    ShowBoard(MainWindow);
}

void HandleEntryKey(int key) {
    if (key == VK_BACK) {
        EraseLetter();
    } else if (IsLetterKey(key)) {
        EnterLetter(static_cast<char>(key));
    }
    CopyViewToScreen(MainWindow);
}

void EnterLetter(char letter) {
    if (SelectionTakesLetters()) {
        PlayerGrid[SelectedCell()] = letter;
        AdvanceAfterLetter();
    }
}

void EraseLetter() {
    if (!SelectionTakesLetters()) {
        return;
    }
    PlayerGrid[SelectedCell()] = emptyCell;
    PaintBoard(MainWindow);
    if (CursorInWord() > FindSelectedExtent().first) {
        --CursorInWord();
    }
    PaintWordHighlight(MainWindow);
}

void AdvanceAfterLetter() {
    PaintBoard(MainWindow);
    const int last = FindSelectedExtent().last;
    if (CursorInWord() < last) {
        CursorInWord() = AutoSkip == 0 ? CursorInWord() + 1 : PositionAfterSkip(last);
    }
    PaintWordHighlight(MainWindow);
    PaintClueBar(MainWindow);
}
