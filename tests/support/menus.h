// Using the real popup menus with the arrow keys and Enter, as a person does.
#pragma once

#include <QtCore/QStringList>
#include <map>

#include "support/handheld.h"

// The texts on the way to an item, like {"Fill", "Word"}.
using ItemPath = QStringList;

// Opens the popup of the menu bar's button and presses Enter on the item, or opens it by a
// tap-and-hold at the client point. False when no popup opened or it has no such item.
bool ChooseFromBar(Handheld& handheld, const QString& tooltip, const ItemPath& path);
bool ChooseFromContext(Handheld& handheld, POINT point, const ItemPath& path);

// Opens the popup of the menu bar's button and closes it again: which of its items are checked, by
// their texts, joined with "/".
std::map<QString, bool> ChecksOf(Handheld& handheld, const QString& tooltip);

// Pressed and let go.
void SendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// A key for whatever has the focus: a button of the menu bar or the program's window.
void PressFocusedKey(Handheld& handheld, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
