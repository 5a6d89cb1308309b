#include "app/commands.h"

#include <algorithm>
#include <iterator>

#include "app/layout.h"
#include "app/menu_checks.h"
#include "app/repaint.h"
#include "app/view.h"
#include "board/checker.h"
#include "board/hints.h"
#include "dialogs/about.h"
#include "dialogs/about_drawing.h"
#include "dialogs/clue_list.h"
#include "dialogs/download.h"
#include "dialogs/preferences.h"
#include "dialogs/quick_help.h"
#include "keyboard/keyboard_visibility.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "platform/windows.h"
#include "play/fill_clear.h"
#include "play/settings.h"
#include "play/word_jump.h"
#include "resources/ids.h"
#include "storage/open_puzzle.h"

namespace {

void CloseProgram(HWND window) {
    SendMessageW(window, WM_CLOSE, 0, 0);
}

void CloseAsDialog(HWND window) {
    SendMessageW(window, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(window));
    CloseProgram(window);
}

void ShowAnotherPuzzle(HWND window) {
    ComputeLayout(window);
    CursorRow = CursorCol = 0;
    RepaintFully(window);
}

void OpenAnotherPuzzle(HWND window) {
    if (OpenPuzzleFile(window) != 0) {
        ShowAnotherPuzzle(window);
    }
}

void CheckAndCopy(HWND window) {
    CheckPuzzle(window);
    CopyViewToScreen(window);
}

void TurnDirection(HWND window) {
    ToggleDirection();
    PaintBoardAndSelection(window);
    ShowBoard(window);
}

void ToggleKeyboard(HWND window) {
    if (KeyboardVisible == 1) {
        HideKeyboard(window);
    } else {
        ShowKeyboard(window);
    }
}

// False when no size has this command.
bool ChangeSize(HWND window, int command) {
    const BoardSize* size =
        std::find_if(std::begin(boardSizes), std::end(boardSizes),
                     [command](const BoardSize& one) { return one.command == command; });
    if (size == std::end(boardSizes)) {
        return false;
    }
    ChooseSize(*size);
    CursorRow = CursorCol = 0;
    UpdateMenuChecks();
    ComputeLayout(window);
    Repaint(window);
    return true;
}

void ToggleAutoSkip() {
    AutoSkip = 1 - AutoSkip;
    UpdateMenuChecks();
}

void ToggleNumbers(HWND window) {
    ShowNumbers = 1 - ShowNumbers;
    UpdateMenuChecks();
    RepaintFully(window);
}

void ChangeGrid(HWND window, void (*change)()) {
    change();
    RepaintFully(window);
}

void ChangePreferences(HWND window) {
    ShowPreferences(window);
    ComputeLayout(window);
    PaintBoardAndSelection(window);
    ShowBoard(window);
}

void ShowAboutAnew(HWND window) {
    ResetLogoPieces();
    ShowAbout(window);
}

// A stray Enter must not cost a puzzle's letters.
void ClearPuzzleIfSure(HWND window) {
    const int answer =
        MessageBoxW(window, u"Do you want to clear the puzzle ? This cannot be undone.",
                    u"Are You Sure?", MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2);
    if (answer == IDYES) {
        ChangeGrid(window, ClearPuzzle);
    }
}

void ShowPuzzleInfo(HWND window) {
    MessageBoxW(window, WidenText(TitleText).c_str(), u"Puzzle Information", MB_OK);
}

}  // namespace

bool RunCommand(HWND window, int command) {
    switch (command) {
        case commandClose: CloseAsDialog(window); return true;
        case commandExit:
        case commandQuit: CloseProgram(window); return true;
        case commandOpen:
        case commandAvailable: OpenAnotherPuzzle(window); return true;
        case commandCheck: CheckAndCopy(window); return true;
        case commandToggleDirection: TurnDirection(window); return true;
        case commandKeyboard: ToggleKeyboard(window); return true;
        case commandMainMenu:
        case commandSizeMenu: UpdateMenuChecks(); return true;
        case commandAutoSkip: ToggleAutoSkip(); return true;
        case commandNumbers: ToggleNumbers(window); return true;
        case commandFillLetter: ChangeGrid(window, FillLetter); return true;
        case commandFillWord: ChangeGrid(window, FillWord); return true;
        case commandFillPuzzle: ChangeGrid(window, FillPuzzle); return true;
        case commandClearLetter: ChangeGrid(window, ClearLetter); return true;
        case commandClearWord: ChangeGrid(window, ClearWord); return true;
        case commandClearPuzzle: ClearPuzzleIfSure(window); return true;
        case commandHintLetter: ShowLetterSolution(window); return true;
        case commandHintWord: ShowWordSolution(window); return true;
        case commandHintPuzzle: ShowPuzzleSolution(window); return true;
        case commandClueList: ShowClueList(window); return true;
        case commandPreferences: ChangePreferences(window); return true;
        case commandHelp: ShowQuickHelp(window); return true;
        case commandAbout: ShowAboutAnew(window); return true;
        case commandDownload: ShowDownload(window); return true;
        case commandPuzzleInfo: ShowPuzzleInfo(window); return true;
        default: return ChangeSize(window, command);
    }
}

void OpenHandedPuzzle(HWND window, HDROP files) {
    if (OpenHandedFile(window, files) != 0) {
        ShowAnotherPuzzle(window);
    }
    DragFinish(files);
}
