// Who asks the program to end from outside: signals, the end of the desktop session, the loss of
// the display.
#pragma once

// Called once.
void WatchForEndings();
