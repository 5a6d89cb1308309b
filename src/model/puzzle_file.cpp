#include "model/puzzle_file.h"

#include <array>
#include <cstring>
#include <functional>
#include <numeric>

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

std::string Solution(int width, int height, const char* cells) {
    std::string solution = {static_cast<char>(width), static_cast<char>(height)};
    return solution.append(cells, static_cast<std::size_t>(width * height));
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

std::string SolutionOfFile(const WCHAR* path) {
    const Candidate candidate(path);
    if (!candidate.IsPlayable() || candidate.Width() != candidate.Height() ||
        candidate.Width() == 0) {
        return {};
    }
    return Solution(candidate.Width(), candidate.Height(), candidate.bytes.data() + gridOffset);
}

std::string SolutionInPlay() {
    return Solution(PuzzleWidth, PuzzleHeight, SolutionGrid);
}

bool IsSamePuzzle(const std::string& solution, const std::string& other) {
    if (solution.size() != other.size()) {
        return false;
    }
    const std::size_t agreeing =
        std::inner_product(solution.begin(), solution.end(), other.begin(), std::size_t{0},
                           std::plus<>(), std::equal_to<>());
    return 2 * agreeing > solution.size();
}
