// Running the toolkit's own dialogs over the handheld's screen.
#pragma once

class QDialog;

// Sizes the dialog's text with the screen, shows it over the screen and returns its result.
int RunModal(QDialog& dialog);
