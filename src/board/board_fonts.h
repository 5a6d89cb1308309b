// The fonts of letters and clue numbers.
#pragma once

#include "platform/drawing.h"

// Written by the two operations below. Every board painter uses them, so PaintBoard, which makes
// them anew, comes first.
inline HFONT LetterFont = nullptr;
inline HFONT NumberFont = nullptr;

// Makes both for the cell size of now and the context's screen.
void RenewBoardFonts(HDC context);
void DeleteBoardFonts();
