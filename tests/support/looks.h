// Pictures that a person has looked at, in support/looks, to compare the program's with. They are
// recorded when QUADREL_RECORD_LOOKS is set.
#pragma once

#include <QtGui/QImage>
#include <string>

// In patches of four by four logical pixels of a screen, which look alike at every magnification.
int LargestDifference(const QImage& screen, const QImage& other);
// In patches of two by two: text may look a little different, as it does with another version of a
// font or of its rasteriser.
void ExpectLooksAsRecorded(const QImage& screen, const std::string& name);

// Pixel by pixel, for what is drawn without text.
void ExpectDrawnAsRecorded(const QImage& picture, const std::string& name);
