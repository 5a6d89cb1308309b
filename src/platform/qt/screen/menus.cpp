// Menus: the toolkit's own popups over the program's menu resources.
#include "platform/menus.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>
#include <algorithm>
#include <map>

#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/look.h"
#include "platform/qt/screen/menu_object.h"
#include "platform/qt/window/endings.h"
#include "platform/qt/window/host_window.h"
#include "platform/windows.h"

namespace {

// The usual style is made for one size of text. It widens the column of check marks with the text's
// height, but measures an item as if that column had its least width: texts of large menus would be
// cut. Its arrows never grow.
class MenuStyle : public QProxyStyle {
public:
    MenuStyle() : QProxyStyle("Fusion") {
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override {
        constexpr double columnPerHeight = 0.79;
        constexpr int leastColumn = 21;
        QSize item = QProxyStyle::sizeFromContents(type, option, size, widget);
        if (type == CT_MenuItem) {
            item.rwidth() += std::max(qRound(item.height() * columnPerHeight) - leastColumn, 0);
        }
        return item;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_IndicatorArrowRight) {
            DrawArrow(*painter, option->rect, option->palette.color(QPalette::WindowText));
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

private:
    // Half as wide as high.
    static void DrawArrow(QPainter& painter, const QRectF& box, const QColor& color) {
        constexpr double share = 0.8;
        const double height = box.height() * share;
        const QPointF tail = box.center() - QPointF(height / 4, 0);
        const QPointF corners[] = {tail - QPointF(0, height / 2), tail + QPointF(height / 2, 0),
                                   tail + QPointF(0, height / 2)};
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(corners, 3);
        painter.restore();
    }
};

void SetMenuStyle(QMenu* popup) {
    static auto* style = new MenuStyle;
    popup->setStyle(style);
}

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

void AddCommand(QMenu* popup, MenuItem& item, const MenuObject* root) {
    item.action = popup->addAction(QString::fromUtf16(item.resource->text));
    item.action->setCheckable(item.checked);
    item.action->setChecked(item.checked);
    const int command = item.resource->command;
    QObject::connect(item.action, &QAction::triggered, popup, [root, command] {
        GroundChanged();
        PostMessageW(root->owner, WM_COMMAND, static_cast<WPARAM>(command), 0);
    });
}

void FillPopup(QMenu* popup, MenuObject* menu, const MenuObject* root) {
    for (MenuItem& item : menu->items) {
        if (item.submenu != nullptr) {
            QMenu* submenu = popup->addMenu(QString::fromUtf16(item.resource->text));
            SetMenuStyle(submenu);
            FillPopup(submenu, item.submenu.get(), root);
        } else if (item.resource->text != nullptr) {
            AddCommand(popup, item, root);
        } else {
            popup->addSeparator();
        }
    }
}

void SizeWithScreen(QMenu* popup) {
    constexpr double em = 11;
    const QFont font = BarFont(em * Host().Magnification(), false);
    popup->setFont(font);
    for (QMenu* submenu : popup->findChildren<QMenu*>()) {
        submenu->setFont(font);
    }
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
        const auto found = std::find_if(instance->menus.begin(), instance->menus.end(),
                                        [id](const MenuResource& each) { return each.id == id; });
        if (found != instance->menus.end()) {
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

QMenu* PopupOf(HMENU menu, HWND window) {
    if (menu->popup == nullptr) {
        menu->popup = new QMenu(&Host());
        SetMenuStyle(menu->popup);
        FillPopup(menu->popup, menu, menu);
    }
    menu->owner = window;
    SizeWithScreen(menu->popup);
    return menu->popup;
}

void ClosePopups() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close()) {
            break;
        }
    }
}

BOOL TrackPopupMenuEx(HMENU menu, UINT, int x, int y, HWND window, void*) {
    if (menu == nullptr || EndingAsked()) {
        return FALSE;
    }
    QMenu* popup = PopupOf(menu, window);
    const QRect screen = Host().ExactPlace({0, 0, screenWidth, screenHeight}).toAlignedRect();
    const QSize room = screen.size() - popup->sizeHint();
    const QPoint wanted = Host().ExactPlace({x, y, x, y}).topLeft().toPoint() - screen.topLeft();
    const QPoint corner(std::clamp(wanted.x(), 0, std::max(room.width(), 0)),
                        std::clamp(wanted.y(), 0, std::max(room.height(), 0)));
    popup->exec(Host().mapToGlobal(screen.topLeft() + corner));
    return TRUE;
}
