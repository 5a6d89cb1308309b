#include "storage/open_puzzle.h"

#include <array>
#include <string>

#include "model/file_bytes.h"
#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "platform/common_dialogs.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "storage/letters.h"
#include "storage/paths.h"
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

bool TakeFirstFile(HWND owner, HDROP files, ChosenFile& chosen) {
    if (DragQueryFileW(files, 0, chosen.path, MAX_PATH) == 0) {
        MessageBoxW(owner,
                    u"The name of this file cannot be used: it is too long or has a backslash in "
                    u"it. Please rename or move the file.",
                    dialogTitle, MB_OK);
        return false;
    }
    const std::u16string_view path = chosen.path;
    CopyPath(path.substr(path.rfind(u'\\') + 1), chosen.name);
    if (const UINT count = DragQueryFileW(files, numberOfFiles, nullptr, 0); count > 1) {
        const std::u16string told = u"Quadrel opens one puzzle at a time. Of these " +
                                    DecimalText(static_cast<int>(count)) +
                                    u" files it takes the first.";
        MessageBoxW(owner, told.c_str(), dialogTitle, MB_OK);
    }
    return true;
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

// Where no letters can be saved, they are lost only when the player says so.
bool MayLetGo(HWND owner) {
    if (CurrentPuzzlePath[0] == 0 || SaveLetters()) {
        return true;
    }
    return MessageBoxW(owner,
                       u"The letters of this puzzle cannot be saved: the disk is full, or nothing "
                       u"may be written there. Open the other puzzle and lose them?",
                       dialogTitle, MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
}

// The reader says so itself when a file is no puzzle.
void TellIfUnreadable(HWND owner, const WCHAR* path) {
    std::array<char, 1> firstByte;
    if (ReadFileStart(path, firstByte) < 0) {
        MessageBoxW(owner, u"This file could not be opened.", dialogTitle, MB_OK);
    }
}

// The file is read before the chosen puzzle's letters are restored: when it turns out to be no
// puzzle, the letters and settings in play are still there.
void OpenChosenFile(HWND owner, const ChosenFile& chosen) {
    WCHAR path[MAX_PATH];
    CopyPath(chosen.path, path);
    if (!ReadPuzzleFile(path)) {
        TellIfUnreadable(owner, chosen.path);
        return;
    }
    ResetPlayerGrid = LoadLetters(chosen.path) ? 0 : 1;
    CopyPath(chosen.path, CurrentPuzzlePath);
    ParseWithRestoredGrid();
}

int OpenIfAgreed(HWND owner, const ChosenFile& chosen) {
    if (!ConfirmLoading(owner, chosen) || !IsPlayable(owner, chosen) || !MayLetGo(owner)) {
        return 0;
    }
    OpenChosenFile(owner, chosen);
    return 1;
}

}  // namespace

int OpenPuzzleFile(HWND owner) {
    ChosenFile chosen;
    return ChooseFile(owner, chosen) ? OpenIfAgreed(owner, chosen) : 0;
}

int OpenHandedFile(HWND owner, HDROP files) {
    ChosenFile chosen;
    return TakeFirstFile(owner, files, chosen) ? OpenIfAgreed(owner, chosen) : 0;
}
