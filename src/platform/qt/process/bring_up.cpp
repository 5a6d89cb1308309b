#include "platform/qt/process/bring_up.h"

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QIcon>

#include "platform/qt/files/device_paths.h"
#include "platform/qt/files/first_start.h"
#include "platform/qt/files/litter.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/font_warm_up.h"
#include "platform/qt/look/palette.h"
#include "platform/qt/process/endings.h"
#include "platform/qt/process/pauses.h"
#include "platform/resources.h"
#include "platform/windows.h"

std::unique_ptr<QApplication> BringHandheldUp(int& argumentCount, char** arguments) {
    // A whole device pixel ratio leaves every edge on a device pixel; the screen's own
    // magnification takes care of the rest.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    auto application = std::make_unique<QApplication>(argumentCount, arguments);
    WarmUpFonts();
    // The game looks the same under every desktop's theme, and whatever the environment asks for.
    QApplication::setStyle("Fusion");
    QApplication::setPalette(HandheldPalette());
    // The toolkit's own signs, too: for a theme's it looks through hundreds of folders.
    QIcon::setThemeSearchPaths({":/"});
    QApplication::setApplicationName("Quadrel");
    QApplication::setDesktopFileName("quadrel");
    QApplication::setQuitOnLastWindowClosed(false);
    GuardTaps();
    return application;
}

int RunProgram() {
    WatchForEndings();
    WatchForPauses();
    PrepareFolders();
    // What the choosers remember, visited folders and the player's own colours, is the game's.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ProgramFolderOnHost());
    constexpr int behindTheStart = 1000;
    QTimer::singleShot(behindTheStart, RemoveLitter);
    WCHAR commandLine[] = u"";
    const int exitCode = WinMain(&programResources, nullptr, commandLine, SW_SHOW);
    AwaitFonts();
    return exitCode;
}
