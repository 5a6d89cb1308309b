#include "app/layout.h"

#include <algorithm>

#include "app/view.h"
#include "model/puzzle.h"
#include "platform/windows.h"
#include "play/settings.h"

namespace {

// A small board fits the width, too: it cannot be scrolled.
int FittingCell(int width, int height) {
    const int byHeight = height / std::max(PuzzleHeight, 1);
    const int byWidth = width / std::max(PuzzleWidth, 1);
    return std::max(std::min(byHeight, byWidth), 1);
}

int ChooseCellSize(int width, int height) {
    const BoardSize& size = ChosenSize();
    return size.FitsView() ? FittingCell(width, height) : size.cellSide;
}

// A narrow board may still be higher than the window while the soft input panel is up; its lower
// rows are there to be scrolled to. A small board always fits.
int ViewRows(const RECT& client, int boardHeight) {
    const int height = client.bottom - client.top;
    return ChosenSize().FitsView() ? height : std::max(height, boardHeight + 1);
}

}  // namespace

void ComputeLayout(HWND window) {
    DeleteOffscreenBuffer();
    ScrollX = ScrollY = 0;
    RECT client;
    GetClientRect(window, &client);
    if (QuerySipInfo()) {
        BottomReserve = ReserveBelowBoard();
    }
    ViewWidth = client.right - client.left;
    ViewHeight = client.bottom - BottomReserve - client.top;
    CellSize = ChooseCellSize(ViewWidth, ViewHeight);
    const int boardWidth = PuzzleWidth * CellSize;
    const int boardHeight = PuzzleHeight * CellSize;
    BoardLeft = boardWidth <= ViewWidth ? (ViewWidth - boardWidth) / 2 : 0;
    const bool scrolls = !ChosenSize().FitsView() && boardWidth > ViewWidth;
    BufferWidth = scrolls ? boardWidth + 1 : ViewWidth;
    BufferHeight = scrolls ? boardHeight + 1 : ViewRows(client, boardHeight);
    CreateOffscreenBuffer(window, BufferWidth, BufferHeight);
}

void ReserveBelowView(HWND window, int reserve) {
    BottomReserve = reserve;
    ViewHeight = BoardViewArea(window).bottom;
}

void KeepBottomEdge(HWND window) {
    const int oldHeight = ViewHeight;
    ReserveBelowView(window, clueBarReserve);
    const int scroll = ScrollY + oldHeight - ViewHeight;
    if (scroll >= 0) {
        ScrollY = scroll;
    }
}
