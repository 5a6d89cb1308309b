// What the program has opened in the help viewer and in the browser.
#pragma once

#include <QtCore/QByteArray>
#include <string>
#include <vector>

class HelpWindow;

std::vector<HelpWindow*> ShownHelpWindows();

// Takes the browser away, so that every address comes back in a message to the player.
class OpenedPages {
public:
    // The desktop's opener of addresses is looked for in the folder only.
    explicit OpenedPages(const std::string& openers = "/nowhere");
    ~OpenedPages();
    OpenedPages(const OpenedPages&) = delete;
    OpenedPages& operator=(const OpenedPages&) = delete;

    // The chapter of the help that was opened since the last call, and the messages about
    // addresses. The help is closed again.
    std::vector<std::string> Take();

private:
    QByteArray path;
};
