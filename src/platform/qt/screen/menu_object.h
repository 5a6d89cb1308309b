// What stands behind a menu handle.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QMenu>
#include <memory>
#include <vector>

#include "platform/menus.h"
#include "platform/resources.h"

struct MenuItem {
    explicit MenuItem(const MenuItemResource* its) : resource(its) {
    }

    const MenuItemResource* resource;
    bool checked = false;
    std::unique_ptr<MenuObject> submenu;
    QAction* action = nullptr;  // once the popup has been built
};

struct MenuObject {
    explicit MenuObject(std::span<const MenuItemResource> resources);

    std::vector<MenuItem> items;
    QPointer<QMenu> popup;
    HWND owner = nullptr;  // the window that the popup was opened for last
};
