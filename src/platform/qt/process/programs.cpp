// Starting programs: only the help viewer and the browser are there.
#include <QtCore/QUrl>

#include "platform/process.h"
#include "platform/qt/help/help_window.h"
#include "platform/qt/help/web_browser.h"
#include "platform/qt/window/end_request.h"

BOOL CreateProcessW(const WCHAR* program, const WCHAR* commandLine, void*, void*, BOOL, DWORD,
                    void*, const WCHAR*, void*, void*) {
    if (program == nullptr || commandLine == nullptr || EndingAsked()) {
        return FALSE;
    }
    const QString name = QString::fromUtf16(program);
    const QString argument = QString::fromUtf16(commandLine);
    if (name.compare("PegHelp.exe", Qt::CaseInsensitive) == 0) {
        return ShowHelp(argument);
    }
    if (name.compare("iexplore.exe", Qt::CaseInsensitive) == 0) {
        return OpenInBrowser(QUrl(argument, QUrl::StrictMode));
    }
    return FALSE;
}
