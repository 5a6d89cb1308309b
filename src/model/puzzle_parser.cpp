#include "model/puzzle_parser.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "model/numbering.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/dialogs.h"

namespace {

constexpr int sizeWithoutPuzzle = 15;

void ClearRecords() {
    std::fill(std::begin(AcrossList), std::end(AcrossList), WordRecord{-1, -1, -1});
    std::fill(std::begin(DownList), std::end(DownList), WordRecord{-1, -1, -1});
    std::fill(std::begin(Cells), std::end(Cells), CellRecord{-1, -1, -1});
}

int SizeAt(int offset) {
    return static_cast<signed char>(PuzzleImage[offset]);
}

// The text at the position, which moves past its end. Past the image every text is empty.
const char* TakeText(int& position) {
    if (position >= puzzleImageSize) {
        return "";
    }
    const char* text = PuzzleImage + position;
    position += static_cast<int>(std::strlen(text)) + 1;
    return text;
}

// A character cut in half would make the whole text invalid UTF-8, and all its accents wrong.
void CutText(std::string& text, std::size_t limit) {
    if (text.size() <= limit) {
        return;
    }
    const auto continuesCharacter = [&](std::size_t i) {
        return (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    while (limit > 0 && continuesCharacter(limit)) {
        --limit;
    }
    text.resize(limit);
}

void TakeTitle(int& position) {
    std::string title = TakeText(position);
    title.append("\n").append(TakeText(position));
    title.append("\n").append(TakeText(position));
    CutText(title, titleTextSize - 1);
    std::memcpy(TitleText, title.c_str(), title.size() + 1);
}

// The clues end before the first empty text, except that the first one may be empty. A text that
// follows them, the notes, is entered too; no word refers to it.
void TakeClues(int position) {
    ClueTable.fill("");
    for (const char*& clue : ClueTable) {
        clue = TakeText(position);
        if (PuzzleImage[std::min(position, puzzleImageSize)] == '\0') {
            return;
        }
    }
}

void TakeContents() {
    std::memcpy(SolutionGrid, PuzzleImage + gridOffset, static_cast<std::size_t>(CellCount()));
    if (ResetPlayerGrid == 1) {
        EmptyPlayerGrid(PuzzleImage + gridOffset + CellCount());
    }
    int position = gridOffset + 2 * CellCount();
    TakeTitle(position);
    TakeClues(position);
    NumberGrid();
}

}  // namespace

void ParsePuzzle() {
    CursorRow = 0;
    CursorCol = 0;
    ClearRecords();
    PuzzleWidth = SizeAt(widthOffset);
    PuzzleHeight = SizeAt(heightOffset);
    if (PuzzleWidth != PuzzleHeight) {
        return;
    }
    if (PuzzleWidth == 0) {
        PuzzleWidth = sizeWithoutPuzzle;
        PuzzleHeight = sizeWithoutPuzzle;
        return;
    }
    if (BoardFitsArrays()) {
        TakeContents();
    }
    if (!ComputeWordLengths()) {
        MessageBoxW(nullptr, u"Wow Bummer", u"Bummer", MB_OK);
    }
}
