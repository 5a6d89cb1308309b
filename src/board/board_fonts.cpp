#include "board/board_fonts.h"

#include "app/view.h"
#include "board/drawing_tools.h"

void RenewBoardFonts(HDC context) {
    constexpr int bold = 700;
    constexpr int leading = 2;          // pixels of a cell that no letter uses
    constexpr int numbersPerInch = 13;  // lines of clue numbers that fit an inch
    DeleteBoardFonts();
    LetterFont = CreateFontOf(u"System", CellSize - leading, bold);
    NumberFont = CreateFontOf(u"Arial", HeightOfLines(context, numbersPerInch));
}

void DeleteBoardFonts() {
    DeleteObject(LetterFont);
    DeleteObject(NumberFont);
    LetterFont = NumberFont = nullptr;
}
