// The host's keys as virtual-key codes, from any layout.
#pragma once

#include <QtCore/QString>
#include <vector>

class QKeyEvent;

// 0 for a key that only modifies others and for one that has no code.
int VirtualKey(const QKeyEvent& event);

// The keys that would type a text committed by an input method; other characters are left out.
std::vector<int> VirtualKeys(const QString& text);
