#include "platform/qt/help/web_browser.h"

#include <unistd.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

#include "platform/dialogs.h"

namespace {

void TellAddress(const QUrl& address) {
    const QString text =
        "No web browser could be opened. You can type the address into a browser "
        "yourself, on this device or on another:\n\n" +
        address.toString(QUrl::FullyEncoded);
    MessageBoxW(nullptr, text.toStdU16String().c_str(), u"Web Browser", MB_OK);
}

// An opener that finds no browser ends soon, and badly. One that becomes the browser stays, and
// what it says when the player closes it is nobody's business.
void WatchOpener(QProcess* opener, const QUrl& address) {
    constexpr int judgedMilliseconds = 30000;
    const QDeadlineTimer judged(judgedMilliseconds);
    QObject::connect(opener, &QProcess::finished, opener,
                     [=](int exitCode, QProcess::ExitStatus status) {
                         opener->deleteLater();
                         const bool failed = exitCode != 0 || status != QProcess::NormalExit;
                         if (failed && !judged.hasExpired()) {
                             TellAddress(address);
                         }
                     });
}

// The toolkit starts the desktop's opener and looks away, so that it reports success where there is
// no browser at all. The opener's own word is better.
bool StartOpener(const QString& program, const QUrl& address) {
    // Without a parent: the browser may outlive the game.
    auto* opener = new QProcess;
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    // Ctrl+C in the game's terminal is not meant for the browser.
    opener->setChildProcessModifier([] { setsid(); });
    WatchOpener(opener, address);
    opener->start(program, {address.toString(QUrl::FullyEncoded)});
    if (!opener->waitForStarted()) {
        opener->deleteLater();
        return false;
    }
    return true;
}

}  // namespace

bool IsWebAddress(const QUrl& address) {
    const QString scheme = address.scheme();
    return address.isValid() && !address.host().isEmpty() &&
           (scheme == "http" || scheme == "https");
}

bool OpenInBrowser(const QUrl& address) {
    if (!IsWebAddress(address)) {
        return false;
    }
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    if (!opener.isEmpty() && StartOpener(opener, address)) {
        return true;
    }
    // Without the opener the toolkit still knows the usual browsers.
    if (QDesktopServices::openUrl(address)) {
        return true;
    }
    TellAddress(address);
    return false;
}
