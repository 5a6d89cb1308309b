// Using the real popup menus with the arrow keys and Enter, as a person does.
#pragma once

#include <QtTest/QTest>

#include "support/handheld.h"
#include "support/message_boxes.h"

// The texts on the way to an item, like {"Fill", "Word"}.
using ItemPath = QStringList;

// Pressed and let go.
inline void SendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
}

inline bool MoveTo(QMenu* menu, const QString& text) {
    for (qsizetype step = 0; step <= menu->actions().size(); ++step) {
        if (menu->activeAction() != nullptr && menu->activeAction()->text() == text) {
            return true;
        }
        SendKey(menu, Qt::Key_Down);
    }
    return false;
}

// Leaves the menu open when there is no such item.
inline bool Choose(QMenu* menu, const ItemPath& path) {
    if (!MoveTo(menu, path.first())) {
        return false;
    }
    QMenu* submenu = menu->activeAction()->menu();
    const bool isLast = path.size() == 1;
    SendKey(menu, isLast ? Qt::Key_Return : Qt::Key_Right);
    return isLast || (submenu != nullptr && submenu->isVisible() && Choose(submenu, path.mid(1)));
}

inline void PlanChoice(const ItemPath& path, bool& chosen) {
    UseNextMenu([&](QMenu* menu) {
        chosen = Choose(menu, path);
        if (!chosen) {
            menu->close();
        }
    });
}

inline void CollectChecks(const QMenu* menu, const QString& prefix,
                          std::map<QString, bool>& checks) {
    for (const QAction* action : menu->actions()) {
        checks[prefix + action->text()] = action->isChecked();
        if (action->menu() != nullptr) {
            CollectChecks(action->menu(), prefix + action->text() + "/", checks);
        }
    }
}

// Opens the popup of the menu bar's button and presses Enter on the item, or opens it by a
// tap-and-hold at the client point. False when no popup opened or it has no such item.
inline bool ChooseFromBar(Handheld& handheld, const QString& tooltip, const ItemPath& path) {
    bool chosen = false;
    PlanChoice(path, chosen);
    return handheld.PressButton(tooltip) && chosen;
}

inline bool ChooseFromContext(Handheld& handheld, POINT point, const ItemPath& path) {
    bool chosen = false;
    PlanChoice(path, chosen);
    handheld.RightClick(point.x, point.y);
    return chosen;
}

// Opens the popup of the menu bar's button and closes it again: which of its items are checked, by
// their texts, joined with "/".
inline std::map<QString, bool> ChecksOf(Handheld& handheld, const QString& tooltip) {
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

// A key for whatever has the focus: a button of the menu bar or the program's window.
inline void PressFocusedKey(Handheld& handheld, int key,
                            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    if (QWidget* focus = Host().focusWidget()) {
        SendKey(focus, key, modifiers);
    }
    handheld.Settle();
}
