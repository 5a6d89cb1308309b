// Answering the real message boxes, choosers and menus of a program under test.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/types.h"

class QMenu;

// For the main program of the tests, with the application object in place.
void AnswerBoxes();

struct ShownMessage {
    std::u16string text;
    std::u16string title;
    bool operator==(const ShownMessage&) const = default;
};
void PrintTo(const ShownMessage& message, std::ostream* out);

// The answer (IDOK, IDYES, IDNO) for the next box that nobody has planned an answer for yet.
// A box without a planned answer is closed like with Escape.
void AnswerNextMessageBox(int answer);

// Something that happens while the next box is open, before it is answered.
void DoDuringNextMessageBox(std::function<void()> action);

// All boxes shown since the last call.
std::vector<ShownMessage> TakeShownMessages();

// The file that the next file chooser is given; an empty path cancels it, and so does having
// planned nothing. A bare name is one in the folder that the chooser shows.
void ChooseNextFile(const std::filesystem::path& file);
// What the chooser suggests.
inline const std::filesystem::path asSuggested = ".";

// A test that failed may not have used all of its plans.
void ForgetPlans();

struct ShownChooser {
    std::u16string title;
    std::filesystem::path folder;
    std::string name;  // the one suggested
};

// All file choosers shown since the last call.
std::vector<ShownChooser> TakeShownChoosers();

// The colour that the next colour chooser is given, and whether it is accepted or cancelled.
void PickNextColor(COLORREF color, bool accept);

// What is done with the next menu of the program, or with its next dialog, which is still open
// then: both run a loop of their own. A dialog that nobody planned to use is closed at once.
void UseNextMenu(std::function<void(QMenu*)> use);
void UseNextDialog(std::function<void()> use);

// The next box, chooser or menu is compared with its picture of that name (looks.h).
void CompareNextBox(const std::string& name);

// How many popup menus were opened since the last call. Each is closed again at once.
int TakeOpenedMenus();
