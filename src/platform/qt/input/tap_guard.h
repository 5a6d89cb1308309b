// Drops taps that would reach something else than the player saw: the second tap of a quick pair
// whose first one opened or closed what lies there, and a tap at the moment when something opens.
#pragma once

// Less than anybody needs to see what opened and to tap it. Tests choose their own.
inline int blinkMilliseconds = 200;

// Called once there is an application object.
void GuardTaps();

// What lies under the stylus has changed: a dialog, box or chooser came or went, or a menu went.
void GroundChanged();
