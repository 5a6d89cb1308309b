#include "storage/start_up.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/layout.h"
#include "app/menu_bar.h"
#include "app/menu_checks.h"
#include "app/view.h"
#include "dialogs/about.h"
#include "dialogs/about_drawing.h"
#include "dialogs/board_colors.h"
#include "dialogs/clue_list.h"
#include "model/file_bytes.h"
#include "model/puzzle.h"
#include "model/puzzle_file.h"
#include "model/selection.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/resources.h"
#include "platform/windows.h"
#include "play/settings.h"
#include "storage/letters.h"
#include "storage/paths.h"
#include "storage/progress.h"
#include "storage/restored_grid.h"

namespace {

constexpr const WCHAR* cannotBeSaved =
    u"Your letters cannot be saved: the disk is full, or nothing may be written there. They are "
    u"kept while Quadrel runs; make room, and they will be saved.";

// What KeepState has written last, empty for nothing, and whether the player knows that it cannot.
std::string keptRecord;
bool playerKnows = false;

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

// The letters are newer where the state could not be written, or a crash came before that.
bool RestoreState() {
    WCHAR path[MAX_PATH];
    if (!StateFilePath(path) || !LoadProgress(path)) {
        return false;
    }
    const std::u16string puzzle = CurrentPuzzlePath;
    if (TimeOfLetters(puzzle.c_str()) > TimeWritten(path) && LoadLetters(puzzle.c_str())) {
        CopyPath(puzzle, CurrentPuzzlePath);
    }
    return true;
}

bool CanBePlayed(const WCHAR* path) {
    int width = 0;
    int height = 0;
    return PeekPuzzleSize(path, &width, &height) && width == height && width != 0;
}

// Files that cannot be played are passed over.
bool ReadFirstPuzzleIn(std::u16string_view folder) {
    WIN32_FIND_DATAW match;
    WCHAR path[MAX_PATH];
    PathInFolder(folder, u"*.puz", path);
    HFIND search = FindFirstFileW(path, &match);
    bool found = false;
    for (bool more = search != nullptr; more && !found; more = FindNextFileW(search, &match)) {
        found = PathInFolder(folder, match.cFileName, path) && CanBePlayed(path);
    }
    if (search != nullptr) {
        FindClose(search);
    }
    return found && ReadPuzzleFile(path) && CopyPath(path, CurrentPuzzlePath);
}

// False when there is none to be read.
bool ReadFallbackPuzzle() {
    if (!ReadFirstPuzzleIn(documentsFolder) && !ReadFirstPuzzleIn(puzzlesFolder)) {
        MessageBoxW(nullptr, u"Please choose a puzzle file from the Available Puzzles option.",
                    u"Choose File", MB_OK);
        return false;
    }
    // The restored letters, if any, are another puzzle's.
    ResetPlayerGrid = 1;
    return true;
}

// The letters of a puzzle that is not there now, on a drive that is not plugged in, wait for it.
bool ReadPuzzleOfState() {
    const bool playable = CanBePlayed(CurrentPuzzlePath);
    if (!playable && ResetPlayerGrid == 0) {
        SaveLettersInSecondPlace();
    }
    return ReadPuzzleFile(CurrentPuzzlePath) && playable;
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
    keptRecord.clear();
    ResetPlayerGrid = RestoreState() ? 0 : 1;
    if (!ReadPuzzleOfState() && !ReadFallbackPuzzle()) {
        return 0;
    }
    ParseWithRestoredGrid();
    UpdateMenuChecks();
    ComputeLayout(window);
    return 1;
}

void SaveState() {
    WCHAR path[MAX_PATH];
    if (!StateFilePath(path) || !SaveProgress(path)) {
        SaveLetters();
    }
}

bool KeepState() {
    const bool missed = AwaitFiles() != 0;
    const std::string record = RecordOfPlay();
    if (!missed && record == keptRecord) {
        return false;
    }
    WCHAR path[MAX_PATH];
    // A player who was told once is not told again before a write has certainly gone well.
    const Writing how = missed || playerKnows ? Writing::AtOnce : Writing::BehindThePlayersBack;
    const bool kept = StateFilePath(path) && WriteWholeFile(path, record, how);
    keptRecord = kept ? record : "";
    if (kept || SaveLetters()) {
        playerKnows = false;
    } else if (!std::exchange(playerKnows, true)) {
        MessageBoxW(MainWindow, cannotBeSaved, u"Save", MB_OK | MB_ICONINFORMATION);
    }
    return kept && how == Writing::BehindThePlayersBack;
}
