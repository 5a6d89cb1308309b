// One instance for a user and a program folder: the first one listens on a local socket.

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <thread>

#include "platform/qt/files/device_paths.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/window.h"

namespace {

// For an instance that is being ended, or that a debugger holds.
constexpr std::chrono::seconds patience(10);

int listener = -1;

QByteArray SocketName(const WCHAR* className) {
    const QByteArray folder =
        QCryptographicHash::hash(ProgramFolderOnHost().toUtf8(), QCryptographicHash::Sha256);
    return QString::fromUtf16(className).toLower().toUtf8() + '-' + QByteArray::number(getuid()) +
           '-' + folder.toHex().left(16);
}

struct Address {
    sockaddr_un name{};
    socklen_t size = 0;

    const sockaddr* Name() const {
        return reinterpret_cast<const sockaddr*>(&name);
    }
};

// A name that begins with a zero is in no folder: the kernel gives it to one process at a time and
// frees it when that ends, so two starts at once cannot both get it and a crash leaves nothing.
Address AbstractAddress(const QByteArray& name) {
    Address address;
    address.name.sun_family = AF_UNIX;
    const auto length =
        std::min(static_cast<size_t>(name.size()), sizeof address.name.sun_path - 1);
    std::memcpy(address.name.sun_path + 1, name.data(), length);
    address.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    return address;
}

int OpenSocket(int kind) {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | kind, 0);
}

bool Listen(const Address& address) {
    const int candidate = OpenSocket(SOCK_NONBLOCK);
    if (bind(candidate, address.Name(), address.size) != 0) {
        const int reason = errno;
        close(candidate);
        errno = reason;
        return false;
    }
    constexpr int waitingCalls = 8;
    listen(candidate, waitingCalls);
    listener = candidate;
    return true;
}

// An instance that is about to end leaves a call unanswered; it breaks off when the process is
// gone, and the caller takes its place.
void Answer(int call) {
    if (BottomWindow() == nullptr || EndingAsked()) {
        return;
    }
    Host().ComeForward();
    const char here = 1;
    [[maybe_unused]] const auto written = send(call, &here, 1, MSG_NOSIGNAL);
    close(call);
}

// Not at once: a player who closes the window and starts the game again means the second.
void AnswerCalls() {
    constexpr std::chrono::milliseconds timeForAnEnding(50);
    int call = -1;
    while ((call = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
        QTimer::singleShot(timeForAnEnding, [call] { Answer(call); });
    }
}

void WatchForCalls() {
    auto* notifier =
        new QSocketNotifier(listener, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, AnswerCalls);
}

bool OtherComesForward(const Address& address) {
    const int call = OpenSocket(0);
    const timeval wait{patience.count(), 0};
    setsockopt(call, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof wait);
    char answer = 0;
    const bool answered =
        connect(call, address.Name(), address.size) == 0 && recv(call, &answer, 1, 0) == 1;
    close(call);
    return answered;
}

// True when this process is now the instance, or nobody can tell; false when another one is, which
// has come forward to show it. Waits for one that is just ending, so that a start always leaves a
// window on the screen.
bool ClaimInstance(const WCHAR* className) {
    if (listener >= 0) {
        return true;
    }
    const Address address = AbstractAddress(SocketName(className));
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!Listen(address)) {
        if (errno != EADDRINUSE) {
            return true;
        }
        if (OtherComesForward(address) || std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    WatchForCalls();
    return true;
}

// Stands for the window of the other process.
HWND OtherInstance() {
    static Window other;
    return &other;
}

}  // namespace

HWND FindWindowW(const WCHAR* className, const WCHAR* title) {
    for (HWND window : StackedWindows()) {
        if (window->className == className && window->title == title) {
            return window;
        }
    }
    return ClaimInstance(className) ? nullptr : OtherInstance();
}

BOOL SetForegroundWindow(HWND window) {
    // The lowest bit asks for the windows it owns, too; on one screen they come along anyway.
    auto* plain =
        reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(window) & ~std::uintptr_t{1});
    if (plain == OtherInstance()) {
        return TRUE;  // it came forward when it was found
    }
    if (!IsLiveWindow(plain)) {
        return FALSE;
    }
    Host().ComeForward();
    // What lies over it comes along and stays over it.
    SetActive(TopWindow(), true);
    return TRUE;
}
