// Menus and their check marks.
#include "platform/menus.h"

#include <map>

#include "platform/qt/common/find_by_id.h"
#include "platform/qt/screen/menu_object.h"

namespace {

MenuItem* FindItem(MenuObject* menu, int command) {
    for (MenuItem& item : menu->items) {
        if (item.submenu != nullptr) {
            if (MenuItem* found = FindItem(item.submenu.get(), command)) {
                return found;
            }
        } else if (item.resource->text != nullptr && item.resource->command == command) {
            return &item;
        }
    }
    return nullptr;
}

}  // namespace

MenuObject::MenuObject(std::span<const MenuItemResource> resources) {
    for (const MenuItemResource& resource : resources) {
        MenuItem item(&resource);
        if (!resource.submenu.empty()) {
            item.submenu = std::make_unique<MenuObject>(resource.submenu);
        }
        items.push_back(std::move(item));
    }
}

HMENU LoadMenuW(HINSTANCE instance, int id) {
    // Loaded menus are shared: their check marks belong to the program, not to one popup.
    static std::map<int, std::unique_ptr<MenuObject>> menus;
    auto& menu = menus[id];
    if (menu == nullptr) {
        if (const MenuResource* found = FindById(instance->menus, id)) {
            menu = std::make_unique<MenuObject>(found->popups);
        }
    }
    return menu.get();
}

HMENU GetSubMenu(HMENU menu, int position) {
    const bool exists =
        menu != nullptr && position >= 0 && static_cast<size_t>(position) < menu->items.size();
    return exists ? menu->items[static_cast<size_t>(position)].submenu.get() : nullptr;
}

DWORD CheckMenuItem(HMENU menu, UINT command, UINT flags) {
    MenuItem* item = menu == nullptr ? nullptr : FindItem(menu, static_cast<int>(command));
    if (item == nullptr) {
        return 0xFFFFFFFF;
    }
    const DWORD previous = item->checked ? MF_CHECKED : MF_UNCHECKED;
    item->checked = (flags & MF_CHECKED) != 0;
    if (item->action != nullptr) {
        item->action->setCheckable(item->checked);
        item->action->setChecked(item->checked);
    }
    return previous;
}
