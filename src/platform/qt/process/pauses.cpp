#include "platform/qt/process/pauses.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusUnixFileDescriptor>
#include <QtWidgets/QApplication>

#include "platform/files.h"
#include "platform/qt/window/keep_state.h"

namespace {

constexpr const char* loginService = "org.freedesktop.login1";
constexpr const char* loginPath = "/org/freedesktop/login1";
constexpr const char* loginInterface = "org.freedesktop.login1.Manager";

// Where there is no login manager, nothing comes of it.
class SleepWatch : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void Start() {
        // Without the service's name: to look up its owner would be waited for.
        QDBusConnection::systemBus().connect({}, loginPath, loginInterface, "PrepareForSleep", this,
                                             SLOT(PrepareForSleep(bool)));
        AskForTime();
    }

private slots:
    void PrepareForSleep(bool begins) {
        if (!begins) {
            AskForTime();
            return;
        }
        KeepStateNow();
        AwaitFiles();
        timeToSave = {};
    }

private:
    // The computer falls asleep when this has been let go, at the latest after some seconds.
    void AskForTime() {
        auto request =
            QDBusMessage::createMethodCall(loginService, loginPath, loginInterface, "Inhibit");
        request << "sleep"
                << "Quadrel"
                << "The letters are saved."
                << "delay";
        auto* call =
            new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(request), this);
        connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
            const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *call;
            timeToSave = reply.isValid() ? reply.value() : QDBusUnixFileDescriptor();
            call->deleteLater();
        });
    }

    QDBusUnixFileDescriptor timeToSave;
};

}  // namespace

void WatchForPauses() {
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, qApp,
                     [](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive) {
                             KeepStateNow();
                         }
                     });
    // Nothing is worth saving before the first frame, which would wait for it.
    constexpr int afterTheStart = 1000;
    auto* watch = new SleepWatch(qApp);
    QTimer::singleShot(afterTheStart, watch, [watch] { watch->Start(); });
}

#include "pauses.moc"
