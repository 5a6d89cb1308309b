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

// The message that GetMessageW returned last: what key and stylus state belong to.
const QueuedMessage& CurrentMessage();

// Whether a window procedure is running, so that a new message would nest inside it.
bool InsideProcedure();

void DropMessagesOf(HWND window);
// Keys, stylus and commands only.
void DropInputOf(HWND window);
