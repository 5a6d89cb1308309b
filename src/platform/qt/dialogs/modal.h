// Running message boxes and choosers over the handheld's screen.
#pragma once

#include <QtGui/QFont>

class QDialog;

// Sized with the screen.
QFont ModalFont();

// A screen without room for the dialog and something beside it is taken whole.
void FitIntoScreen(QDialog& dialog);

// Rejected at once when the program has been asked to end. Else sizes the dialog's text with the
// screen, shows it over the screen and returns its result.
int RunModal(QDialog& dialog);
