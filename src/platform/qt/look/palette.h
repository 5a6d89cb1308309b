// The colours of all that the toolkit paints for the handheld.
#pragma once

#include <QtGui/QPalette>

// Dark on white, whatever the desktop prefers.
QPalette HandheldPalette();
