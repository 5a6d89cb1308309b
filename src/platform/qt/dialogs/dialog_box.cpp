// Dialog boxes: made from their templates, run by a message loop of their own.
//
// Supported: modal dialogs that fill the handheld's screen. Left out: modeless dialogs, dialogs
// inside dialogs, the template's face (its size counts), mnemonics.
#include <algorithm>
#include <memory>
#include <vector>

#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/controls/control.h"
#include "platform/qt/controls/dialog_units.h"
#include "platform/qt/dialogs/color_chooser.h"
#include "platform/qt/dialogs/dialog_view.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/host/window_stack.h"
#include "platform/qt/surface/drawing_objects.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/keep_state.h"
#include "platform/qt/window/notices.h"
#include "platform/windows.h"

namespace {

struct Dialog {
    HWND window = nullptr;
    DLGPROC procedure = nullptr;
    HFONT font = nullptr;
    std::vector<std::unique_ptr<Control>> controls;
    bool ended = false;
    LRESULT result = 0;
};

// The newest last.
std::vector<Dialog*> dialogs;

Dialog* FindDialog(HWND window) {
    const auto found = std::find_if(dialogs.begin(), dialogs.end(), [window](const Dialog* each) {
        return each->window == window;
    });
    return found == dialogs.end() ? nullptr : *found;
}

DialogView* ViewOf(const Dialog& dialog) {
    return qobject_cast<DialogView*>(dialog.window->widget.data());
}

LRESULT DialogWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Dialog* dialog = FindDialog(window);
    const LRESULT answer =
        dialog == nullptr ? 0 : dialog->procedure(window, message, wParam, lParam);
    // The loop that runs a dialog destroys it.
    return answer != 0 || message == WM_CLOSE ? answer
                                              : DefWindowProcW(window, message, wParam, lParam);
}

HFONT MakeFont(const DialogResource& resource) {
    constexpr int dotsPerInch = 96;
    constexpr int pointsPerInch = 72;
    LOGFONTW description;
    description.lfHeight = -(resource.fontPoints * dotsPerInch + pointsPerInch / 2) / pointsPerInch;
    const std::u16string_view face(resource.fontFace);
    face.copy(description.lfFaceName, LF_FACESIZE - 1);
    return CreateFontIndirectW(&description);
}

std::unique_ptr<Control> MakeControl(HINSTANCE instance, HWND dialog, QWidget* view,
                                     const ControlResource& resource) {
    switch (resource.kind) {
        case ControlKind::Static: return MakeStatic(dialog, resource, view);
        case ControlKind::Picture: return MakePicture(dialog, resource, view, instance);
        case ControlKind::ListBox: return MakeListBox(dialog, resource, view);
        case ControlKind::TabControl: return MakeTabControl(dialog, resource, view);
        case ControlKind::EditBox: return MakeEditBox(dialog, resource, view);
        default: return MakeButton(dialog, resource, view);
    }
}

void PlaceControls(const Dialog& dialog) {
    for (const auto& control : dialog.controls) {
        control->Place();
    }
}

// As large as its template, but never larger than the screen has room.
RECT StartArea(const DialogResource& resource) {
    constexpr RECT most = DialogArea(false);
    return {most.left, most.top,
            std::min<LONG>(most.right, most.left + PixelsAcross(resource.width)),
            std::min<LONG>(most.bottom, most.top + PixelsDown(resource.height))};
}

void CloseDialogs() {
    const std::vector<Dialog*> present = dialogs;
    for (auto dialog = present.rbegin(); dialog != present.rend(); ++dialog) {
        SendMessageW((*dialog)->window, WM_COMMAND, IDOK, 0);
        if (!(*dialog)->ended) {
            EndDialog((*dialog)->window, -1);
        }
    }
}

void OpenDialog(Dialog& dialog, HINSTANCE instance, const DialogResource& resource) {
    dialog.font = MakeFont(resource);
    dialog.window = new Window;
    dialog.window->title = resource.title;
    dialog.window->procedure = DialogWindowProc;
    dialog.window->isDialog = true;
    dialogs.push_back(&dialog);
    auto* view = new DialogView(&Host(), dialog.window, [&dialog] { PlaceControls(dialog); });
    PutOnTop(dialog.window, StartArea(resource), view);
    for (const ControlResource& control : resource.controls) {
        dialog.controls.push_back(MakeControl(instance, dialog.window, view, control));
        dialog.controls.back()->font = dialog.font;
    }
    PlaceControls(dialog);
}

void PaintBackground(const Dialog& dialog) {
    const LRESULT answer = SendMessageW(dialog.window, WM_CTLCOLORDLG, 0, 0);
    if (auto* brush = reinterpret_cast<HBRUSH>(answer)) {
        RECT client;
        GetClientRect(dialog.window, &client);
        dialog.window->surface->Draw(FillMark{client, brush->color});
    }
}

void StartDialog(const Dialog& dialog, LPARAM parameter) {
    ShowWindow(dialog.window, SW_SHOW);
    PaintBackground(dialog);
    const auto first =
        dialog.controls.empty() ? nullptr : static_cast<HWND>(dialog.controls.front().get());
    SendMessageW(dialog.window, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), parameter);
    if (!ViewOf(dialog)->HasFocusInside()) {
        ViewOf(dialog)->MoveFocus(true);
    }
}

void EnableProgram(HWND owner, bool enabled) {
    Host().EnableMenuBar(enabled);
    EnableWindow(owner, enabled);
}

void RunDialog(const Dialog& dialog) {
    MSG message;
    while (!dialog.ended && IsLiveWindow(dialog.window)) {
        if (!GetMessageW(&message, nullptr, 0, 0)) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        DispatchMessageW(&message);
    }
}

void CloseDialog(Dialog& dialog, HWND owner) {
    // While the dialog is still there, so that a control hears that it loses the focus.
    EnableProgram(owner, true);
    SetFocus(owner);
    SetActive(dialog.window, false);
    DestroyWindow(dialog.window);
    dialog.controls.clear();
    dialogs.erase(std::find(dialogs.begin(), dialogs.end(), &dialog));
    DeleteObject(dialog.font);
    ReturnToTopWindow();
    KeepStateSoon();
}

}  // namespace

LRESULT DialogBoxIndirectParamW(HINSTANCE instance, HGLOBAL resource, HWND owner, DLGPROC procedure,
                                LPARAM parameter) {
    constexpr LRESULT notOpened = -1;
    if (resource == nullptr || EndingAsked()) {
        return notOpened;
    }
    closeOpenDialogs = CloseDialogs;
    DropInputOf(owner);
    SetActive(owner, false);
    EnableProgram(owner, false);
    Dialog dialog;
    dialog.procedure = procedure;
    OpenDialog(dialog, instance, *resource);
    StartDialog(dialog, parameter);
    RunDialog(dialog);
    CloseDialog(dialog, owner);
    return dialog.ended ? dialog.result : notOpened;
}

BOOL EndDialog(HWND window, LRESULT result) {
    Dialog* dialog = FindDialog(window);
    if (dialog == nullptr) {
        return EndColorChooser(window);
    }
    dialog->ended = true;
    dialog->result = result;
    ShowWindow(window, SW_HIDE);
    // Its loop may be waiting for a message.
    constexpr UINT nothing = 0;
    PostMessageW(window, nothing, 0, 0);
    return TRUE;
}

HWND GetDlgItem(HWND window, int id) {
    const Dialog* dialog = FindDialog(window);
    if (dialog == nullptr) {
        return nullptr;
    }
    const auto found = std::find_if(dialog->controls.begin(), dialog->controls.end(),
                                    [id](const auto& each) { return each->resource.id == id; });
    return found == dialog->controls.end() ? nullptr : found->get();
}

LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageW(GetDlgItem(dialog, id), message, wParam, lParam);
}
