// The one puzzle in play: fixed arrays that live for the whole run.
//
// Grids and cell records are row-major: cell (row, col) is at row * PuzzleWidth + col, and only the
// first PuzzleWidth * PuzzleHeight entries belong to the puzzle.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/types.h"

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

// Takes a path buffer of 260 wide characters. False when the file cannot be opened, or when it is
// no puzzle that these arrays hold, which the player is told; the path buffer then says "Could not
// open the file" and PuzzleImage is unchanged. A puzzle that is not square, or of size 0, is read.
bool ReadPuzzleFile(WCHAR* path);

// The size of a file that ReadPuzzleFile would read, which need not be square. False when it would
// not read the file; nobody is told, and nothing changes.
bool PeekPuzzleSize(const WCHAR* path, int* width, int* height);

// The two size bytes and the solution: what makes two files the same puzzle, to which a player's
// letters belong. Of a file that can be played, empty for any other; and of the puzzle in play,
// whose size must fit the arrays.
std::string SolutionOfFile(const WCHAR* path);
std::string SolutionInPlay();
// A solution that was corrected is the same puzzle's still; another one of the same size, and even
// of the same black squares, has few letters in common.
bool IsSamePuzzle(const std::string& solution, const std::string& other);

// Builds the model from PuzzleImage and puts the selection on the top-left cell. Without a word, it
// stops after the sizes when the puzzle is not square, and makes both sizes 15 when they are 0.
void ParsePuzzle();
