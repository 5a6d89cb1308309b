// How screens look, as pictures that are too coarse to tell one font renderer from another.
#pragma once

#include <QtGui/QImage>
#include <string>

// What differs where the two differ most, of 255, in patches of four logical pixels.
int LargestDifference(const QImage& screen, const QImage& other);

// The screen looks as it did when its picture was put beside this file, by a run with
// QUADREL_RECORD_LOOKS in its environment.
void ExpectLooksAsRecorded(const QImage& screen, const std::string& name);
