// The colours of the handheld's own parts, and its face.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>

inline const QColor letterboxColor(0x1B, 0x22, 0x29);
inline const QColor titleBarColor(0x2F, 0x6D, 0xB5);
inline const QColor titleTextColor(0xFF, 0xFF, 0xFF);
inline const QColor barColor(0xE9, 0xEC, 0xEF);
inline const QColor barEdgeColor(0xA9, 0xB2, 0xBA);
inline const QColor pressedColor(0xC3, 0xD6, 0xEC);
inline const QColor hoverColor(0xDB, 0xE5, 0xF0);
inline const QColor inkColor(0x22, 0x30, 0x3C);
inline const QColor panelColor(0xC6, 0xCD, 0xD4);
inline const QColor keyColor(0xFF, 0xFF, 0xFF);
inline const QColor specialKeyColor(0xE3, 0xE8, 0xEC);

// The face of all text, by its em in the pixels of whatever it is drawn on.
QFont BarFont(double pixelSize, bool bold);

// The font for this text. The search for other faces, for letters that this one has not, is long;
// a text of plain letters goes without.
QFont FontFor(const QString& text, QFont font);
