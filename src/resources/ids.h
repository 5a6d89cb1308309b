// The numbers of commands and resources.
#pragma once

constexpr int stringTitle = 1;
constexpr int stringClassName = 3;
constexpr int iconQuadrel = 101;
constexpr int acceleratorTable = 3;
constexpr int menuBarMain = 102;
constexpr int menuBarBitmap = 120;
constexpr int menuBarImages = 9;

constexpr int commandClose = 1;
constexpr int commandExit = 40006;
constexpr int commandNothing = 40010;
constexpr int commandAbout = 40011;
constexpr int commandHintMenu = 40026;
constexpr int commandToggleDirection = 40047;
constexpr int commandOpen = 40051;
constexpr int commandSizeMenu = 40052;
constexpr int commandClueList = 40054;
constexpr int commandMainMenu = 40056;
constexpr int commandCheck = 40062;
constexpr int commandKeyboard = 40072;
constexpr int commandQuit = 40086;
constexpr int commandAvailable = 40088;
