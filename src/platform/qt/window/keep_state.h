// Asking the program to keep its state while it is played.
#pragma once

// Milliseconds from an input until what it changed should be kept.
inline int timeUntilKept = 2000;

// What follows may change something. Soon after the first of such inputs the program is asked.
void KeepStateSoon();
// When the moment may be the last for a while.
void KeepStateNow();
