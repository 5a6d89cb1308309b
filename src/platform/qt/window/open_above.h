// What the toolkit has open above the program's windows.
#pragma once

// With their submenus.
void ClosePopups();
// Popups, message boxes and choosers, as if the player had closed them.
void CloseEverythingAbove();
