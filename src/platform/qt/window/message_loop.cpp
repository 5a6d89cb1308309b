// The program's message loop: waiting for the next message, accelerators.
//
// Left out: message filters, thread messages, WM_CHAR (letters arrive as virtual keys).
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include "platform/qt/common/find_by_id.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/window/handed_files.h"
#include "platform/qt/window/keep_state.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/window.h"
#include "platform/resources.h"

BOOL GetMessageW(MSG* message, HWND, UINT, UINT) {
    while (!MessagesWaiting()) {
        PaintAllDue();
        TellWaitingFiles();
        if (!MessagesWaiting()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
    }
    *message = TakeMessage().message;
    if (IsInput(message->message)) {
        KeepStateSoon();
    }
    return message->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG*) {
    return FALSE;
}

HACCEL LoadAcceleratorsW(HINSTANCE instance, int table) {
    return FindById(instance->acceleratorTables, table);
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
