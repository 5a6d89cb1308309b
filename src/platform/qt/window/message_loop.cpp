// The program's message loop: waiting for the next message, accelerators.
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <algorithm>

#include "platform/qt/common/message_queue.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/window.h"
#include "platform/resources.h"

BOOL GetMessageW(MSG* message, HWND, UINT, UINT) {
    while (!MessagesWaiting()) {
        PaintAllDue();
        if (!MessagesWaiting()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
    }
    *message = TakeMessage().message;
    return message->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG*) {
    return FALSE;
}

HACCEL LoadAcceleratorsW(HINSTANCE instance, int table) {
    const auto found =
        std::find_if(instance->acceleratorTables.begin(), instance->acceleratorTables.end(),
                     [table](const AcceleratorTable& candidate) { return candidate.id == table; });
    return found == instance->acceleratorTables.end() ? nullptr : &*found;
}

BOOL TranslateAcceleratorW(HWND window, HACCEL table, const MSG* message) {
    if (table == nullptr || !IsKey(message->message) || !CurrentMessage().shortcut) {
        return FALSE;
    }
    for (const AcceleratorResource& accelerator : table->accelerators) {
        if (static_cast<WPARAM>(accelerator.key) == message->wParam) {
            constexpr WPARAM fromAccelerator = 1 << 16;
            SendMessageW(window, WM_COMMAND,
                         static_cast<WPARAM>(accelerator.command) | fromAccelerator, 0);
            return TRUE;
        }
    }
    return FALSE;
}

void Sleep(DWORD milliseconds) {
    ShowNow();
    QThread::msleep(milliseconds);
}
