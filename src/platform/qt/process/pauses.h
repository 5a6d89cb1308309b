// Moments that may be the last for a while: the player turns to another window, the computer
// sleeps.
#pragma once

// In each of them the program is asked to keep its state. Once, before the program runs.
void WatchForPauses();
