#include "board/cell_drawing.h"

#include "board/board_fonts.h"
#include "board/cell_geometry.h"
#include "board/drawing_tools.h"
#include "model/puzzle.h"
#include "platform/text.h"
#include "play/settings.h"

namespace {

// Numbers are readable only in the larger sizes.
bool NumbersShown() {
    return ShowNumbers == 1 && ChosenSize().showsNumbers;
}

}  // namespace

void DrawCellSquare(HDC context, int row, int col) {
    const RECT square = OutlineSquare(row, col);
    Rectangle(context, square.left, square.top, square.right, square.bottom);
}

void DrawCellLetter(HDC context, int row, int col, char letter) {
    if (letter == 0) {
        return;
    }
    const std::u16string text = WidenText({&letter, 1});
    RECT box = OutlineSquare(row, col);
    const Selected font(context, LetterFont);
    DrawTextW(context, text.c_str(), 1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void DrawCellNumber(HDC context, int row, int col) {
    DrawCellNumberInBox(context, row, col, NumberBox(row, col));
}

void DrawCellNumberInBox(HDC context, int row, int col, const RECT& box) {
    const int number = Cells[CellIndex(row, col)].clueNumber;
    if (!NumbersShown() || number == 0 || number == -1) {
        return;
    }
    const std::u16string text = DecimalText(number);
    RECT drawn = box;
    const Selected font(context, NumberFont);
    DrawTextW(context, text.c_str(), -1, &drawn, DT_SINGLELINE);
}
