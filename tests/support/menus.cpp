#include "support/menus.h"

#include <QtTest/QTest>
#include <QtWidgets/QMenu>

#include "platform/qt/host/host_window.h"
#include "support/message_boxes.h"

void SendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
}

namespace {

bool MoveTo(QMenu* menu, const QString& text) {
    for (qsizetype step = 0; step <= menu->actions().size(); ++step) {
        if (menu->activeAction() != nullptr && menu->activeAction()->text() == text) {
            return true;
        }
        SendKey(menu, Qt::Key_Down);
    }
    return false;
}

// Leaves the menu open when there is no such item.
bool Choose(QMenu* menu, const ItemPath& path) {
    if (!MoveTo(menu, path.first())) {
        return false;
    }
    QMenu* submenu = menu->activeAction()->menu();
    const bool isLast = path.size() == 1;
    SendKey(menu, isLast ? Qt::Key_Return : Qt::Key_Right);
    return isLast || (submenu != nullptr && submenu->isVisible() && Choose(submenu, path.mid(1)));
}

void PlanChoice(const ItemPath& path, bool& chosen) {
    UseNextMenu([&](QMenu* menu) {
        chosen = Choose(menu, path);
        if (!chosen) {
            menu->close();
        }
    });
}

void CollectChecks(const QMenu* menu, const QString& prefix, std::map<QString, bool>& checks) {
    for (const QAction* action : menu->actions()) {
        checks[prefix + action->text()] = action->isChecked();
        if (action->menu() != nullptr) {
            CollectChecks(action->menu(), prefix + action->text() + "/", checks);
        }
    }
}

}  // namespace

bool ChooseFromBar(Handheld& handheld, const QString& tooltip, const ItemPath& path) {
    bool chosen = false;
    PlanChoice(path, chosen);
    return handheld.PressButton(tooltip) && chosen;
}

bool ChooseFromContext(Handheld& handheld, POINT point, const ItemPath& path) {
    bool chosen = false;
    PlanChoice(path, chosen);
    handheld.RightClick(point.x, point.y);
    return chosen;
}

std::map<QString, bool> ChecksOf(Handheld& handheld, const QString& tooltip) {
    QMenu* popup = nullptr;
    UseNextMenu([&](QMenu* menu) {
        popup = menu;
        menu->close();
    });
    // The program sets the check marks while it is open.
    handheld.PressButton(tooltip);
    std::map<QString, bool> checks;
    CollectChecks(popup, "", checks);
    return checks;
}

void PressFocusedKey(Handheld& handheld, int key, Qt::KeyboardModifiers modifiers) {
    if (QWidget* focus = Host().focusWidget()) {
        SendKey(focus, key, modifiers);
    }
    handheld.Settle();
}
