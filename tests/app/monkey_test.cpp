// A player without a plan: everything that can be tapped, dragged, held, typed and chosen, in any
// order, beside the plain game that goes along. After every step both hold the same letters, the
// same selection and settings, and show the same picture; the files they leave are the same too.
//
// QUADREL_MONKEY_STEPS says how many steps a board, QUADREL_MONKEY_SEED where the chances start.

#include <optional>

#include "support/menus.h"
#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

struct Puzzle {
    std::string name;
    BoardRows rows;
    // As they were when the puzzle was left; at first the file's own.
    BoardRows letters;
    std::optional<PlainSettings> settings = std::nullopt;
    std::u16string reason = u"";  // why it cannot be played

    std::string Path() const {
        return "\\My Documents\\" + name + ".puz";
    }
    std::string Bytes() const {
        std::string bytes = PuzzleBytes(rows);
        // It starts empty all the same.
        std::string grid = Joined(letters);
        std::replace(grid.begin(), grid.end(), '-', 'Q');
        return bytes.replace(gridOffset + grid.size(), grid.size(), grid);
    }
};

// Every time that the window is brought to the screen, for a moment or longer.
struct ShownPictures : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            pictures.push_back(MainWindow->surface->Image().copy());
        }
        return false;
    }

    std::vector<QImage> pictures;
};

// The second one is higher than the window above the soft input panel, but not wider.
class Monkey {
public:
    Monkey(unsigned seed, const BoardRows& rows)
        : random(seed),
          puzzles{Disagreeing("a", rows), Disagreeing("b", RandomBoard(random, 10, 10, 15)),
                  Disagreeing("c", {"ABC", "D.E", "FGH"}),
                  NoPuzzle("d", BoardRows(41, std::string(41, 'A')),
                           u"This file is not a puzzle that Quadrel can open."),
                  NoPuzzle("e", lopsidedBoard,
                           u"Quadrel plays square puzzles only. This one is 3 by 2.")},
          plain(rows, puzzles[0].letters) {
        for (const Puzzle& puzzle : puzzles) {
            WriteBytes(home.documents() / (puzzle.name + ".puz"), puzzle.Bytes());
        }
        // It starts with the first one, with letters that are another puzzle's.
        ForgetPuzzle();
        const BoardRows black(rows.size(), std::string(rows.size(), '.'));
        WriteBytes(home.stateFile(), PlainRecord(puzzles[0].Path(), black, PlainSettings()));
        handheld.emplace(home);
    }
    // The tests after this one expect a screen of the usual size.
    ~Monkey() {
        handheld->Resize(1);
        handheld.reset();
        TakeShownMessages();
    }
    Q_DISABLE_COPY(Monkey)

    void ExpectSame() {
        plain.ExpectSame(*handheld);
    }
    // Says what it did.
    std::string Step() {
        struct Action {
            int chances;
            const char* name;
            void (Monkey::*act)();
        };
        static constexpr Action actions[] = {{24, "tap", &Monkey::Tap},
                                             {12, "drag", &Monkey::Drag},
                                             {28, "key", &Monkey::Press},
                                             {9, "hold", &Monkey::HoldCell},
                                             {12, "menu", &Monkey::ChooseFromMenu},
                                             {8, "bar", &Monkey::PressBarButton},
                                             {1, "resize", &Monkey::Resize},
                                             {1, "colours", &Monkey::Recolor},
                                             {3, "open", &Monkey::OpenAnother},
                                             {2, "start", &Monkey::StartAgain}};
        const Action* action = actions;
        for (int left = Below(100); left >= action->chances; ++action) {
            left -= action->chances;
        }
        (this->*action->act)();
        return action->name;
    }

private:
    int Below(int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    }
    bool Sometimes(int chances) {
        return Below(chances) == 0;
    }
    static Puzzle NoPuzzle(const std::string& name, const BoardRows& rows,
                           const std::u16string& reason) {
        return {name, rows, EmptyBoard(rows), std::nullopt, reason};
    }
    // One square is black in one of the file's two grids alone.
    Puzzle Disagreeing(const std::string& name, const BoardRows& rows) {
        Puzzle puzzle{name, rows, EmptyBoard(rows)};
        const int side = static_cast<int>(rows.size());
        char& cell = puzzle.letters[std::size_t(Below(side))][std::size_t(Below(side))];
        cell = cell == '.' ? '-' : '.';
        return puzzle;
    }

    // Often in the selected cell, at the edges of a cell or on a key.
    POINT AnyPoint() {
        // The flash of a key takes its time, so that most points lie above the keyboard.
        const int bottom = plain.keyboardUp ? 225 : plain.panelUp ? 188 : 268;
        if (plain.keyboardUp && Sometimes(5)) {
            const int upTo = Sometimes(3) ? 4 : 43;
            return {Sometimes(4) ? 220 : Below(240), Sometimes(4) ? 260 : 225 + Below(upTo)};
        }
        POINT point{Below(240), Below(bottom)};
        if (Sometimes(3)) {
            point = plain.MiddleOf(plain.selected);
        } else if (Sometimes(3)) {
            const int row = Sometimes(3) ? plain.Side() : Below(plain.Side());
            point = plain.MiddleOf({row, Below(plain.Side() + 1)});
            point.x += Below(3) - 1 - CellSize / 2;
            point.y += Below(3) - 1 - CellSize / 2;
        }
        return {std::clamp<LONG>(point.x, 0, 239), std::clamp<LONG>(point.y, 0, bottom - 1)};
    }

    void Tap() {
        const POINT point = AnyPoint();
        ShownPictures shown;
        MainWindow->widget->installEventFilter(&shown);
        handheld->Tap(point.x, point.y);
        plain.Tap(point);
        const std::vector<QImage>& pictures = shown.pictures;
        EXPECT_TRUE(plain.flash.isNull() ||
                    std::count(pictures.begin(), pictures.end(),
                               plain.flash.copy(handheld->Client().rect())) == 1);
    }

    // Some leave the window, some end in its last pixel, some are no longer than a hand trembles.
    void Drag() {
        const POINT from = AnyPoint();
        POINT to{Below(300) - 30, Below(plain.panelUp ? 188 : 268) - 30};
        if (Sometimes(3)) {
            // By whole cells, or a pixel beside, where a comparison that is not strict shows.
            to = {from.x + (Below(9) - 4) * CellSize + Below(3) - 1,
                  from.y + (Below(9) - 4) * CellSize + Below(3) - 1};
        } else if (Sometimes(4)) {
            to = {from.x + Below(11) - 5, from.y + Below(11) - 5};
        } else if (Sometimes(4)) {
            to = {Below(2) * 239, Below(2) * (plain.ViewHeight() - 1)};
        }
        handheld->Drag(from, to);
        plain.Drag(from, to);
    }

    void Press() {
        constexpr int keys[] = {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Left,   Qt::Key_Right,
                                Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Escape, Qt::Key_Tab,
                                Qt::Key_Space,     Qt::Key_F5,     Qt::Key_7,      Qt::Key_Delete};
        const int key = Sometimes(2) ? 'A' + Below(26) : keys[Below(std::size(keys))];
        if (!Sometimes(9)) {
            handheld->Press(key);
            plain.Press(key);
            return;
        }
        // Ctrl alone makes a command, and only of some keys.
        const Qt::KeyboardModifiers held[] = {Qt::AltModifier, Qt::ControlModifier,
                                              Qt::ControlModifier | Qt::AltModifier,
                                              Qt::ControlModifier | Qt::ShiftModifier};
        const bool commands = key == 'Q' || key == Qt::Key_Down;
        handheld->Press(key, held[commands ? 2 + Below(2) : Below(4)]);
    }

    ItemPath AnyScope(int menus) {
        return {std::array{"Clear", "Fill", "View"}[std::size_t(Below(menus))],
                std::array{"Letter", "Word", "Puzzle"}[std::size_t(Below(3))]};
    }

    void HoldCell() {
        const POINT point = AnyPoint();
        const ItemPath path = AnyScope(3);
        const bool sure = AnswerIfAsked(path);
        EXPECT_TRUE(ChooseFromContext(*handheld, point, path));
        plain.Tap(point, true);
        GoAlong(path, sure);
    }

    void ChooseFromMenu() {
        static const std::pair<const char*, ItemPath> items[] = {
            {mainMenu, {"Toggle", "Auto Skip"}},
            {mainMenu, {"Toggle", "Numbers"}},
            {hintMenu, {"Current Letter"}},
            {hintMenu, {"Current Word"}},
            {hintMenu, {"Entire Puzzle"}},
            {sizeMenu, {"Small"}},
            {sizeMenu, {"Medium"}},
            {sizeMenu, {"Large"}},
            {mainMenu, {"Puzzle Info"}}};
        auto [button, path] = items[Below(std::size(items))];
        if (Sometimes(3)) {
            std::tie(button, path) = std::pair(mainMenu, AnyScope(2));
        }
        const bool sure = AnswerIfAsked(path);
        TakeShownMessages();
        EXPECT_TRUE(ChooseFromBar(*handheld, button, path));
        if (path == ItemPath{"Puzzle Info"}) {
            EXPECT_EQ(
                TakeShownMessages(),
                (std::vector{ShownMessage{u"Title\nAuthor\nCopyright", u"Puzzle Information"}}));
        } else {
            GoAlong(path, sure);
        }
    }

    void GoAlong(const ItemPath& path, bool sure) {
        if (sure) {
            plain.Choose(path.join("/").toStdString());
        }
    }

    // Clearing the puzzle asks first; a stray Enter must not cost the letters.
    bool AnswerIfAsked(const ItemPath& path) {
        const bool asked = path == ItemPath{"Clear", "Puzzle"};
        const bool sure = !asked || Sometimes(3);
        if (asked && sure) {
            AnswerNextMessageBox(IDYES);
        } else if (asked) {
            plans<QDialog>.emplace_back(
                [](QDialog* box) { SendKey(box->focusWidget(), Qt::Key_Return); });
        }
        return sure;
    }

    void PressBarButton() {
        TakeShownMessages();
        switch (Below(5)) {
            case 0:
                EXPECT_TRUE(handheld->PressButton("Checks the puzzle"));
                EXPECT_EQ(TakeShownMessages(), plain.Check());
                return;
            case 1:
                EXPECT_TRUE(handheld->PressButton("Toggle clues across / down"));
                plain.TurnDirection();
                return;
            case 2:
                EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
                plain.ToggleKeyboard();
                return;
            case 3:
                handheld->PressPanelButton();
                plain.TogglePanel();
                return;
            default: CompareMenus();
        }
    }

    void CompareMenus() {
        const PlainSettings& settings = plain.settings;
        const auto checks = ChecksOf(*handheld, mainMenu);
        EXPECT_EQ(checks.at("Toggle/Auto Skip"), settings.autoSkip);
        EXPECT_EQ(checks.at("Toggle/Numbers"), settings.numbers);
        EXPECT_EQ(ChecksOf(*handheld, sizeMenu),
                  (std::map<QString, bool>{{"Small", settings.size == 0},
                                           {"Medium", settings.size == 1},
                                           {"Large", settings.size == 2}}));
    }

    void Resize() {
        handheld->Resize(std::array{1.0, 1.37, 2.0}[std::size_t(Below(3))]);
    }

    void Recolor() {
        SquareColor = plain.settings.squares = RGB(Below(256), Below(256), Below(100));
        BackgroundColor = plain.settings.letterCells = RGB(Below(256), 200 + Below(56), 255);
        handheld->Press(Qt::Key_F5);
        plain.Press(Qt::Key_F5);
    }

    // The puzzle in play may be chosen, too: it is saved and restored.
    void OpenAnother() {
        Puzzle& chosen = puzzles[std::size_t(Below(5))];
        const auto before = home.Files();
        const int answer = std::array{IDYES, IDYES, IDNO, IDCANCEL}[std::size_t(Below(4))];
        ChooseNextFile(answer == IDCANCEL ? "" : home.documents() / (chosen.name + ".puz"));
        if (answer != IDCANCEL) {
            AnswerNextMessageBox(answer);
        }
        TakeShownMessages();
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
        if (answer != IDYES) {
            EXPECT_TRUE(home.Files() == before);
        } else if (chosen.reason.empty()) {
            LeaveFor(chosen);
        } else {
            EXPECT_EQ(TakeShownMessages().at(1), (ShownMessage{chosen.reason, u"Open File"}));
            if (&chosen == &puzzles[3]) {
                // Too late noticed to do nothing at all.
                plain.Open(present->rows, plain.letters);
            }
        }
    }

    void LeaveFor(Puzzle& chosen) {
        present->letters = plain.letters;
        present->settings = plain.settings;
        ExpectRecord(home.documents() / (present->name + ".dat"));
        present = &chosen;
        plain.settings = chosen.settings.value_or(plain.settings);
        plain.Open(chosen.rows, chosen.letters);
    }

    void StartAgain() {
        std::filesystem::remove(home.stateFile());
        End();
        EXPECT_FALSE(handheld->Running());
        handheld.reset();
        ExpectRecord(home.stateFile());
        ForgetPuzzle();
        const std::size_t files = home.Files().size();
        handheld.emplace(home);
        EXPECT_EQ(home.Files().size(), files);
        plain.StartAgain();
    }

    void End() {
        switch (Below(5)) {
            case 0: return handheld->Close();
            case 1: EXPECT_TRUE(ChooseFromBar(*handheld, mainMenu, {"Exit"})); return;
            case 2: return handheld->Press(Qt::Key_Q, Qt::ControlModifier);
            case 3: return handheld->Press(Qt::Key_Down, Qt::ControlModifier);
            default: SendMessageW(MainWindow, WM_SIZE, SIZE_MINIMIZED, 0); handheld->Settle();
        }
    }

    void ExpectRecord(const std::filesystem::path& file) {
        EXPECT_TRUE(ReadBytes(file) == PlainRecord(present->Path(), plain.letters, plain.settings));
    }

    static constexpr const char* mainMenu = "Main Menu";
    static constexpr const char* hintMenu = "Display a hint";
    static constexpr const char* sizeMenu = "Puzzle magnification";

    std::mt19937 random;
    std::array<Puzzle, 5> puzzles;
    Puzzle* present = &puzzles[0];
    TemporaryHome home;
    std::optional<Handheld> handheld;
    PlainGame plain;
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
    const int seed = qEnvironmentVariable("QUADREL_MONKEY_SEED", "1").toInt() + GetParam();
    // On a small board more of it is met, and sooner.
    const int steps =
        qEnvironmentVariable("QUADREL_MONKEY_STEPS", "300").toInt() * (GetParam() < 15 ? 2 : 1);
    Monkey monkey(static_cast<unsigned>(seed), BoardOfSide(GetParam()));
    ASSERT_NO_FATAL_FAILURE(monkey.ExpectSame());
    std::string last;
    for (int step = 0; step < steps; ++step) {
        last = monkey.Step() + " after " + last.substr(0, last.find(' '));
        SCOPED_TRACE("step " + std::to_string(step) + ": " + last);
        ASSERT_NO_FATAL_FAILURE(monkey.ExpectSame());
        ASSERT_FALSE(HasFailure());
    }
}

INSTANTIATE_TEST_SUITE_P(BoardOfSide, MonkeyTest, testing::Values(2, 4, 5, 15, 21, 40),
                         testing::PrintToStringParamName());

}  // namespace
