// What a new player finds: the bundled puzzles.
#pragma once

// Makes the program folder, closed to everybody else. With no state in it yet, puts the bundled puzzles into the game's
// documents folder and the starter into the documents, where no puzzle is there already.
void PrepareFolders();
