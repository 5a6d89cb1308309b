#include "platform/qt/window/messages.h"

#include "platform/qt/common/message_queue.h"
#include "platform/qt/window/window.h"

namespace {

int procedureDepth = 0;

LRESULT Call(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ++procedureDepth;
    const LRESULT answer = window->procedure(window, message, wParam, lParam);
    --procedureDepth;
    return answer;
}

}  // namespace

bool InsideProcedure() {
    return procedureDepth > 0;
}

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool reachable = IsLiveWindow(window) || IsMenuBar(window);
    return reachable ? Call(window, message, wParam, lParam) : 0;
}

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    PostMessage({{window, message, wParam, lParam}});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    PostMessage({{nullptr, WM_QUIT, static_cast<WPARAM>(exitCode), 0}});
}

LRESULT DispatchMessageW(const MSG* message) {
    return SendMessageW(message->hwnd, message->message, message->wParam, message->lParam);
}
