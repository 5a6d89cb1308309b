#include "dialogs/quick_help.h"

#include "app/view.h"
#include "dialogs/full_screen.h"
#include "dialogs/help_programs.h"
#include "platform/windows.h"
#include "resources/ids.h"

namespace {

void OpenQuickHelp(HWND dialog) {
    LowerInputPanel();
    FillScreen(dialog, wholeScreenWithoutMenuBar);
}

LRESULT HandleQuickHelpCommand(HWND dialog, int command) {
    switch (command) {
        case controlHelpOpen: OpenHelp(u"OvelQuadrel.htm"); return TRUE;
        case controlHelpClose: CloseDialogBox(dialog); return TRUE;
        case IDOK: EndDialog(dialog, 1); return TRUE;
        default: return FALSE;
    }
}

LRESULT QuickHelpProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG: OpenQuickHelp(dialog); return TRUE;
        case WM_COMMAND: return HandleQuickHelpCommand(dialog, LOWORD(wParam));
        default: return FALSE;
    }
}

}  // namespace

void ShowQuickHelp(HWND owner) {
    RunDialogBox(owner, dialogQuickHelp, QuickHelpProc);
}
