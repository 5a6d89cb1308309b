#include "platform/qt/single_instance.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QSocketNotifier>
#include <cstddef>
#include <cstring>

#include "platform/qt/device_paths.h"
#include "platform/qt/host_window.h"
#include "platform/qt/window.h"

namespace {

int listener = -1;
QByteArray claimedName;

QByteArray SocketName(const WCHAR* className) {
    const QByteArray folder =
        QCryptographicHash::hash(ProgramFolderOnHost().toUtf8(), QCryptographicHash::Sha256);
    return QString::fromUtf16(className).toLower().toUtf8() + '-' + QByteArray::number(getuid()) +
           '-' + folder.toHex().left(16);
}

struct Address {
    sockaddr_un name{};
    socklen_t size = 0;
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

int OpenSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

void AnswerCalls() {
    int call = -1;
    while ((call = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
        close(call);
        Host().ComeForward();
    }
}

}  // namespace

bool ClaimInstance(const WCHAR* className) {
    if (listener >= 0) {
        return true;
    }
    claimedName = SocketName(className);
    const Address address = AbstractAddress(claimedName);
    const int candidate = OpenSocket();
    if (bind(candidate, reinterpret_cast<const sockaddr*>(&address.name), address.size) != 0) {
        const bool taken = errno == EADDRINUSE;
        close(candidate);
        return !taken;
    }
    constexpr int waitingCalls = 8;
    listen(candidate, waitingCalls);
    listener = candidate;
    auto* notifier =
        new QSocketNotifier(listener, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, AnswerCalls);
    return true;
}

HWND OtherInstance() {
    static Window other;
    return &other;
}

// The call alone is the request; the other process needs no more.
BOOL AskOtherInstanceForward() {
    const Address address = AbstractAddress(claimedName);
    const int call = OpenSocket();
    const bool connected =
        connect(call, reinterpret_cast<const sockaddr*>(&address.name), address.size) == 0;
    close(call);
    return connected;
}
