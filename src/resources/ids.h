// The numbers of commands and resources.
#pragma once

constexpr int stringTitle = 1;
constexpr int stringClassName = 3;
constexpr int iconQuadrel = 101;
constexpr int acceleratorTable = 3;
constexpr int menuMain = 102;
constexpr int menuContext = 150;
constexpr int menuBarMain = 102;
constexpr int menuBarBitmap = 120;
constexpr int menuBarImages = 9;
constexpr int bitmapAbout = 137;
constexpr int bitmapKeyboard = 138;
constexpr int bitmapLogoLeft = 145;
constexpr int bitmapLogoTop = 146;
constexpr int bitmapLogoRight = 147;

constexpr int dialogDownload = 101;
constexpr int dialogAbout = 103;
constexpr int dialogPreferences = 104;
constexpr int dialogClueList = 126;
constexpr int dialogQuickHelp = 127;

// Controls of the clue list.
constexpr int controlClueTabs = 1024;
constexpr int controlClues = 1025;

// Controls of the preferences.
constexpr int controlSmall = 1002;
constexpr int controlMedium = 1003;
constexpr int controlLarge = 1004;
constexpr int controlSizeGroup = 1017;
constexpr int controlColorGroup = 1018;
constexpr int controlToggleGroup = 1019;
constexpr int controlBackgroundColor = 1023;
constexpr int controlSquareColor = 1024;
constexpr int controlAutoSkip = 1043;
constexpr int controlShowNumbers = 1057;

// Controls of the download dialog.
constexpr int controlLinks = 1030;
constexpr int controlGet = 1031;
constexpr int controlDeleteLink = 1032;
constexpr int controlLink = 1033;
constexpr int controlGetNew = 1034;
constexpr int controlDownloadHeading = 1035;
constexpr int controlKeepLinks = 1047;

// Controls of quick help and About.
constexpr int controlHelpOpen = 1037;
constexpr int controlHelpClose = 1055;
constexpr int controlAboutClose = 1063;

constexpr int commandClose = 1;
constexpr int commandExit = 40006;
constexpr int commandPreferences = 40007;
constexpr int commandHelp = 40009;
constexpr int commandNothing = 40010;
constexpr int commandAbout = 40011;
constexpr int commandHintWord = 40020;
constexpr int commandHintLetter = 40021;
constexpr int commandHintMenu = 40026;
constexpr int commandToggleDirection = 40047;
constexpr int commandHintPuzzle = 40048;
constexpr int commandOpen = 40051;
constexpr int commandSizeMenu = 40052;
constexpr int commandClueList = 40054;
constexpr int commandMainMenu = 40056;
constexpr int commandCheck = 40062;
constexpr int commandSmall = 40066;
constexpr int commandMedium = 40067;
constexpr int commandLarge = 40068;
constexpr int commandPuzzleInfo = 40071;
constexpr int commandKeyboard = 40072;
constexpr int commandClearPuzzle = 40077;
constexpr int commandClearWord = 40078;
constexpr int commandClearLetter = 40079;
constexpr int commandQuit = 40086;
constexpr int commandAvailable = 40088;
constexpr int commandDownload = 40089;
constexpr int commandAutoSkip = 40092;
constexpr int commandNumbers = 40093;
constexpr int commandFillLetter = 40094;
constexpr int commandFillWord = 40095;
constexpr int commandFillPuzzle = 40096;
