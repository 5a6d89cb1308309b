// The faces that text is written in.
#pragma once

#include <QtGui/QFont>

#include "platform/qt/common/font_choice.h"

// The face of the handheld's own texts, by its em in the pixels of whatever it is drawn on.
QFont TextFont(double em, bool bold);
// The face that the program chose, at so many pixels for a logical one.
QFont ChosenFont(const FontChoice& choice, double ratio);

// The font for this text. The search for other faces, for letters that this one has not, is 5 %
// of the time to the first frame; a text of plain letters goes without.
QFont FontFor(const QString& text, QFont font);
