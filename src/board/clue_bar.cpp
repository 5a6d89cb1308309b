#include "board/clue_bar.h"

#include <algorithm>
#include <string>

#include "app/view.h"
#include "board/drawing_tools.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/drawing.h"
#include "platform/text.h"
#include "platform/windows.h"
#include "play/word_extent.h"

namespace {

// Two rows more than the space below the board: with the keyboard shown they are visible.
constexpr int barHeight = 22;

int BarTop(const RECT& client) {
    if (!QuerySipInfo()) {
        return client.top;
    }
    return client.bottom - ReserveBelowBoard();
}

// Null when the selected cell has no word in the current direction.
const WordRecord* FindSelectedWord() {
    const int key = ClueIndexAt(CursorRow, CursorCol, Direction);
    if (key == -1) {
        return nullptr;
    }
    const WordList list = ListedWords(Direction);
    const auto found = std::find_if(
        list.begin(), list.end(), [key](const WordRecord& word) { return word.clueIndex == key; });
    return found == list.end() ? nullptr : &*found;
}

std::u16string BarText() {
    const WordRecord* word = FindSelectedWord();
    if (word == nullptr) {
        return {};
    }
    return DecimalText(word->clueNumber) + (Direction == 0 ? u" a: " : u" d: ") +
           WidenText(ClueTable[word->clueIndex]) + u" (" + DecimalText(word->length) + u")";
}

void DrawBarText(HDC context, const RECT& bar) {
    RECT box{bar.left + 1, bar.top, bar.right - 1, bar.bottom};
    SetBkColor(context, RGB(255, 255, 255));
    DrawTextW(context, BarText().c_str(), -1, &box, DT_WORDBREAK);
}

void DrawBar(HDC context, const RECT& bar) {
    constexpr int linesPerInch = 9;
    const Owned barFont(CreateFontOf(u"System", HeightOfLines(context, linesPerInch)));
    const Owned whitePen(CreatePen(PS_SOLID, 1, RGB(255, 255, 255)));
    const Selected font(context, barFont);
    const Selected pen(context, whitePen);
    const Selected brush(context, GetStockObject(WHITE_BRUSH));
    Rectangle(context, bar.left, bar.top, bar.right, bar.bottom);
    DrawBarText(context, bar);
}

}  // namespace

void PaintClueBar(HWND window) {
    HDC context = GetDC(window);
    if (context == nullptr) {
        return;
    }
    {
        const PaintBracket bracket(window);
        RECT client;
        GetClientRect(window, &client);
        const int top = BarTop(client);
        DrawBar(context, {0, top, client.right, top + barHeight});
    }
    ReleaseDC(window, context);
}
