// Revealing the solution in the player's grid, and emptying it. Nothing is painted, and the
// selection stays.
#pragma once

// The selected cell; a black square stays one.
void FillLetter();
void ClearLetter();

// The selected cell's word in the current Direction.
void FillWord();
void ClearWord();

// The whole grid, black squares restored from the solution.
void FillPuzzle();
void ClearPuzzle();
