// The queue between the host's events and the program's message loop.
#pragma once

#include "platform/windows.h"

struct QueuedMessage {
    MSG message;
    bool shortcut = false;    // a key pressed together with Ctrl alone
    bool heldAtOnce = false;  // a pen down that counts as a tap-and-hold, like a right click
};

void PostMessage(const QueuedMessage& message);

bool MessagesWaiting();
// Makes the oldest one the current one. Only while messages are waiting.
const QueuedMessage& TakeMessage();
// The one that was taken last: what key and stylus state belong to.
const QueuedMessage& CurrentMessage();

// A virtual key goes down, alone or with others held.
bool IsKey(UINT message);
// A key, the stylus or a command.
bool IsInput(UINT message);

void DropMessagesOf(HWND window);
// Keys, stylus and commands only.
void DropInputOf(HWND window);
