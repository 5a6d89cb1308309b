// Numbering the grid: which cells start words, and how long the words are.
#pragma once

struct WordCount {
    int across = 0;
    int down = 0;
};

// The words of a solution grid that is not installed yet; '.' is a black square.
WordCount CountWords(const char* solution, int width, int height);

// False when a size is below 1 or above what the arrays hold.
bool BoardFitsArrays();

// Fills in Cells, AcrossList and DownList from SolutionGrid, all but the lengths. The records are
// all -1 before.
void NumberGrid();

// Fills in the lengths; false when the board does not fit the arrays, and nothing is filled in.
bool ComputeWordLengths();
