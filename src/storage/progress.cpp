#include "storage/progress.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <optional>
#include <string>
#include <string_view>

#include "model/file_bytes.h"
#include "model/path_buffer.h"
#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "platform/files.h"
#include "platform/text.h"
#include "play/settings.h"
#include "storage/paths.h"

namespace {

constexpr std::size_t recordSize = 4096;
using ProgressRecord = std::array<char, recordSize>;

// From the byte after the path's zero: height before width, then the cells.
constexpr std::size_t heightSlot = 0;
constexpr std::size_t widthSlot = 3;
constexpr std::size_t cellsSlot = 6;

// From the byte after the last cell.
constexpr std::size_t magnificationSlot = 1;
constexpr std::size_t autoSkipSlot = 3;
constexpr std::size_t showNumbersSlot = 5;
constexpr std::size_t backgroundColorSlot = 7;
constexpr std::size_t squareColorSlot = 19;
constexpr std::size_t colorPartWidth = 4;

// The longest path takes three bytes a character, and a record ends 31 bytes after the cells.
static_assert(3 * (MAX_PATH - 1) + 1 + cellsSlot + maxCells + 31 <= recordSize);

bool IsRecordableSize(int size) {
    return size >= 1 && size <= maxSide;
}

void PutNumber(ProgressRecord& record, std::size_t offset, int number) {
    char* slot = record.data() + offset;
    std::to_chars(slot, record.data() + record.size(), number);
}

void PutColor(ProgressRecord& record, std::size_t offset, COLORREF color) {
    PutNumber(record, offset, GetRValue(color));
    PutNumber(record, offset + colorPartWidth, GetGValue(color));
    PutNumber(record, offset + 2 * colorPartWidth, GetBValue(color));
}

// A download may have put another puzzle in the place of the one in play, whose letters must not be
// found there. A file that cannot be played now may come back.
bool LettersHaveTheirPuzzle() {
    const PuzzleIdentity puzzle = IdentityOfFile(CurrentPuzzlePath);
    return puzzle.side == 0 || IsSamePuzzle(puzzle, IdentityInPlay());
}

// Returns the offset after the last cell. A file that is not square can leave sizes behind that no
// record holds: what is saved then, as for letters without a puzzle, is the bare board of a start
// without a puzzle, so that the settings still survive.
std::size_t PutBoard(ProgressRecord& record, std::size_t offset) {
    const bool recordable =
        IsRecordableSize(PuzzleWidth) && IsRecordableSize(PuzzleHeight) && LettersHaveTheirPuzzle();
    const int height = recordable ? PuzzleHeight : 15;
    const int width = recordable ? PuzzleWidth : 15;
    const auto cellCount = static_cast<std::size_t>(height * width);
    PutNumber(record, offset + heightSlot, height);
    PutNumber(record, offset + widthSlot, width);
    if (recordable) {
        std::copy_n(PlayerGrid, cellCount, record.data() + offset + cellsSlot);
    }
    return offset + cellsSlot + cellCount;
}

void PutSettings(ProgressRecord& record, std::size_t cellsEnd) {
    const auto magnification = &ChosenSize() - boardSizes;
    PutNumber(record, cellsEnd + magnificationSlot, static_cast<int>(magnification));
    PutNumber(record, cellsEnd + autoSkipSlot, AutoSkip ? 1 : 0);
    PutNumber(record, cellsEnd + showNumbersSlot, ShowNumbers ? 1 : 0);
    PutColor(record, cellsEnd + backgroundColorSlot, BackgroundColor);
    PutColor(record, cellsEnd + squareColorSlot, SquareColor);
}

ProgressRecord BuildRecord() {
    ProgressRecord record{};
    const std::string path = NarrowPath(CurrentPuzzlePath);
    std::copy(path.begin(), path.end(), record.begin());
    PutSettings(record, PutBoard(record, path.size() + 1));
    return record;
}

// Nothing when the record ends before the number does. No digits are 0; a number too large for any
// field stays too large.
std::optional<int> NumberAt(std::string_view record, std::size_t offset) {
    if (offset >= record.size()) {
        return std::nullopt;
    }
    const char* end = record.data() + record.size();
    int number = 0;
    const auto [stop, error] = std::from_chars(record.data() + offset, end, number);
    if (stop == end) {
        return std::nullopt;
    }
    return error == std::errc::result_out_of_range ? INT_MAX : number;
}

struct SavedBoard {
    std::u16string path;
    int height = 0;
    int width = 0;
    std::string_view cells;
    std::size_t cellsEnd = 0;
};

std::optional<SavedBoard> FindBoard(std::string_view record) {
    const std::size_t pathLength = record.find('\0');
    if (pathLength == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t sizes = pathLength + 1;
    SavedBoard board;
    board.path = WidenPath(record.substr(0, pathLength));
    board.height = NumberAt(record, sizes + heightSlot).value_or(0);
    board.width = NumberAt(record, sizes + widthSlot).value_or(0);
    if (board.path.size() >= MAX_PATH || !IsRecordableSize(board.height) ||
        !IsRecordableSize(board.width)) {
        return std::nullopt;
    }
    const auto cellCount = static_cast<std::size_t>(board.height * board.width);
    board.cellsEnd = sizes + cellsSlot + cellCount;
    if (board.cellsEnd > record.size()) {
        return std::nullopt;
    }
    board.cells = record.substr(sizes + cellsSlot, cellCount);
    return board;
}

// Besides letters the player may have revealed digits, signs and accented letters; only what no
// puzzle shows is dropped.
char RestoredCell(char cell) {
    const auto byte = static_cast<unsigned char>(cell);
    return byte < 0x20 || byte == 0x7F ? emptyCell : cell;
}

// The cells after the last one are emptied, so that a larger puzzle under the same name does not
// show letters of the puzzle that was left.
void RestoreBoard(const SavedBoard& board) {
    CopyPath(board.path, CurrentPuzzlePath);
    PuzzleHeight = board.height;
    PuzzleWidth = board.width;
    char* end = std::transform(board.cells.begin(), board.cells.end(), PlayerGrid, RestoredCell);
    std::fill(end, std::end(PlayerGrid), emptyCell);
}

void RestoreMagnification(std::optional<int> number) {
    if (number && *number >= 0 && *number < std::ssize(boardSizes)) {
        ChooseSize(boardSizes[*number]);
    }
}

void RestoreFlag(int& flag, std::optional<int> number) {
    if (number == 0 || number == 1) {
        flag = *number;
    }
}

void RestoreColor(COLORREF& color, std::string_view record, std::size_t offset) {
    const auto red = NumberAt(record, offset);
    const auto green = NumberAt(record, offset + colorPartWidth);
    const auto blue = NumberAt(record, offset + 2 * colorPartWidth);
    if (red && green && blue) {
        color = RGB(*red, *green, *blue);
    }
}

void RestoreSettings(std::string_view record, std::size_t cellsEnd) {
    RestoreMagnification(NumberAt(record, cellsEnd + magnificationSlot));
    RestoreFlag(AutoSkip, NumberAt(record, cellsEnd + autoSkipSlot));
    RestoreFlag(ShowNumbers, NumberAt(record, cellsEnd + showNumbersSlot));
    RestoreColor(BackgroundColor, record, cellsEnd + backgroundColorSlot);
    RestoreColor(SquareColor, record, cellsEnd + squareColorSlot);
}

}  // namespace

std::string RecordOfPlay() {
    const ProgressRecord record = BuildRecord();
    return {record.data(), record.size()};
}

bool SaveProgress(WCHAR* path) {
    if (WriteWholeFile(path, RecordOfPlay())) {
        return true;
    }
    CopyPath(u"Could not open quadrel.dat", path);
    return false;
}

bool LoadProgress(WCHAR* path) {
    ProgressRecord bytes;
    const int length = ReadFileStart(path, bytes);
    const std::string_view record(bytes.data(), static_cast<std::size_t>(std::max(length, 0)));
    const std::optional<SavedBoard> board = FindBoard(record);
    if (!board) {
        CopyPath(u"Could not open User", path);
        return false;
    }
    RestoreBoard(*board);
    RestoreSettings(record, board->cellsEnd);
    return true;
}
