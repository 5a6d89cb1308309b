#include "support/opened_pages.h"

#include <QtWidgets/QTextBrowser>

#include "platform/qt/help/help_window.h"
#include "support/message_boxes.h"

std::vector<HelpWindow*> ShownHelpWindows() {
    std::vector<HelpWindow*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* help = qobject_cast<HelpWindow*>(widget);
        if (help != nullptr && help->isVisible()) {
            shown.push_back(help);
        }
    }
    return shown;
}

OpenedPages::OpenedPages(const std::string& openers) : path(qgetenv("PATH")) {
    qputenv("PATH", openers.c_str());
    // An absolute path in either of these is a browser in spite of PATH.
    qunsetenv("BROWSER");
    qunsetenv("DEFAULT_BROWSER");
}

OpenedPages::~OpenedPages() {
    qputenv("PATH", path);
}

std::vector<std::string> OpenedPages::Take() {
    std::vector<std::string> pages;
    for (HelpWindow* help : ShownHelpWindows()) {
        const QUrl shown = help->findChild<QTextBrowser*>()->source();
        pages.push_back(shown.fragment().toStdString());
        help->close();
    }
    for (const ShownMessage& message : TakeShownMessages()) {
        pages.push_back(QString::fromStdU16String(message.text).toStdString());
    }
    return pages;
}
