// The program is asked to end: whichever way, it leads to its WM_CLOSE.
#pragma once

#include <functional>

// Closes what is open above the window, answering no, and queues WM_CLOSE.
void AskProgramToEnd();
// The same, but WM_CLOSE is answered before it returns, unless a window procedure is running.
void EndProgramAtOnce();

// Sends WM_SIZE with SIZE_MINIMIZED, or ends the program when a message box is in the way.
void TellProgramMinimized();

// Whether the program has been asked to end: nothing more may open above its window then.
bool EndingAsked();
// The last window is gone, so the request is answered.
void ForgetEnding();

// Ends all dialogs that are open. Set by the dialog boxes with the first one.
inline std::function<void()> closeOpenDialogs = [] {};
