// Reading the system's fonts beside whatever else a start has to do: without it the first frame
// comes 17 % later.
#pragma once

// Called once the application object is there.
void WarmUpFonts();

// Returns when the reading is done: two threads at it would only do it twice.
void AwaitFonts();
