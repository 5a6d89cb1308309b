// The process around the program: what is brought up before WinMain, for the game and for whatever
// drives it.
#pragma once

#include <QtWidgets/QApplication>
#include <memory>

// Called once, first of all. The count and the arguments must outlive the result.
std::unique_ptr<QApplication> BringHandheldUp(int& argumentCount, char** arguments);

// Puts the folders in place, then runs the program; returns WinMain's result.
int RunProgram();
