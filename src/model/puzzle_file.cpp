#include "model/puzzle_file.h"

#include <array>
#include <cstring>
#include <string>

#include "model/file_bytes.h"
#include "model/numbering.h"
#include "model/path_buffer.h"
#include "model/puzzle.h"
#include "platform/dialogs.h"

namespace {

// A file is judged here before it takes the place of the puzzle in play.
struct Candidate {
    std::array<char, puzzleImageSize> bytes{};
    int length = -1;  // -1 when the file could not be opened

    explicit Candidate(const WCHAR* path) : length(ReadFileStart(path, bytes)) {
    }
    int Width() const {
        return static_cast<signed char>(bytes[widthOffset]);
    }
    int Height() const {
        return static_cast<signed char>(bytes[heightOffset]);
    }
    // Both sizes are at most 127, so the products do not overflow.
    bool HoldsGrids() const {
        return length >= gridOffset && Width() >= 0 && Height() >= 0 &&
               Width() * Height() <= maxCells && length >= gridOffset + 2 * Width() * Height();
    }
    bool IsPlayable() const {
        if (!HoldsGrids()) {
            return false;
        }
        const WordCount words = CountWords(bytes.data() + gridOffset, Width(), Height());
        return words.across <= maxWords && words.down <= maxWords &&
               words.across + words.down <= maxClues;
    }
};

bool IsLocked(const char* image) {
    constexpr int lockOffset = 50;
    return image[lockOffset] != 0 || image[lockOffset + 1] != 0;
}

}  // namespace

bool ReadPuzzleFile(WCHAR* path) {
    const Candidate candidate(path);
    if (candidate.IsPlayable()) {
        std::memcpy(PuzzleImage, candidate.bytes.data(), candidate.bytes.size());
        return true;
    }
    CopyPath(u"Could not open the file", path);
    if (candidate.length >= 0) {
        MessageBoxW(nullptr, u"This file is not a puzzle that Quadrel can open.", u"Open File",
                    MB_OK);
    }
    return false;
}

bool PeekPuzzleSize(const WCHAR* path, int* width, int* height) {
    const Candidate candidate(path);
    if (!candidate.IsPlayable()) {
        return false;
    }
    *width = candidate.Width();
    *height = candidate.Height();
    return true;
}

PuzzleIdentity IdentityOfFile(const WCHAR* path) {
    const Candidate candidate(path);
    const int side = candidate.Width();
    if (!candidate.IsPlayable() || side != candidate.Height() || side == 0) {
        return {};
    }
    const char* image = candidate.bytes.data();
    return {side, IsLocked(image), {image + gridOffset, static_cast<std::size_t>(side * side)}};
}

PuzzleIdentity IdentityInPlay() {
    return {PuzzleWidth,
            IsLocked(PuzzleImage),
            {SolutionGrid, static_cast<std::size_t>(PuzzleWidth * PuzzleHeight)}};
}

bool IsSamePuzzle(const PuzzleIdentity& puzzle, const PuzzleIdentity& other) {
    if (puzzle.solution.size() != other.solution.size()) {
        return false;
    }
    std::size_t agreeing = 0;
    for (std::size_t i = 0; i < puzzle.solution.size(); ++i) {
        const char cell = puzzle.solution[i];
        if ((cell == blackSquare) != (other.solution[i] == blackSquare)) {
            return false;
        }
        agreeing += cell == other.solution[i] ? 1 : 0;
    }
    return puzzle.isLocked || other.isLocked || 2 * agreeing > puzzle.solution.size();
}
