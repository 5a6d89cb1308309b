#include "storage/start_up.h"

#include <algorithm>
#include <string_view>

#include "app/layout.h"
#include "app/menu_bar.h"
#include "app/menu_checks.h"
#include "app/view.h"
#include "dialogs/about.h"
#include "dialogs/about_drawing.h"
#include "dialogs/board_colors.h"
#include "dialogs/clue_list.h"
#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "model/selection.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/resources.h"
#include "platform/windows.h"
#include "play/settings.h"
#include "storage/paths.h"
#include "storage/progress.h"
#include "storage/restored_grid.h"

namespace {

constexpr std::u16string_view stateFileName = u"quadrel.dat";

void SetDefaultView(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    TapHoldActive = 0;
    ShowSolution = 0;
    CreateOffscreenBuffer(window, client.right, client.bottom);
    KeyboardVisible = 0;
    ClueChosen = 0;
    CellSize = 1;
    BoardLeft = BottomReserve = ScrollX = ScrollY = 0;
    ShellActivateInfo = {};
    ShellActivateInfo.cbSize = sizeof ShellActivateInfo;
    SipInfo = {};
    SipInfo.cbSize = sizeof SipInfo;
}

void SetDefaultDialogs() {
    AboutAnimating = 1;
    ClueListTab = 0;
    ResetLogoPieces();
}

void SetDefaultSettings() {
    ChooseSize(boardSizes[0]);
    AutoSkip = 0;
    ShowNumbers = 0;
    SetUpColorChoosers();
}

void SetDefaultPuzzle() {
    constexpr int usualSize = 15;
    Direction = 0;
    CursorRow = CursorCol = 0;
    PuzzleHeight = PuzzleWidth = usualSize;
    ResetPlayerGrid = 1;
    CurrentPuzzlePath[0] = 0;
    // No cell has a word, or a clue to show, before a puzzle is parsed.
    std::fill(std::begin(Cells), std::end(Cells), CellRecord{-1, -1, -1});
}

// A program file of another name still lies in its folder.
void FindProgramFolder() {
    constexpr std::u16string_view programName = u"Quadrel.exe";
    GetModuleFileNameW(&programResources, ProgramFolder, MAX_PATH);
    const std::u16string_view path(ProgramFolder);
    const size_t name = path.find(programName);
    const size_t lastSeparator = path.rfind(u'\\');
    ProgramFolder[name != path.npos ? name : lastSeparator + 1] = 0;
}

bool StateFilePath(WCHAR* buffer) {
    return PathInFolder(ProgramFolder, stateFileName, buffer);
}

bool RestoreState() {
    WCHAR path[MAX_PATH];
    return StateFilePath(path) && LoadProgress(path);
}

// The first puzzle in the documents; false when there is none to be read.
bool ReadFallbackPuzzle() {
    WIN32_FIND_DATAW match;
    WCHAR path[MAX_PATH];
    PathInFolder(documentsFolder, u"*.puz", path);
    HFIND search = FindFirstFileW(path, &match);
    if (search == nullptr) {
        MessageBoxW(nullptr, u"Please choose a puzzle file from the Available Puzzles option.",
                    u"Choose File", MB_OK);
        return false;
    }
    FindClose(search);
    const bool isFile = (match.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    if (!isFile || !PathInFolder(documentsFolder, match.cFileName, path) || !ReadPuzzleFile(path)) {
        return false;
    }
    // The restored letters, if any, are another puzzle's.
    ResetPlayerGrid = 1;
    return CopyPath(path, CurrentPuzzlePath);
}

}  // namespace

int InitializeGame(HWND window) {
    MenuBar = CreateMenuBar(window);
    SetDefaultView(window);
    SetDefaultDialogs();
    SetDefaultSettings();
    SetDefaultPuzzle();
    FindProgramFolder();
    CreateDirectoryW(puzzlesFolder.data(), nullptr);
    ResetPlayerGrid = RestoreState() ? 0 : 1;
    if (!ReadPuzzleFile(CurrentPuzzlePath) && !ReadFallbackPuzzle()) {
        return 0;
    }
    ParseWithRestoredGrid();
    UpdateMenuChecks();
    ComputeLayout(window);
    return 1;
}

void SaveState() {
    WCHAR path[MAX_PATH];
    if (StateFilePath(path)) {
        SaveProgress(path);
    }
}
