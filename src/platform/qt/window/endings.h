// All the ways a program is asked to end lead to its WM_CLOSE.
#pragma once

// Signals, the end of the desktop session and the loss of the display. Called once.
void WatchForEndings();

// Closes what is open above the window, answering no, and queues WM_CLOSE.
void AskProgramToEnd();

// Whether the program has been asked to end: nothing more may open above its window then.
bool EndingAsked();
// The last window is gone, so the request is answered.
void ForgetEnding();

// Sends WM_SIZE with SIZE_MINIMIZED, or ends the program when a message box is in the way.
void TellProgramMinimized();
