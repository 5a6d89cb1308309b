#include "storage/letters.h"

#include <algorithm>
#include <string>

#include "model/file_bytes.h"
#include "model/path_buffer.h"
#include "platform/files.h"
#include "storage/paths.h"
#include "storage/progress.h"

namespace {

// Names of files tell puzzles apart by a number: the paths themselves may be too long for one.
std::u16string NameOf(std::u16string_view puzzlePath) {
    constexpr std::uint64_t start = 14695981039346656037U;
    constexpr std::uint64_t factor = 1099511628211U;
    std::uint64_t number = start;
    for (char16_t unit : puzzlePath) {
        number = (number ^ unit) * factor;
    }
    std::u16string name;
    for (; number != 0; number >>= 4) {
        name += u"0123456789abcdef"[number & 0xF];
    }
    return name + u".dat";
}

bool SecondPlaceOf(const WCHAR* puzzlePath, WCHAR* buffer) {
    return PathInFolder(ProgramFolder, NameOf(puzzlePath), buffer);
}

// Empty where there is no path.
struct Places {
    WCHAR beside[MAX_PATH] = {};
    WCHAR second[MAX_PATH] = {};

    explicit Places(const WCHAR* puzzlePath) {
        ProgressFilePath(puzzlePath, beside);
        SecondPlaceOf(puzzlePath, second);
    }
};

}  // namespace

bool SaveLetters() {
    WCHAR path[MAX_PATH];
    if (!ProgressFilePath(CurrentPuzzlePath, path) || !SaveProgress(path)) {
        return SaveLettersInSecondPlace();
    }
    if (SecondPlaceOf(CurrentPuzzlePath, path)) {
        DeleteFileW(path);
    }
    return true;
}

bool SaveLettersInSecondPlace() {
    WCHAR path[MAX_PATH];
    return SecondPlaceOf(CurrentPuzzlePath, path) && SaveProgress(path);
}

bool LoadLetters(const WCHAR* puzzlePath) {
    Places places(puzzlePath);
    const bool secondIsNewer = TimeWritten(places.second) > TimeWritten(places.beside);
    WCHAR* newer = secondIsNewer ? places.second : places.beside;
    WCHAR* older = secondIsNewer ? places.beside : places.second;
    return LoadProgress(newer) || LoadProgress(older);
}

std::uint64_t TimeOfLetters(const WCHAR* puzzlePath) {
    const Places places(puzzlePath);
    return std::max(TimeWritten(places.beside), TimeWritten(places.second));
}
