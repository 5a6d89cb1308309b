#include "platform/qt/single_instance.h"

#include <unistd.h>

#include <QtCore/QCryptographicHash>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "platform/qt/device_paths.h"
#include "platform/qt/host_window.h"
#include "platform/qt/window.h"

namespace {

QString SocketName(const WCHAR* className) {
    const QByteArray folder =
        QCryptographicHash::hash(ProgramFolderOnHost().toUtf8(), QCryptographicHash::Sha256);
    return QString("%1-%2-%3")
        .arg(QString::fromUtf16(className).toLower())
        .arg(getuid())
        .arg(QString::fromLatin1(folder.toHex().left(16)));
}

QString claimedName;

void AnswerCalls(QLocalServer* server) {
    while (QLocalSocket* call = server->nextPendingConnection()) {
        QObject::connect(call, &QLocalSocket::disconnected, call, &QObject::deleteLater);
        Host().ComeForward();
        call->disconnectFromServer();
    }
}

}  // namespace

bool ClaimInstance(const WCHAR* className) {
    static QLocalServer* server = nullptr;
    if (server != nullptr) {
        return true;
    }
    claimedName = SocketName(className);
    auto* candidate = new QLocalServer;
    // An abstract name is taken and freed by the kernel: two starts at once cannot both get it,
    // and a crash leaves nothing behind.
    candidate->setSocketOptions(QLocalServer::AbstractNamespaceOption);
    if (!candidate->listen(claimedName)) {
        const bool taken = candidate->serverError() == QAbstractSocket::AddressInUseError;
        delete candidate;
        return !taken;
    }
    server = candidate;
    QObject::connect(server, &QLocalServer::newConnection, [] { AnswerCalls(server); });
    return true;
}

HWND OtherInstance() {
    static Window other;
    return &other;
}

BOOL AskOtherInstanceForward() {
    constexpr int patienceMilliseconds = 2000;
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(claimedName);
    if (!socket.waitForConnected(patienceMilliseconds)) {
        return FALSE;
    }
    if (socket.state() == QLocalSocket::ConnectedState) {
        socket.waitForDisconnected(patienceMilliseconds);
    }
    return TRUE;
}
