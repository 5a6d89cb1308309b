#include "storage/open_puzzle.h"

#include <string>

#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "platform/common_dialogs.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "storage/paths.h"
#include "storage/progress.h"
#include "storage/restored_grid.h"

namespace {

constexpr const WCHAR* dialogTitle = u"Open File";

struct ChosenFile {
    WCHAR path[MAX_PATH] = {};
    WCHAR name[MAX_PATH] = {};
};

bool ChooseFile(HWND owner, ChosenFile& chosen) {
    OPENFILENAMEW request;
    request.hwndOwner = owner;
    request.lpstrFilter = u"Puzzle files\0*.puz\0";
    request.lpstrFile = chosen.path;
    request.nMaxFile = MAX_PATH;
    request.lpstrFileTitle = chosen.name;
    request.nMaxFileTitle = MAX_PATH;
    request.lpstrTitle = dialogTitle;
    request.Flags = OFN_EXPLORER;
    return GetOpenFileNameW(&request) != FALSE;
}

bool ConfirmLoading(HWND owner, const ChosenFile& chosen) {
    const std::u16string question =
        std::u16string(u"Do you want to load the puzzle ") + chosen.name + u" ?";
    return MessageBoxW(owner, question.c_str(), u"Confirm", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

// Looked at before the puzzle in play is let go. A file that tells no size is left to the reader,
// which has its own answer.
bool IsPlayable(HWND owner, const ChosenFile& chosen) {
    int width = 0;
    int height = 0;
    if (!PeekPuzzleSize(chosen.path, &width, &height)) {
        return true;
    }
    if (width != height) {
        const std::u16string reason = u"Quadrel plays square puzzles only. This one is " +
                                      DecimalText(width) + u" by " + DecimalText(height) + u".";
        MessageBoxW(owner, reason.c_str(), dialogTitle, MB_OK);
    } else if (width == 0) {
        MessageBoxW(owner, u"This file is not a puzzle that Quadrel can open.", dialogTitle, MB_OK);
    }
    return width == height && width != 0;
}

void SaveProgressOfCurrentPuzzle() {
    WCHAR path[MAX_PATH];
    if (CurrentPuzzlePath[0] != 0 && ProgressFilePath(CurrentPuzzlePath, path)) {
        SaveProgress(path);
    }
}

bool RestoreProgress(const WCHAR* puzzlePath) {
    WCHAR path[MAX_PATH];
    return ProgressFilePath(puzzlePath, path) && LoadProgress(path);
}

// The file is read before the chosen puzzle's letters are restored: when it turns out to be no
// puzzle, the letters and settings in play are still there.
void OpenChosenFile(const ChosenFile& chosen) {
    WCHAR path[MAX_PATH];
    SaveProgressOfCurrentPuzzle();
    CopyPath(chosen.path, path);
    if (!ReadPuzzleFile(path)) {
        return;
    }
    ResetPlayerGrid = RestoreProgress(chosen.path) ? 0 : 1;
    CopyPath(chosen.path, CurrentPuzzlePath);
    ParseWithRestoredGrid();
}

}  // namespace

int OpenPuzzleFile(HWND owner) {
    ChosenFile chosen;
    if (!ChooseFile(owner, chosen) || !ConfirmLoading(owner, chosen) ||
        !IsPlayable(owner, chosen)) {
        return 0;
    }
    OpenChosenFile(chosen);
    return 1;
}
