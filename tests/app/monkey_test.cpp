// A player without a plan: everything that can be tapped, dragged, held, typed and chosen, in any
// order, beside the plain game that goes along. After every step both hold the same letters, the
// same selection and settings, and show the same picture; the files they leave are the same too.
//
// QUADREL_MONKEY_STEPS says how many steps a board, QUADREL_MONKEY_SEED where the chances start.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <random>

#include "platform/dialogs.h"
#include "support/menus.h"
#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

int NumberFromEnvironment(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

struct Puzzle {
    std::string name;
    BoardRows rows;
    // As they were when the puzzle was left.
    std::optional<BoardRows> letters = std::nullopt;
    PlainSettings settings = {};

    std::string Path() const {
        return "\\My Documents\\" + name + ".puz";
    }
};

// The second one is higher than the window above the soft input panel, but not wider.
class Monkey {
public:
    Monkey(unsigned seed, const BoardRows& rows)
        : random(seed),
          puzzles{Puzzle{"a", rows}, Puzzle{"b", RandomBoard(random, 10, 10, 15)},
                  Puzzle{"c", {"ABC", "D.E", "FGH"}}} {
        for (const Puzzle& puzzle : puzzles) {
            WriteBytes(home.documents() / (puzzle.name + ".puz"), PuzzleBytes(puzzle.rows));
        }
        // It starts with the first one, with letters that are another puzzle's.
        ForgetPuzzle();
        WriteBytes(home.stateFile(),
                   PlainRecord(puzzles[0].Path(), BoardRows(rows.size(), BlackRow(rows.size())),
                               PlainSettings()));
        handheld.emplace(home);
        plain.emplace(rows);
    }
    // The tests after this one expect a screen of the usual size.
    ~Monkey() {
        handheld->Resize(1);
        handheld.reset();
        TakeShownMessages();
    }
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    // Says what it did.
    std::string Step() {
        using Action = std::string (Monkey::*)();
        static constexpr std::pair<int, Action> actions[] = {
            {24, &Monkey::Tap},      {12, &Monkey::Drag},           {28, &Monkey::Press},
            {9, &Monkey::HoldCell},  {12, &Monkey::ChooseFromMenu}, {9, &Monkey::PressBarButton},
            {1, &Monkey::Resize},    {1, &Monkey::Recolor},         {3, &Monkey::OpenAnother},
            {1, &Monkey::StartAgain}};
        int left = Below(100);
        for (const auto& [chances, action] : actions) {
            left -= chances;
            if (left < 0) {
                return (this->*action)();
            }
        }
        return "";
    }

    void ExpectSame() {
        plain->ExpectSame(*handheld);
    }

private:
    static std::string BlackRow(std::size_t side) {
        return std::string(side, '.');
    }
    int Below(int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    }
    bool Sometimes(int chances) {
        return Below(chances) == 0;
    }

    // Often in the selected cell, at the edges of a cell or on a key.
    POINT AnyPoint() {
        // The flash of a key takes its time, so that most points lie above the keyboard.
        const int bottom = plain->keyboardUp ? 225 : plain->panelUp ? 188 : 268;
        if (plain->keyboardUp && Sometimes(5)) {
            const int upTo = Sometimes(3) ? 4 : 43;
            return {Sometimes(4) ? 220 : Below(240), Sometimes(4) ? 260 : 225 + Below(upTo)};
        }
        if (Sometimes(3)) {
            return Within(plain->MiddleOf(plain->selected), bottom);
        }
        if (Sometimes(3)) {
            const int row = Sometimes(3) ? plain->Side() : Below(plain->Side());
            const POINT middle = plain->MiddleOf({row, Below(plain->Side() + 1)});
            const int half = CellSize / 2;
            return Within({middle.x - half + Below(3) - 1, middle.y - half + Below(3) - 1}, bottom);
        }
        return {Below(240), Below(bottom)};
    }
    static POINT Within(POINT point, int bottom) {
        return {std::clamp<LONG>(point.x, 0, 239), std::clamp<LONG>(point.y, 0, bottom - 1)};
    }
    static std::string At(POINT point) {
        return " " + std::to_string(point.x) + ", " + std::to_string(point.y);
    }

    std::string Tap() {
        const POINT point = AnyPoint();
        handheld->Tap(point.x, point.y);
        plain->Tap(point);
        return "tap" + At(point);
    }

    // Some leave the window, some end in its last pixel, some are no longer than a hand trembles.
    std::string Drag() {
        const POINT from = AnyPoint();
        const int bottom = plain->panelUp ? 188 : 268;
        POINT to{Below(300) - 30, Below(bottom) - 30};
        if (Sometimes(3)) {
            // By whole cells, or a pixel beside, where a comparison that is not strict shows.
            to = {from.x + (Below(9) - 4) * CellSize + Below(3) - 1,
                  from.y + (Below(9) - 4) * CellSize + Below(3) - 1};
        } else if (Sometimes(4)) {
            to = {from.x + Below(11) - 5, from.y + Below(11) - 5};
        } else if (Sometimes(4)) {
            to = {Below(2) * 239, Below(2) * (plain->ViewHeight() - 1)};
        }
        handheld->Drag(from, to);
        plain->Drag(from, to);
        return "drag" + At(from) + " to" + At(to);
    }

    std::string Press() {
        constexpr int keys[] = {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Left,   Qt::Key_Right,
                                Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Escape, Qt::Key_Tab,
                                Qt::Key_Space,     Qt::Key_F5,     Qt::Key_7,      Qt::Key_Delete};
        const int key = Sometimes(2) ? 'A' + Below(26) : keys[Below(std::size(keys))];
        handheld->Press(key);
        plain->Press(key);
        return "key " + std::to_string(key);
    }

    std::string HoldCell() {
        static constexpr const char* menus[] = {"Clear", "Fill", "View"};
        static constexpr const char* scopes[] = {"Letter", "Word", "Puzzle"};
        const POINT point = AnyPoint();
        const ItemPath path{menus[Below(3)], scopes[Below(3)]};
        const bool sure = AnswerIfAsked(path);
        EXPECT_TRUE(ChooseFromContext(*handheld, point, path));
        plain->HoldAt(point);
        return "hold" + At(point) + " " + GoAlong(path, sure);
    }

    std::string ChooseFromMenu() {
        static const std::pair<const char*, ItemPath> items[] = {
            {mainMenu, {"Toggle", "Auto Skip"}},
            {mainMenu, {"Toggle", "Numbers"}},
            {mainMenu, {"Toggle", "Numbers"}},
            {mainMenu, {"Fill", "Letter"}},
            {mainMenu, {"Fill", "Word"}},
            {mainMenu, {"Fill", "Puzzle"}},
            {mainMenu, {"Clear", "Letter"}},
            {mainMenu, {"Clear", "Word"}},
            {mainMenu, {"Clear", "Puzzle"}},
            {hintMenu, {"Current Letter"}},
            {hintMenu, {"Current Word"}},
            {hintMenu, {"Entire Puzzle"}},
            {sizeMenu, {"Small"}},
            {sizeMenu, {"Medium"}},
            {sizeMenu, {"Large"}},
        };
        const auto& [button, path] = items[Below(std::size(items))];
        const bool sure = AnswerIfAsked(path);
        EXPECT_TRUE(ChooseFromBar(*handheld, button, path));
        return GoAlong(path, sure);
    }

    std::string GoAlong(const ItemPath& path, bool sure) {
        const std::string item = path.join("/").toStdString();
        if (sure) {
            plain->Choose(item);
        }
        return item + (sure ? "" : " after all not");
    }

    // Clearing the puzzle asks first.
    bool AnswerIfAsked(const ItemPath& path) {
        if (path != ItemPath{"Clear", "Puzzle"}) {
            return true;
        }
        const bool sure = Sometimes(3);
        AnswerNextMessageBox(sure ? IDYES : IDNO);
        return sure;
    }
    std::string PressBarButton() {
        constexpr const char* buttons[] = {"Checks the puzzle", "Toggle clues across / down",
                                           "Display Keyboard", "Keyboard"};
        const int button = Below(5);
        if (button == 4) {
            return CompareMenus();
        }
        TakeShownMessages();
        EXPECT_TRUE(handheld->PressButton(buttons[button]));
        if (button == 0) {
            const bool speaks = plain->Check();
            EXPECT_EQ(TakeShownMessages().size(), speaks ? 1u : 0u);
        } else if (button == 1) {
            plain->TurnDirection();
        } else if (button == 2) {
            plain->ToggleKeyboard();
        } else {
            plain->TogglePanel();
        }
        return buttons[button];
    }

    std::string CompareMenus() {
        const auto main = ChecksOf(*handheld, mainMenu);
        EXPECT_EQ(main.at("Toggle/Auto Skip"), plain->settings.autoSkip);
        EXPECT_EQ(main.at("Toggle/Numbers"), plain->settings.numbers);
        const auto size = ChecksOf(*handheld, sizeMenu);
        EXPECT_EQ(size.at("Small"), plain->settings.size == 0);
        EXPECT_EQ(size.at("Medium"), plain->settings.size == 1);
        EXPECT_EQ(size.at("Large"), plain->settings.size == 2);
        return "menus";
    }

    std::string Resize() {
        const double magnification = std::array{1.0, 1.37, 2.0}[std::size_t(Below(3))];
        handheld->Resize(magnification);
        return "resize " + std::to_string(magnification);
    }

    std::string Recolor() {
        SquareColor = plain->settings.squares = RGB(Below(256), Below(256), Below(100));
        BackgroundColor = plain->settings.letterCells = RGB(Below(256), 200 + Below(56), 255);
        handheld->Press(Qt::Key_F5);
        plain->Press(Qt::Key_F5);
        return "colours";
    }

    Puzzle& Present() {
        return *std::find_if(puzzles.begin(), puzzles.end(),
                             [this](const Puzzle& puzzle) { return puzzle.name == present; });
    }

    // The puzzle in play may be chosen, too: it is saved and restored.
    std::string OpenAnother() {
        Puzzle& chosen = puzzles[std::size_t(Below(3))];
        ChooseNextFile(home.documents() / (chosen.name + ".puz"));
        const bool sure = Below(4) != 0;
        AnswerNextMessageBox(sure ? IDYES : IDNO);
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
        if (!sure) {
            return "a box";
        }
        Present().letters = plain->letters;
        Present().settings = plain->settings;
        EXPECT_TRUE(ReadBytes(home.documents() / (present + ".dat")) ==
                    PlainRecord(Present().Path(), plain->letters, plain->settings));
        present = chosen.name;
        if (chosen.letters) {
            plain->settings = chosen.settings;
        }
        plain->Open(chosen.rows, chosen.letters.value_or(EmptyBoard(chosen.rows)));
        return "open " + present;
    }

    std::string StartAgain() {
        handheld.reset();
        EXPECT_TRUE(ReadBytes(home.stateFile()) ==
                    PlainRecord(Present().Path(), plain->letters, plain->settings));
        ForgetPuzzle();
        handheld.emplace(home);
        plain->StartAgain();
        return "start";
    }

    static constexpr const char* mainMenu = "Main Menu";
    static constexpr const char* hintMenu = "Display a hint";
    static constexpr const char* sizeMenu = "Puzzle magnification";

    std::mt19937 random;
    std::array<Puzzle, 3> puzzles;
    std::string present = "a";
    TemporaryHome home;
    std::optional<Handheld> handheld;
    std::optional<PlainGame> plain;
};

class MonkeyTest : public testing::TestWithParam<int> {};

// The selection of a puzzle that starts with a black square belongs to no word.
BoardRows BoardOfSide(int side) {
    std::mt19937 random(static_cast<unsigned>(side));
    switch (side) {
        case 2: return {"AB", "CD"};
        case 4: return {".ABC", "DEFG", "HI.J", "KLM."};
        case 5: return {"ABC.D", "EFGHI", ".JKLM", "NO.PQ", "RSTU."};
        default: return RandomBoard(random, side, side, side == 40 ? 12 : 16);
    }
}

TEST_P(MonkeyTest, WhateverAPlayerDoesTheGameIsThePlainOne) {
    const int seed = NumberFromEnvironment("QUADREL_MONKEY_SEED", 1) + GetParam();
    const int steps = NumberFromEnvironment("QUADREL_MONKEY_STEPS", 300);
    Monkey monkey(static_cast<unsigned>(seed), BoardOfSide(GetParam()));
    ASSERT_NO_FATAL_FAILURE(monkey.ExpectSame());
    std::string last;
    for (int step = 0; step < steps; ++step) {
        const std::string done = monkey.Step();
        SCOPED_TRACE("step " + std::to_string(step) + ": " + done + ", after " + last);
        ASSERT_NO_FATAL_FAILURE(monkey.ExpectSame());
        ASSERT_FALSE(HasFailure());
        last = done;
    }
}

INSTANTIATE_TEST_SUITE_P(BoardOfSide, MonkeyTest, testing::Values(2, 4, 5, 15, 21, 40),
                         testing::PrintToStringParamName());

}  // namespace
