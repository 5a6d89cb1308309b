#include "support/downloads.h"

#include <algorithm>

#include "resources/ids.h"
#include "support/menus.h"

void UseDownloadDialog(Handheld& handheld, const std::function<void(OpenDialog&)>& use) {
    UseDialog(
        handheld, [&] { ChooseFromBar(handheld, "Main Menu", {"Puzzles", "Download"}); }, use);
}

bool Download(Handheld& handheld, const std::string& link) {
    bool listed = false;
    UseDownloadDialog(handheld, [&](OpenDialog& dialog) {
        dialog.Type(controlLink, QString::fromStdString(link));
        dialog.Tap(controlGet);
        if (dialog.IsOpen()) {
            const std::vector<std::string> links = dialog.Lines(controlLinks);
            listed = std::find(links.begin(), links.end(), link) != links.end();
        }
    });
    return listed;
}
