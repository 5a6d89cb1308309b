// Scrolling the board so that the selected word can be seen.
#pragma once

// Changes ScrollX and ScrollY, and copies the off-screen buffer to the main window after each
// change.
void ScrollIntoView();
