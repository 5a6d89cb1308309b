// What all controls of dialogs have in common.
//
// Supported: push, radio, check and group boxes, static texts and pictures, list boxes, tabs at the
// bottom, edit boxes of one line. Left out: subclassing, owner drawing, styles that no dialog uses.
#include "platform/qt/controls/control.h"

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/controls/dialog_units.h"
#include "platform/qt/look/fonts.h"
#include "platform/qt/surface/drawing_objects.h"

namespace {

LRESULT AnswerForControl(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return static_cast<Control*>(window)->Answer(message, wParam, lParam);
}

// Null for what is no control of an open dialog.
Control* AsControl(HWND window) {
    return IsLiveWindow(window) ? dynamic_cast<Control*>(window) : nullptr;
}

}  // namespace

Control::Control(HWND owner, const ControlResource& described)
    : dialog(owner), resource(described) {
    procedure = AnswerForControl;
    visible = true;
    AddChildWindow(this);
}

Control::~Control() {
    RemoveChildWindow(this);
}

void Control::Show(QWidget* shown) {
    widget = shown;
    shown->setObjectName(QString::number(resource.id));
    shown->show();
}

RECT Control::Area() const {
    return DialogUnitsToPixels(resource);
}

void Control::Place() {
    frame = Area();
    if (font != nullptr) {
        widget->setFont(TextFont(font->font.em * ScreenMagnification(), font->font.bold));
    }
    const QRect exact = ExactPlace(OnScreen(dialog, frame)).toRect();
    widget->setGeometry(exact.translated(-widget->parentWidget()->pos()));
}

LRESULT Control::Answer(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_SETFONT) {
        font = reinterpret_cast<HFONT>(wParam);
        Place();
    } else if (message == WM_GETFONT) {
        return reinterpret_cast<LRESULT>(font);
    }
    return 0;
}

QString Control::Text() const {
    return {};
}

void Control::SetText(const QString&) {
}

void Control::Notify(int code) {
    const auto what = static_cast<DWORD>(MAKELPARAM(resource.id, code));
    SendMessageW(dialog, WM_COMMAND, what, reinterpret_cast<LPARAM>(static_cast<HWND>(this)));
}

HGDIOBJ Control::BrushFor(UINT colorMessage) {
    const LRESULT answer =
        SendMessageW(dialog, colorMessage, 0, reinterpret_cast<LPARAM>(static_cast<HWND>(this)));
    return reinterpret_cast<HGDIOBJ>(answer);
}

int GetWindowTextW(HWND window, WCHAR* buffer, int bufferSize) {
    const Control* control = AsControl(window);
    if (control == nullptr || bufferSize < 1) {
        return 0;
    }
    const std::u16string text = control->Text().toStdU16String();
    const size_t length = text.copy(buffer, static_cast<size_t>(bufferSize) - 1);
    buffer[length] = 0;
    return static_cast<int>(length);
}

BOOL SetWindowTextW(HWND window, const WCHAR* text) {
    Control* control = AsControl(window);
    if (control == nullptr) {
        return FALSE;
    }
    control->SetText(QString::fromUtf16(text));
    return TRUE;
}
