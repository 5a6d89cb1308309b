// Reading the system's font configuration while the display is being connected.
#pragma once

// Called once, first of all. Reading the configuration takes as long as all the rest of an empty
// window's start; done beside it, the first frame does not wait for it. Without the library it
// does nothing, and the toolkit reads the configuration itself.
void WarmUpFonts();

// Called once the application object is there: goes on with the toolkit's own list of fonts.
void WarmUpFontDatabase();

// Returns when the reading is done: two threads at it would only do it twice.
void AwaitFonts();
