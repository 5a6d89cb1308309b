// Files that a player hands to the game from outside its window's controls.
#pragma once

#include <QtCore/QStringList>

// Absolute paths. They wait until the program asks for messages itself, when no box and no dialog
// is open above its window, and are told all together.
void HandOver(const QStringList& files);

// Those that wait.
const QStringList& WaitingFiles();

// Queues WM_DROPFILES when some wait.
void TellWaitingFiles();
