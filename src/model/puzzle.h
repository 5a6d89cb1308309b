// The one puzzle in play: fixed arrays that live for the whole run.
//
// Grids and cell records are row-major: cell (row, col) is at row * PuzzleWidth + col, and only the
// first PuzzleWidth * PuzzleHeight entries belong to the puzzle.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

constexpr int maxSide = 40;
constexpr int maxCells = maxSide * maxSide;
constexpr int maxWords = 300;  // in each direction
constexpr int maxClues = 400;
constexpr int puzzleImageSize = 16000;
constexpr int titleTextSize = 264;  // the terminating zero included

// Where a puzzle file keeps its parts: two signed size bytes, the solution, the player's grid of
// the same length, then zero-terminated texts.
constexpr int widthOffset = 44;
constexpr int heightOffset = 45;
constexpr int gridOffset = 52;

constexpr char blackSquare = '.';
constexpr char emptyCell = '-';

// In every record -1 stands for none.
struct CellRecord {
    std::int32_t acrossClue = 0;  // clue indices
    std::int32_t downClue = 0;
    std::int32_t clueNumber = 0;  // only where a word starts
};

struct WordRecord {
    std::int32_t clueIndex = 0;
    std::int32_t clueNumber = 0;
    std::int32_t length = 0;  // in cells
};

// The first bytes of the puzzle file, zeros after its end, and one zero more, so that every text in
// it ends. Written by ReadPuzzleFile.
inline char PuzzleImage[puzzleImageSize + 1];

// Equal whenever a puzzle is loaded. Written by ParsePuzzle, start-up and LoadProgress.
inline int PuzzleWidth = 15;
inline int PuzzleHeight = 15;

// '.' is a black square; other bytes are mostly, but not always, upper-case letters. Written by
// ParsePuzzle.
inline char SolutionGrid[maxCells];

// '.' is a black square, '-' an empty cell, anything else the player's entry. Written by
// ParsePuzzle, LoadProgress, letter entry, fill and clear.
inline char PlayerGrid[maxCells];

// Title, author and copyright, a line feed between them. Written by ParsePuzzle.
inline char TitleText[titleTextSize];

// The text of every clue index, inside PuzzleImage; an empty text where the file has none. Written
// by ParsePuzzle.
inline std::array<const char*, maxClues> ClueTable = [] {
    std::array<const char*, maxClues> table{};
    table.fill("");
    return table;
}();

// Written by ParsePuzzle; start-up empties Cells. The lists are in the order of the clue numbers
// and end at the first record of -1, or with the array.
inline CellRecord Cells[maxCells];
inline WordRecord AcrossList[maxWords];
inline WordRecord DownList[maxWords];

// 1: ParsePuzzle takes PlayerGrid from the file. 0: PlayerGrid holds restored progress and is left
// alone. Written by start-up, OpenPuzzleFile and ParseWithRestoredGrid.
inline int ResetPlayerGrid = 1;

// The words of a direction, 0 across or 1 down.
using WordList = std::span<WordRecord, maxWords>;
inline WordList ListedWords(int direction) {
    return direction == 0 ? WordList(AcrossList) : WordList(DownList);
}

// Of the puzzle in play, never more than the arrays hold.
inline int CellCount() {
    return std::clamp(PuzzleWidth * PuzzleHeight, 0, maxCells);
}
inline int CellIndex(int row, int col) {
    return row * PuzzleWidth + col;
}

// Makes PlayerGrid an empty grid with the black squares of these cells, CellCount of them.
inline void EmptyPlayerGrid(const char* cells) {
    std::transform(cells, cells + CellCount(), PlayerGrid,
                   [](char cell) { return cell == blackSquare ? blackSquare : emptyCell; });
}
