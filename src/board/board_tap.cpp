#include "board/board_tap.h"

#include "app/view.h"
#include "board/board_painter.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "play/word_jump.h"

namespace {

struct TappedCell {
    bool onGrid = false;
    int row = 0;
    int col = 0;
};

TappedCell FindTappedCell(LPARAM point) {
    const int x = ScrollX - BoardLeft + LOWORD(static_cast<WPARAM>(point));
    const int y = ScrollY + HIWORD(static_cast<WPARAM>(point));
    if (x < 0 || x >= PuzzleWidth * CellSize || y < 0 || y >= PuzzleHeight * CellSize) {
        return {};
    }
    return {true, y / CellSize, x / CellSize};
}

bool HasBothWords(const TappedCell& cell) {
    const CellRecord& record = Cells[CellIndex(cell.row, cell.col)];
    return record.acrossClue != -1 && record.downClue != -1;
}

}  // namespace

void HandleBoardTap(HWND window, LPARAM point) {
    const TappedCell tapped = FindTappedCell(point);
    PaintBoard(window);
    const bool selectedAlready =
        tapped.onGrid && tapped.row == CursorRow && tapped.col == CursorCol;
    if (selectedAlready && TapHoldActive == 0) {
        ToggleDirection();
    }
    if (tapped.onGrid && HasBothWords(tapped)) {
        CursorRow = tapped.row;
        CursorCol = tapped.col;
        PaintWordHighlight(window);
    }
    PaintClueBar(window);
}
