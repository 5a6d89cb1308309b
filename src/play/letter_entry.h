// Typing into the selected cell, erasing it, and what the other keys do.
#pragma once

// Virtual-key codes. Every key but a letter or backspace repaints everything, known or not.
void HandleKeyDown(int key);
// A letter or backspace only.
void HandleEntryKey(int key);

// Upper case. Both leave a black square as it is and then paint nothing; what they paint stays in
// the off-screen buffer.
void EnterLetter(char letter);
void EraseLetter();

// Moves within the selected word, never past its last cell; with AutoSkip over cells that are
// filled already.
void AdvanceAfterLetter();
