#include "storage/letters.h"

#include <algorithm>

#include "model/file_bytes.h"
#include "model/path_buffer.h"
#include "platform/files.h"
#include "storage/paths.h"
#include "storage/progress.h"

namespace {

// Empty where there is no path.
struct Places {
    WCHAR beside[MAX_PATH] = {};
    WCHAR second[MAX_PATH] = {};

    explicit Places(const WCHAR* puzzlePath) {
        ProgressFilePath(puzzlePath, beside);
        SecondProgressFilePath(puzzlePath, second);
    }
};

}  // namespace

bool SaveLetters() {
    WCHAR path[MAX_PATH];
    if (!ProgressFilePath(CurrentPuzzlePath, path) || !SaveProgress(path)) {
        return SaveLettersInSecondPlace();
    }
    if (SecondProgressFilePath(CurrentPuzzlePath, path)) {
        DeleteFileW(path);
    }
    return true;
}

bool SaveLettersInSecondPlace() {
    WCHAR path[MAX_PATH];
    return SecondProgressFilePath(CurrentPuzzlePath, path) && SaveProgress(path);
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
