// The process: brings the handheld up, then runs the program on it.
#include <QtWidgets/QApplication>
#include <cstdlib>

#include "platform/qt/endings.h"
#include "platform/qt/first_start.h"
#include "platform/qt/font_warm_up.h"
#include "platform/qt/waiting.h"
#include "platform/resources.h"
#include "platform/windows.h"

int main(int argumentCount, char** arguments) {
    WarmUpFonts();
    // A whole device pixel ratio leaves every edge on a device pixel; the screen's own
    // magnification takes care of the rest.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    QApplication application(argumentCount, arguments);
    WarmUpFontDatabase();
    QApplication::setApplicationName("Quadrel");
    QApplication::setDesktopFileName("quadrel");
    QApplication::setQuitOnLastWindowClosed(false);
    WatchForEndings();
    PrepareFolders();
    WCHAR commandLine[] = u"";
    const int exitCode = WinMain(&programResources, nullptr, commandLine, SW_SHOW);
    AwaitFonts();
    if (waitWasGivenUp) {
        std::quick_exit(exitCode);
    }
    return exitCode;
}
