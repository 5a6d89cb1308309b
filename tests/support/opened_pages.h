// What the program has opened in the help viewer and in the browser.
#pragma once

#include "platform/qt/help/help_window.h"
#include "support/message_boxes.h"

inline std::vector<HelpWindow*> ShownHelpWindows() {
    std::vector<HelpWindow*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<HelpWindow*>(widget); help != nullptr && help->isVisible()) {
            shown.push_back(help);
        }
    }
    return shown;
}

// Takes the browser away, so that every address comes back in a message to the player.
class OpenedPages {
public:
    // The desktop's opener of addresses is looked for in the folder only.
    explicit OpenedPages(const std::string& openers = "/nowhere") {
        qputenv("PATH", openers.c_str());
        // An absolute path in either of these is a browser in spite of PATH.
        qunsetenv("BROWSER");
        qunsetenv("DEFAULT_BROWSER");
    }
    ~OpenedPages() {
        qputenv("PATH", path);
    }
    Q_DISABLE_COPY(OpenedPages)

    // The chapter of the help that was opened since the last call, and the messages about
    // addresses. The help is closed again.
    std::vector<std::string> Take() {
        std::vector<std::string> pages;
        for (HelpWindow* help : ShownHelpWindows()) {
            const QUrl shown = help->findChild<QTextBrowser*>()->source();
            pages.push_back(shown.fragment().toStdString());
            help->close();
        }
        for (const ShownMessage& message : TakeShownMessages()) {
            pages.push_back(NarrowPath(message.text));
        }
        return pages;
    }

private:
    const QByteArray path = qgetenv("PATH");
};
