// The size and the place of the host's window, kept for the next start: for each arrangement of
// screens its own.
#pragma once

class QWidget;

// As it was left last; unchanged when that is not known. Never outside of the screens there are.
void RestorePlace(QWidget& window);
void KeepPlace(const QWidget& window);
