#include "platform/qt/process/endings.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QtCore/QSocketNotifier>
#include <QtCore/QThread>
#include <QtGui/QGuiApplication>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "platform/qt/window/end_request.h"
#include "platform/qt/window/window.h"

namespace {

// A signal handler may do little more than write a byte; the event loop reads it.
int signalPair[2] = {-1, -1};

QtMessageHandler previousHandler = nullptr;

void OnSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPair[0], &byte, 1);
}

void WatchSignals() {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalPair) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(signalPair[1], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, [] {
        char bytes[16];
        [[maybe_unused]] const auto count = read(signalPair[1], bytes, sizeof bytes);
        AskProgramToEnd();
    });
    struct sigaction action = {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
}

// On the program's thread. What the toolkit holds is of no use any more, so nothing is put away.
void EndWithoutDisplay() {
    static bool ending = false;
    if (!std::exchange(ending, true)) {
        SendMessageW(BottomWindow(), WM_CLOSE, 0, 0);
        _exit(EXIT_FAILURE);
    }
}

// When the display server goes away, the toolkit says so, on the program's thread or on one of its
// own or on both, and then ends the process on the spot. These words are all the notice there is.
void OnToolkitMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    previousHandler(type, context, message);
    if (!message.startsWith("The X11 connection broke") &&
        !message.startsWith("The Wayland connection broke")) {
        return;
    }
    if (QThread::currentThread() == qApp->thread()) {
        EndWithoutDisplay();
    } else {
        QMetaObject::invokeMethod(qApp, EndWithoutDisplay, Qt::QueuedConnection);
        constexpr int whileTheOtherSaves = 5;
        QThread::sleep(whileTheOtherSaves);
    }
}

}  // namespace

void WatchForEndings() {
    WatchSignals();
    // The session waits for no queue: what is not written when this returns may be lost.
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, EndProgramAtOnce,
                     Qt::DirectConnection);
    previousHandler = qInstallMessageHandler(OnToolkitMessage);
}
