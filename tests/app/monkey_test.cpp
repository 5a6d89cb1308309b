// A player without a plan: everything that can be tapped, dragged, held, typed and chosen, in any
// order. Whatever happens, the board stays a board.
//
// QUADREL_MONKEY_STEPS says how many steps, QUADREL_MONKEY_SEED where the chances start.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "board/clue_bar.h"
#include "keyboard/keyboard_drawing.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/qt/host/host_window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int defaultSteps = 12000;
#else
constexpr int defaultSteps = 16000;
#endif

int NumberFromEnvironment(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

// The selection of a puzzle that starts with a black square belongs to no word.
std::vector<BoardRows> Puzzles(std::mt19937& random) {
    const BoardRows small = {"ABC.D", "EFGHI", ".JKLM", "NO.PQ", "RSTU."};
    const BoardRows blackCorner = {".ABC", "DEFG", "HI.J", "KLM."};
    return {small,       RandomBoard(random, 15, 15, 17), RandomBoard(random, 21, 21, 15),
            blackCorner, RandomBoard(random, 40, 40, 12), {"AB", "CD"}};
}

class Monkey {
public:
    Monkey(std::mt19937& chances, const TemporaryHome& home) : random(chances), handheld(home) {
        solution.assign(SolutionGrid, SolutionGrid + maxCells);
    }

    // The tests after this one expect a screen of the usual size.
    ~Monkey() {
        handheld.Resize(1);
    }
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    // Says what it did.
    std::string Step() {
        using Action = std::string (Monkey::*)();
        static constexpr std::pair<int, Action> actions[] = {
            {250, &Monkey::Tap},      {150, &Monkey::Drag},           {250, &Monkey::PressKey},
            {100, &Monkey::HoldCell}, {150, &Monkey::ChooseFromMenu}, {90, &Monkey::PressBarButton},
            {9, &Monkey::Resize},     {1, &Monkey::HoldForLong}};
        int left = Below(1000);
        for (const auto& [chances, action] : actions) {
            left -= chances;
            if (left < 0) {
                return (this->*action)();
            }
        }
        return "";
    }

    void ExpectSoundState() {
        ASSERT_TRUE(handheld.Running());
        ASSERT_TRUE(std::equal(solution.begin(), solution.end(), SolutionGrid));
        for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
            const char entered = PlayerGrid[cell];
            ASSERT_EQ(entered == '.', SolutionGrid[cell] == '.') << "cell " << cell;
            ASSERT_TRUE(entered == '.' || entered == '-' || (entered >= 'A' && entered <= 'Z'))
                << "cell " << cell << " holds " << int{entered};
        }
        ExpectSoundSelection();
        ExpectSoundView();
        ExpectCleanScreen();
        TakeShownMessages();
    }

private:
    int Below(int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    }

    // The flash of a key takes its time, so that most points lie above the keyboard.
    POINT AnyPoint() {
        const bool sparesKeyboard = KeyboardVisible == 1 && Below(8) != 0;
        return {Below(240), Below(sparesKeyboard ? 225 : 268)};
    }

    static std::string At(POINT point) {
        return " " + std::to_string(point.x) + ", " + std::to_string(point.y);
    }

    std::string Tap() {
        const POINT point = AnyPoint();
        handheld.Tap(point.x, point.y);
        return "tap" + At(point);
    }

    // Some leave the window.
    std::string Drag() {
        const POINT from = AnyPoint();
        const POINT to{Below(300) - 30, KeyboardVisible == 1 ? Below(250) - 30 : Below(330) - 30};
        handheld.Drag(from, to);
        return "drag" + At(from) + " to" + At(to);
    }

    std::string PressKey() {
        constexpr int keys[] = {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Left,   Qt::Key_Right,
                                Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Escape, Qt::Key_Tab,
                                Qt::Key_Space,     Qt::Key_F5,     Qt::Key_7,      Qt::Key_Delete};
        const int key =
            Below(2) == 0 ? 'A' + Below(26) : keys[Below(static_cast<int>(std::size(keys)))];
        handheld.Press(key);
        return "key " + std::to_string(key);
    }

    std::string HoldCell() {
        const POINT point = AnyPoint();
        const char* menus[] = {"Clear", "Fill", "View"};
        const char* scopes[] = {"Letter", "Word", "Puzzle"};
        const ItemPath path{menus[Below(3)], scopes[Below(3)]};
        const std::string answer = AnswerFor(path);
        EXPECT_TRUE(ChooseFromContext(handheld, point, path));
        return "hold" + At(point) + " " + path.join("/").toStdString() + answer;
    }

    std::string ChooseFromMenu() {
        static const std::pair<const char*, ItemPath> items[] = {
            {"Main Menu", {"Toggle", "Auto Skip"}}, {"Main Menu", {"Toggle", "Numbers"}},
            {"Main Menu", {"Fill", "Letter"}},      {"Main Menu", {"Fill", "Word"}},
            {"Main Menu", {"Clear", "Letter"}},     {"Main Menu", {"Clear", "Word"}},
            {"Main Menu", {"Clear", "Puzzle"}},     {"Main Menu", {"Puzzle Info"}},
            {"Display a hint", {"Current Letter"}}, {"Display a hint", {"Current Word"}},
            {"Display a hint", {"Entire Puzzle"}},  {"Puzzle magnification", {"Small"}},
            {"Puzzle magnification", {"Medium"}},   {"Puzzle magnification", {"Large"}},
        };
        const auto& [button, path] = items[Below(static_cast<int>(std::size(items)))];
        const std::string answer = AnswerFor(path);
        EXPECT_TRUE(ChooseFromBar(handheld, button, path));
        return path.join("/").toStdString() + answer;
    }

    std::string PressBarButton() {
        constexpr const char* buttons[] = {"Checks the puzzle", "Toggle clues across / down",
                                           "Display Keyboard",  "Keyboard",
                                           "Main Menu",         "Puzzle magnification"};
        const char* button = buttons[Below(static_cast<int>(std::size(buttons)))];
        EXPECT_TRUE(handheld.PressButton(button)) << button;
        TakeOpenedMenus();
        return button;
    }

    std::string Resize() {
        constexpr double magnifications[] = {1, 1, 1.37, 2};
        const double magnification = magnifications[Below(4)];
        handheld.Resize(magnification);
        return "resize " + std::to_string(magnification);
    }

    std::string HoldForLong() {
        const POINT point = AnyPoint();
        handheld.Hold(point.x, point.y);
        return "hold" + At(point);
    }

    // Clearing the puzzle asks first.
    std::string AnswerFor(const ItemPath& path) {
        if (path != ItemPath{"Clear", "Puzzle"}) {
            return "";
        }
        const bool sure = Below(3) == 0;
        AnswerNextMessageBox(sure ? IDYES : IDNO);
        return sure ? " yes" : " no";
    }

    void ExpectSoundSelection() {
        ASSERT_TRUE(CursorRow >= 0 && CursorRow < PuzzleHeight) << CursorRow;
        ASSERT_TRUE(CursorCol >= 0 && CursorCol < PuzzleWidth) << CursorCol;
        ASSERT_TRUE(Direction == 0 || Direction == 1);
        ASSERT_EQ(Magnification.Small + Magnification.Medium + Magnification.Large, 1);
        ASSERT_EQ(ShowSolution, 0);
        ASSERT_EQ(TapHoldActive, 0);
    }

    static void ExpectSoundView() {
        const bool panelUp = Host().PanelUp();
        ASSERT_FALSE(panelUp && KeyboardVisible == 1);
        ASSERT_EQ(BottomReserve, KeyboardVisible == 1 ? 65 : 20);
        ASSERT_EQ(ViewHeight, (panelUp ? 188 : 268) - BottomReserve);
        ASSERT_TRUE(ScrollX >= 0 && ScrollX <= BufferWidth - ViewWidth) << ScrollX;
        ASSERT_TRUE(ScrollY >= 0 && ScrollY < BufferHeight) << ScrollY;
        ASSERT_EQ(OffscreenBuffer.width, BufferWidth);
        ASSERT_EQ(OffscreenBuffer.height, BufferHeight);
        ASSERT_GE(BufferWidth, BoardLeft + PuzzleWidth * CellSize);
        ASSERT_GE(BufferHeight, PuzzleHeight * CellSize);
        if (Magnification.Small == 1) {
            ASSERT_EQ(CellSize, std::min(240 / PuzzleWidth, ViewHeight / PuzzleHeight));
        } else {
            ASSERT_EQ(CellSize, Magnification.Medium == 1 ? 20 : 24);
        }
    }

    // Everything that belongs on the window is painted on a white one: the same must be there
    // already, without a strip of something older.
    void ExpectCleanScreen() {
        const QImage before = handheld.Client();
        HDC context = GetDC(MainWindow);
        PatBlt(context, 0, 0, 240, 268, WHITENESS);
        ReleaseDC(MainWindow, context);
        PaintClueBar(MainWindow);
        DrawKeyboardIfVisible(MainWindow);
        CopyViewToScreen(MainWindow);
        ASSERT_EQ(handheld.Client(), before);
    }

    std::mt19937& random;
    Handheld handheld;
    std::string solution;
};

void PlayLikeAMonkey(std::mt19937& random, const BoardRows& rows, int steps) {
    const TemporaryHome home;
    WriteBytes(home.documents() / "monkey.puz", PuzzleBytes(rows));
    Monkey monkey(random, home);
    ASSERT_EQ(PuzzleWidth, static_cast<int>(rows.size()));
    std::string last;
    for (int step = 0; step < steps; ++step) {
        const std::string done = monkey.Step();
        SCOPED_TRACE("step " + std::to_string(step) + " on a board of " +
                     std::to_string(rows.size()) + ": " + done + ", after " + last);
        ASSERT_NO_FATAL_FAILURE(monkey.ExpectSoundState());
        ASSERT_FALSE(testing::Test::HasFailure());
        last = done;
    }
}

TEST(MonkeyTest, NothingThatAPlayerDoesBreaksTheBoard) {
    const int seed = NumberFromEnvironment("QUADREL_MONKEY_SEED", 1);
    const int steps = NumberFromEnvironment("QUADREL_MONKEY_STEPS", defaultSteps);
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(static_cast<unsigned>(seed));
    const std::vector<BoardRows> puzzles = Puzzles(random);
    for (const BoardRows& rows : puzzles) {
        ASSERT_NO_FATAL_FAILURE(
            PlayLikeAMonkey(random, rows, steps / static_cast<int>(puzzles.size())));
    }
}

}  // namespace
