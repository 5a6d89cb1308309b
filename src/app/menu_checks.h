// The check marks of the toggle and size items.
#pragma once

#include "platform/types.h"

// The popup that the menu bar gave out last. Written by UpdateMenuChecks.
inline HMENU MenuScratch = nullptr;

// Makes the marks agree with AutoSkip, ShowNumbers and Magnification.
void UpdateMenuChecks();
