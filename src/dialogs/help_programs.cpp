#include "dialogs/help_programs.h"

#include "platform/process.h"

void OpenHelp(const WCHAR* page) {
    CreateProcessW(u"PegHelp.exe", page);
}

void OpenWebSite() {
    CreateProcessW(u"iexplore.exe", u"http://www.quadrel.example.com");
}
