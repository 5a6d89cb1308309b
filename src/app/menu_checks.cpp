#include "app/menu_checks.h"

#include "app/view.h"
#include "platform/menus.h"
#include "platform/windows.h"
#include "play/settings.h"
#include "resources/ids.h"

namespace {

void FetchMenu(int buttonCommand) {
    MenuScratch =
        reinterpret_cast<HMENU>(SendMessageW(MenuBar, SHCMBM_GETSUBMENU, 0, buttonCommand));
}

void Check(int command, int on) {
    CheckMenuItem(MenuScratch, static_cast<UINT>(command), on == 1 ? MF_CHECKED : MF_UNCHECKED);
}

}  // namespace

void UpdateMenuChecks() {
    FetchMenu(commandMainMenu);
    Check(commandNumbers, ShowNumbers);
    Check(commandAutoSkip, AutoSkip);
    FetchMenu(commandSizeMenu);
    const bool chosen = Magnification.*ChosenSize().flag == 1;
    for (const BoardSize& size : boardSizes) {
        if (chosen) {
            Check(size.command, Magnification.*size.flag);
        }
    }
}
