// Using the real popup menus with the arrow keys and Enter, as a person does.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <functional>
#include <map>

#include "support/handheld.h"

class QMenu;

// The texts on the way to an item, like {"Fill", "Word"}.
using ItemPath = QStringList;

// Opens the popup of the menu bar's button and presses Enter on the item, or opens it by a
// tap-and-hold at the client point. False when no popup opened or it has no such item.
bool ChooseFromBar(Handheld& handheld, const QString& tooltip, const ItemPath& path);
bool ChooseFromContext(Handheld& handheld, POINT point, const ItemPath& path);

struct ShownItem {
    bool checked = false;
};

struct ShownMenu {
    std::map<QString, ShownItem> items;  // by their texts, joined with "/"
};

// Opens the popup of the menu bar's button and closes it again.
ShownMenu LookAtMenu(Handheld& handheld, const QString& tooltip);

// Does something with the next menu that opens; a menu opens inside a loop of its own, so that
// this has to be planned before.
class NextMenu : public QObject {
public:
    explicit NextMenu(std::function<void(QMenu*)> planned);
    // What else closes menus counts them, too.
    ~NextMenu() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::function<void(QMenu*)> use;
};

// Pressed and let go.
void SendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// A key for whatever has the focus: a button of the menu bar or the program's window.
void PressFocusedKey(Handheld& handheld, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
