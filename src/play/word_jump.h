// Changing the direction of entry and jumping from word to word. Paints nothing.
#pragma once

void ToggleDirection();

// Selects the first cell of the next or previous word of the current direction's list; the top-left
// cell when there is none. From a black square, backward goes to the last word.
void JumpToWord(bool forward);
