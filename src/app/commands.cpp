#include "app/commands.h"

#include "app/layout.h"
#include "app/repaint.h"
#include "app/view.h"
#include "model/selection.h"
#include "platform/windows.h"
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

void OpenAnotherPuzzle(HWND window) {
    if (OpenPuzzleFile(window) == 0) {
        return;
    }
    ComputeLayout(window);
    CursorRow = CursorCol = 0;
    RepaintFully(window);
}

}  // namespace

bool RunCommand(HWND window, int command) {
    switch (command) {
        case commandClose:
            CloseAsDialog(window);
            return true;
        case commandExit:
        case commandQuit:
            CloseProgram(window);
            return true;
        case commandOpen:
        case commandAvailable:
            OpenAnotherPuzzle(window);
            return true;
        default:
            return false;
    }
}
