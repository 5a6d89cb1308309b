// The game's own start, ended right after its first frame; start_time measures it beside an empty
// window.
#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <cstdlib>

#include "platform/qt/client_view.h"
#include "platform/qt/endings.h"
#include "platform/qt/first_start.h"
#include "platform/qt/font_warm_up.h"
#include "platform/resources.h"
#include "platform/windows.h"

namespace {

class FrameWatcher : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && qobject_cast<ClientView*>(object) != nullptr) {
            // At once, so that no clean-up counts.
            QTimer::singleShot(0, [] { std::_Exit(0); });
        }
        return false;
    }
};

}  // namespace

int main(int argumentCount, char** arguments) {
    WarmUpFonts();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    QApplication application(argumentCount, arguments);
    WarmUpFontDatabase();
    QApplication::setQuitOnLastWindowClosed(false);
    FrameWatcher watcher;
    application.installEventFilter(&watcher);
    WatchForEndings();
    PrepareFolders();
    WCHAR commandLine[] = u"";
    const int exitCode = WinMain(&programResources, nullptr, commandLine, SW_SHOW);
    AwaitFonts();
    return exitCode;
}
