#include "dialogs/download.h"

#include <string>
#include <vector>

#include "dialogs/downloader.h"
#include "dialogs/full_screen.h"
#include "dialogs/link_list.h"
#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/windows.h"
#include "resources/ids.h"

namespace {

// Live while the dialog is open.
HFONT headingFont = nullptr;

LRESULT AskList(HWND dialog, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageW(dialog, controlLinks, message, wParam, lParam);
}

void AddLink(HWND dialog, const std::u16string& link) {
    AskList(dialog, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(link.c_str()));
}

std::u16string LinkAt(HWND dialog, LRESULT line) {
    const auto number = static_cast<WPARAM>(line);
    std::u16string link(static_cast<std::size_t>(AskList(dialog, LB_GETTEXTLEN, number)), 0);
    AskList(dialog, LB_GETTEXT, number, reinterpret_cast<LPARAM>(link.data()));
    return link;
}

// False when there is no file of links yet; the default link is shown then.
bool LoadLinkList(HWND dialog) {
    std::vector<std::u16string> links;
    const bool read = ReadLinks(links);
    for (const std::u16string& link : links) {
        AddLink(dialog, link);
    }
    EnableWindow(GetDlgItem(dialog, controlLinks), TRUE);
    UpdateWindow(dialog);
    return read;
}

void SaveLinkList(HWND dialog) {
    std::vector<std::u16string> links;
    const LRESULT count = AskList(dialog, LB_GETCOUNT);
    for (LRESULT line = 0; line < count; ++line) {
        links.push_back(LinkAt(dialog, line));
    }
    WriteLinks(links);
}

void OpenDownload(HWND dialog) {
    headingFont = MakeBoldFont(dialog, controlDownloadHeading);
    SetControlFont(dialog, controlDownloadHeading, headingFont);
    LoadLinkList(dialog);
    FillScreen(dialog, wholeScreen);
}

// The focus comes first: the edit box selects its text when the keyboard comes to it.
void PutIntoEditBox(HWND dialog, const WCHAR* text) {
    HWND edit = GetDlgItem(dialog, controlLink);
    SetFocus(edit);
    SetWindowTextW(edit, u"");
    SetWindowTextW(edit, text);
}

void TakeSelectedLink(HWND dialog) {
    HWND list = GetDlgItem(dialog, controlLinks);
    SetFocus(list);
    const LRESULT line = AskList(dialog, LB_GETCURSEL);
    if (line == LB_ERR) {
        return;
    }
    AskList(dialog, LB_SETCURSEL, static_cast<WPARAM>(line));
    UpdateWindow(list);
    PutIntoEditBox(dialog, LinkAt(dialog, line).c_str());
}

// The focus leaves the edit box also when Enter was pressed there, and the soft input panel goes
// down.
void GetPuzzle(HWND dialog) {
    SetFocus(GetDlgItem(dialog, controlGet));
    WCHAR link[longestLink + 2];
    GetWindowTextW(GetDlgItem(dialog, controlLink), link, longestLink + 2);
    if (!FitsList(link)) {
        MessageBoxW(dialog, u"This link is too long: a link may have 259 characters.", u"Error",
                    MB_ICONINFORMATION);
        return;
    }
    if (DownloadPuzzle(dialog, link) == 0) {
        return;
    }
    SetFocus(GetDlgItem(dialog, controlLinks));
    constexpr auto fromTheFirst = static_cast<WPARAM>(-1);
    if (AskList(dialog, LB_FINDSTRINGEXACT, fromTheFirst, reinterpret_cast<LPARAM>(link)) ==
        LB_ERR) {
        AddLink(dialog, link);
    }
    UpdateWindow(dialog);
}

void DeleteSelectedLink(HWND dialog) {
    const LRESULT line = AskList(dialog, LB_GETCURSEL);
    if (line == LB_ERR) {
        return;
    }
    const int answer =
        MessageBoxW(dialog, u"Delete Link ?", u"New Game", MB_YESNO | MB_ICONQUESTION);
    if (answer == IDYES) {
        AskList(dialog, LB_DELETESTRING, static_cast<WPARAM>(line));
        UpdateWindow(dialog);
    }
}

void FollowEditBox(HWND dialog, int notification) {
    if (notification == EN_SETFOCUS) {
        SHSipPreference(dialog, SIP_UP);
    } else if (notification == EN_KILLFOCUS) {
        SHSipPreference(dialog, SIP_FORCEDOWN);
    }
}

void SaveAndClose(HWND dialog) {
    SaveLinkList(dialog);
    EndDialog(dialog, 1);
}

LRESULT HandleDownloadCommand(HWND dialog, int control, int notification) {
    switch (control) {
        case controlLinks:
            if (notification == LBN_SELCHANGE) {
                TakeSelectedLink(dialog);
            }
            return TRUE;
        case controlLink: FollowEditBox(dialog, notification); return TRUE;
        case controlGet: GetPuzzle(dialog); return TRUE;
        case controlDeleteLink: DeleteSelectedLink(dialog); return TRUE;
        case controlGetNew: PutIntoEditBox(dialog, u"http://"); return TRUE;
        case controlKeepLinks: SaveAndClose(dialog); return TRUE;
        case IDOK: EndDialog(dialog, 1); return TRUE;
        default: return FALSE;
    }
}

LRESULT DownloadProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG: OpenDownload(dialog); return TRUE;
        case WM_COMMAND: return HandleDownloadCommand(dialog, LOWORD(wParam), HIWORD(wParam));
        default: return FALSE;
    }
}

}  // namespace

void ShowDownload(HWND owner) {
    RunDialogBox(owner, dialogDownload, DownloadProc);
    DeleteObject(headingFont);
    headingFont = nullptr;
}
