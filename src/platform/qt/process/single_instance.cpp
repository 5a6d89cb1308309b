// One instance for a user and a program folder. The first one holds a lock, which ends with it
// however it ends, and listens on a socket beside it, in a folder that is closed to everybody else.

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <chrono>
#include <thread>

#include "platform/qt/files/device_paths.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/handed_files.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/window.h"

namespace {

using std::chrono::seconds;

// What a call is answered with.
constexpr char isHere = 1;
constexpr char isEnding = 2;

// What an instance writes into its lock when it has begun to answer.
constexpr char answersCalls = 1;

int folder = -1;
int lock = -1;
int listener = -1;

// -1 when the folder is not the user's alone.
int OpenPrivateFolder(const QByteArray& path) {
    const int opened = open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat status {};
    if (opened >= 0 && fstat(opened, &status) == 0 && status.st_uid == getuid() &&
        (status.st_mode & (S_IRWXG | S_IRWXO)) == 0) {
        return opened;
    }
    close(opened);
    return -1;
}

int OpenRuntimeFolder() {
    const int sessions = OpenPrivateFolder(qgetenv("XDG_RUNTIME_DIR"));
    if (sessions >= 0) {
        return sessions;
    }
    const QByteArray own = ProgramFolderOnHost().toUtf8() + "/run";
    mkdir(own, S_IRWXU);
    return OpenPrivateFolder(own);
}

QByteArray InstanceName(const WCHAR* className) {
    const QByteArray home =
        QCryptographicHash::hash(ProgramFolderOnHost().toUtf8(), QCryptographicHash::Sha256);
    return QString::fromUtf16(className).toLower().toUtf8() + '-' + home.toHex().left(16);
}

// Through the open folder: the name of a socket must be short.
sockaddr_un AddressOf(const QByteArray& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(folder) + '/' + name;
    qstrncpy(address.sun_path, path, sizeof address.sun_path);
    return address;
}

bool IsOfThisUser(int call) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(call, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

void OpenLock(const QByteArray& name) {
    folder = OpenRuntimeFolder();
    lock = openat(folder, name + ".lock", O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

bool TakeLock() {
    return flock(lock, LOCK_EX | LOCK_NB) == 0 && ftruncate(lock, 0) == 0;
}

void Listen(const QByteArray& name) {
    unlinkat(folder, name, 0);
    const sockaddr_un address = AddressOf(name);
    listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    constexpr int waitingCalls = 8;
    if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        listen(listener, waitingCalls);
    }
}

// What a start says to the one that is there: the desktop's permission to come forward, and the
// files to be opened, each ended by a zero.
QByteArray Wish() {
    QByteArray wish = qgetenv("XDG_ACTIVATION_TOKEN") + '\0';
    for (const QString& file : WaitingFiles()) {
        wish += file.toUtf8() + '\0';
    }
    return wish;
}

void Obey(const QByteArray& wish) {
    QList<QByteArray> parts = wish.split('\0');
    qputenv("XDG_ACTIVATION_TOKEN", parts.takeFirst());
    Host().ComeForward();
    QStringList files;
    while (parts.size() > 1) {
        files << QString::fromUtf8(parts.takeFirst());
    }
    HandOver(files);
}

// False while the caller may still say more.
bool HearOut(int call, QByteArray& wish) {
    char block[4096];
    ssize_t count = 0;
    while ((count = recv(call, block, sizeof block, MSG_DONTWAIT)) > 0) {
        wish.append(block, count);
    }
    return count == 0 || errno != EAGAIN;
}

// Not at once: a player who closes the window and starts the game again means the second.
constexpr std::chrono::milliseconds timeForAnEnding(50);

// A call to an instance that is about to end breaks off when the process is gone, and the caller
// takes its place.
void Answer(int call, QByteArray wish) {
    const bool ending = BottomWindow() == nullptr || EndingAsked();
    if (!ending && !HearOut(call, wish)) {
        QTimer::singleShot(timeForAnEnding, [call, wish] { Answer(call, wish); });
        return;
    }
    [[maybe_unused]] const auto sent = send(call, ending ? &isEnding : &isHere, 1, MSG_NOSIGNAL);
    if (!ending) {
        Obey(wish);
        close(call);
    }
}

void AnswerCalls() {
    int call = -1;
    while ((call = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
        if (IsOfThisUser(call)) {
            QTimer::singleShot(timeForAnEnding, [call] { Answer(call, {}); });
        } else {
            close(call);
        }
    }
}

void WatchForCalls() {
    auto* notifier =
        new QSocketNotifier(listener, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, AnswerCalls);
    QTimer::singleShot(
        0, [] { [[maybe_unused]] const auto written = pwrite(lock, &answersCalls, 1, 0); });
}

// One that is starting still has some time until it answers; one that hangs is not waited for.
seconds PatienceWithOther() {
    struct stat status {};
    const bool answers = fstat(lock, &status) == 0 && status.st_size > 0;
    return seconds(answers ? 1 : 10);
}

// 0 when nothing is received in that time.
char Receive(int call, seconds patience) {
    const timeval wait{patience.count(), 0};
    setsockopt(call, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof wait);
    char answer = 0;
    return recv(call, &answer, 1, 0) == 1 ? answer : 0;
}

char CallOther(const QByteArray& name) {
    const sockaddr_un address = AddressOf(name);
    const int call = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    char answer = 0;
    if (connect(call, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        IsOfThisUser(call)) {
        const QByteArray wish = Wish();
        [[maybe_unused]] const auto sent =
            send(call, wish.constData(), static_cast<std::size_t>(wish.size()), MSG_NOSIGNAL);
        shutdown(call, SHUT_WR);
        answer = Receive(call, PatienceWithOther());
        if (answer == isEnding) {
            Receive(call, seconds(10));
        }
    }
    close(call);
    return answer;
}

void BecomeInstance(const QByteArray& name) {
    Listen(name);
    WatchForCalls();
}

// Beside an instance that does not answer, or takes long to end: without it, the next start would
// find nobody and show another window. The thread only waits, and so wakes nobody up.
void BecomeInstanceLater(const QByteArray& name) {
    const int freed = eventfd(0, EFD_CLOEXEC);
    std::thread([freed] {
        flock(lock, LOCK_EX);
        eventfd_write(freed, 1);
    }).detach();
    auto* notifier = new QSocketNotifier(freed, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, [name, notifier] {
        notifier->setEnabled(false);
        BecomeInstance(name);
    });
}

// True when this process is now the instance, or will be, or nobody can tell; false when another
// one is, which has come forward to show it. Waits for one that is just ending, so that a start
// always leaves a window on the screen.
bool ClaimInstance(const WCHAR* className) {
    if (lock >= 0) {
        return true;
    }
    const QByteArray name = InstanceName(className);
    OpenLock(name);
    const auto start = std::chrono::steady_clock::now();
    while (lock >= 0 && std::chrono::steady_clock::now() < start + PatienceWithOther()) {
        if (TakeLock()) {
            BecomeInstance(name);
            return true;
        }
        if (CallOther(name) == isHere) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    if (lock >= 0) {
        BecomeInstanceLater(name);
    }
    return true;
}

// Stands for the window of the other process.
HWND OtherInstance() {
    static Window other;
    return &other;
}

}  // namespace

HWND FindWindowW(const WCHAR* className, const WCHAR*) {
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
