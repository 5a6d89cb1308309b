#include "dialogs/clue_list.h"

#include <string>

#include "app/view.h"
#include "dialogs/full_screen.h"
#include "model/puzzle.h"
#include "model/selection.h"
#include "platform/controls.h"
#include "platform/text.h"
#include "platform/windows.h"
#include "play/word_extent.h"
#include "resources/ids.h"

namespace {

constexpr int acrossTab = 0;
constexpr int downTab = 1;
constexpr int none = -1;

// Numbers of one digit get a second space, so that the texts of all lines stand below each other.
std::u16string ClueLine(const WordRecord& word, int tab) {
    const bool oneDigit = word.clueNumber < 10;
    std::u16string line = DecimalText(word.clueNumber) + (oneDigit ? u".  " : u". ");
    line += WidenText(ClueTable[static_cast<size_t>(word.clueIndex)]);
    line += tab == downTab ? u"  (" : u" (";
    return line + DecimalText(word.length) + u")";
}

void FillClueList(HWND dialog, int tab) {
    constexpr WPARAM extent = 300;
    HWND list = GetDlgItem(dialog, controlClues);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SendMessageW(list, LB_SETHORIZONTALEXTENT, extent, 0);
    for (const WordRecord& word : ListedWords(tab)) {
        if (word.clueIndex != none) {
            const std::u16string line = ClueLine(word, tab);
            SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
        }
    }
}

void AddTabs(HWND tabs) {
    TCITEM item{TCIF_TEXT, u"Across"};
    SendMessageW(tabs, TCM_INSERTITEM, acrossTab, reinterpret_cast<LPARAM>(&item));
    item.pszText = u"Down";
    SendMessageW(tabs, TCM_INSERTITEM, downTab, reinterpret_cast<LPARAM>(&item));
}

void OpenClueList(HWND dialog) {
    HWND tabs = GetDlgItem(dialog, controlClueTabs);
    AddTabs(tabs);
    ClueListTab = acrossTab;
    SendMessageW(tabs, TCM_SETCURSEL, acrossTab, 0);
    SetFocus(GetDlgItem(dialog, controlClues));
    FillClueList(dialog, acrossTab);
    FillScreen(dialog, wholeScreen);
}

void ChangeTab(HWND dialog) {
    const LRESULT tab = SendDlgItemMessageW(dialog, controlClueTabs, TCM_GETCURSEL, 0, 0);
    if (tab == acrossTab || tab == downTab) {
        ClueListTab = static_cast<int>(tab);
    }
    HWND list = GetDlgItem(dialog, controlClues);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SetFocus(list);
    FillClueList(dialog, ClueListTab);
}

// The line shows that it is chosen before the dialog closes.
LRESULT ShowChoice(HWND dialog) {
    HWND list = GetDlgItem(dialog, controlClues);
    SetFocus(list);
    const LRESULT line = SendMessageW(list, LB_GETCURSEL, 0, 0);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(line), 0);
    UpdateWindow(list);
    return line;
}

void ChooseClue(HWND dialog) {
    const LRESULT line = ShowChoice(dialog);
    if (line < 0 || line >= maxWords) {
        return;
    }
    ClueChosen = 1;
    Direction = ClueListTab;
    SelectCellOfNumber(ListedWords(ClueListTab)[static_cast<std::size_t>(line)].clueNumber);
    CloseDialogBox(dialog);
}

void HandleClueListCommand(HWND dialog, int control, int notification) {
    if (control == controlClues && notification == LBN_SELCHANGE) {
        ChooseClue(dialog);
    } else if (control == IDOK) {
        CloseDialogBox(dialog);
    }
}

void HandleNotice(HWND dialog, const NMHDR& notice) {
    if (notice.idFrom == controlClueTabs && notice.code == TCN_SELCHANGE) {
        ChangeTab(dialog);
    }
}

LRESULT ClueListProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: OpenClueList(dialog); return TRUE;
        case WM_NOTIFY: HandleNotice(dialog, *reinterpret_cast<const NMHDR*>(lParam)); return TRUE;
        case WM_COMMAND: HandleClueListCommand(dialog, LOWORD(wParam), HIWORD(wParam)); return TRUE;
        default: return FALSE;
    }
}

}  // namespace

void ShowClueList(HWND owner) {
    RunDialogBox(owner, dialogClueList, ClueListProc);
}
