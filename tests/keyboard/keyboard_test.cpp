#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QWidget>
#include <functional>
#include <random>

#include "board/clue_bar.h"
#include "keyboard/keyboard_drawing.h"
#include "keyboard/keyboard_keys.h"
#include "platform/drawing.h"
#include "platform/qt/host_window.h"
#include "platform/qt/window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

constexpr COLORREF yellow = RGB(255, 255, 2);

constexpr int eraseKey = '<';
constexpr int okKey = '!';

struct PlainKey {
    int name;    // the letter, eraseKey or okKey
    RECT drawn;  // its outline in the picture; right and bottom are inclusive
    RECT taps;   // what counts as the key, inclusive, too
};

// Said key by key, as the picture shows it. The first key of each row takes what lies to its left,
// as far as the row begins; the rows of taps are a pixel lower than the keys.
std::vector<PlainKey> AllKeys() {
    std::vector<PlainKey> keys;
    const auto addRow = [&keys](const std::string& letters, int left, int firstTap, RECT rows) {
        int x = left;
        for (char letter : letters) {
            const int tapsFrom = x == left ? firstTap : x;
            keys.push_back({letter,
                            {x, rows.left, x + 18, rows.top},
                            {tapsFrom, rows.right, x + 19, rows.bottom}});
            x += 20;
        }
    };
    addRow("QWERTYUIOP", 10, 0, {228, 239, 225, 239});
    addRow("ASDFGHJKL", 20, 1, {241, 252, 240, 251});
    addRow("ZXCVBNM", 30, 11, {254, 265, 252, 263});
    keys.push_back({eraseKey, {170, 254, 188, 265}, {170, 252, 209, 263}});
    keys.push_back({okKey, {210, 254, 234, 265}, {210, 252, 239, 263}});
    return keys;
}

bool Inside(const RECT& inclusive, int x, int y) {
    return x >= inclusive.left && x <= inclusive.right && y >= inclusive.top &&
           y <= inclusive.bottom;
}

int NameOf(const KeyboardKey& key) {
    switch (key.kind) {
        case KeyboardKey::Kind::Letter: return key.letter;
        case KeyboardKey::Kind::Erase: return eraseKey;
        case KeyboardKey::Kind::Ok: return okKey;
        default: return 0;
    }
}

POINT MiddleOf(const PlainKey& key) {
    return {(key.drawn.left + key.drawn.right) / 2, (key.drawn.top + key.drawn.bottom) / 2};
}

PlainKey KeyNamed(int name) {
    for (const PlainKey& key : AllKeys()) {
        if (key.name == name) {
            return key;
        }
    }
    return {};
}

TEST(KeyboardKeys, EveryPointIsTheKeyOfItsZone) {
    const std::vector<PlainKey> keys = AllKeys();
    for (int y = 225; y < 298; ++y) {
        for (int x = 0; x < 240; ++x) {
            int expected = 0;
            for (const PlainKey& key : keys) {
                expected = Inside(key.taps, x, y) ? key.name : expected;
            }
            ASSERT_EQ(NameOf(FindKey(x, y)), expected) << x << ", " << y;
        }
    }
}

// The flash covers the outline, and a column more; the erase and "OK" keys are as wide as drawn.
TEST(KeyboardKeys, FlashWhereTheyAreDrawn) {
    for (const PlainKey& key : AllKeys()) {
        const POINT middle = MiddleOf(key);
        const RECT place = FindKey(middle.x, middle.y).place;
        const int beyond = key.name == okKey ? 1 : 2;
        EXPECT_EQ(place.left, key.drawn.left) << key.name;
        EXPECT_EQ(place.top, key.drawn.top) << key.name;
        EXPECT_EQ(place.right, key.drawn.right + beyond) << key.name;
        EXPECT_EQ(place.bottom, key.drawn.bottom + 1) << key.name;
    }
}

// What the window holds while it is brought to the screen: what a player sees for a moment.
class Glimpses : public QObject {
public:
    explicit Glimpses(std::function<void()> whenShown) : look(std::move(whenShown)) {
        MainWindow->widget->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            look();
        }
        return false;
    }

private:
    std::function<void()> look;
};

class Keyboard : public PlayedBoard {
protected:
    void PressKeyboardButton() {
        EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
    }
    void PlayWithKeyboard(const BoardRows& rows, MagnificationFlags size) {
        Play(rows, size);
        PressKeyboardButton();
        picture = KeyboardPicture();
    }
    QImage KeyboardPicture() {
        return handheld->Client().copy(0, 225, 240, 43);
    }
    void TapKey(int name) {
        const POINT middle = MiddleOf(KeyNamed(name));
        handheld->Tap(middle.x, middle.y);
    }
    int YellowPixels() {
        int count = 0;
        for (int y = 225; y < 268; ++y) {
            for (int x = 0; x < 240; ++x) {
                count += handheld->Pixel(x, y) == yellow ? 1 : 0;
            }
        }
        return count;
    }
    // The most yellow that was on the keyboard during the tap.
    int YellowDuringTap(int x, int y) {
        int most = 0;
        const Glimpses glimpses([&] { most = std::max(most, YellowPixels()); });
        handheld->Tap(x, y);
        return most;
    }

    QImage picture;
};

// Every key of the picture is where it must be: three colours, outlines all around.
TEST_F(Keyboard, PictureHasItsKeysInPlace) {
    PlayWithKeyboard(lopsidedBoard, smallSize);
    const COLORREF black = RGB(0, 0, 0);
    const COLORREF grey = RGB(192, 192, 192);
    for (int x = 0; x < 240; ++x) {
        EXPECT_EQ(handheld->Pixel(x, 225), black) << x;
    }
    for (const PlainKey& key : AllKeys()) {
        const POINT middle = MiddleOf(key);
        EXPECT_EQ(handheld->Pixel(middle.x, key.drawn.top), black) << key.name;
        EXPECT_EQ(handheld->Pixel(middle.x, key.drawn.bottom), black) << key.name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left, middle.y), black) << key.name;
        EXPECT_EQ(handheld->Pixel(key.drawn.right, middle.y), black) << key.name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left + 1, middle.y), RGB(255, 255, 255)) << key.name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left - 1, middle.y), grey) << key.name;
        EXPECT_EQ(handheld->Pixel(key.drawn.right + 1, middle.y), grey) << key.name;
    }
}

TEST_F(Keyboard, EveryLetterKeyFlashesAndTypes) {
    const BoardRows rows = {std::string(14, 'A') + ".", std::string(15, 'B')};
    PlayWithKeyboard(rows, smallSize);
    for (const PlainKey& key : AllKeys()) {
        if (key.name == eraseKey || key.name == okKey) {
            continue;
        }
        SelectCell(1, 3, 0);
        const POINT middle = MiddleOf(key);
        EXPECT_GT(YellowDuringTap(middle.x, middle.y), 100);
        EXPECT_EQ(PlayerGrid[15 + 3], key.name);
        EXPECT_EQ(CursorCol, 4);
        EXPECT_EQ(KeyboardPicture(), picture) << static_cast<char>(key.name);
    }
    EXPECT_EQ(handheld->Pixel(BoardLeft + 4 * CellSize + 3, CellSize + 3), RGB(255, 200, 125))
        << "the typed letter's board is on the screen";
}

TEST_F(Keyboard, EraseKeyAndTheGapBesideItErase) {
    PlayWithKeyboard(lopsidedBoard, largeSize);
    std::fill_n(PlayerGrid, 2, 'W');
    SelectCell(0, 1, 0);
    EXPECT_GT(YellowDuringTap(179, 259), 150);
    EXPECT_EQ(PlayerLetters().substr(0, 2), "W-");
    handheld->Tap(205, 259);
    EXPECT_EQ(PlayerLetters().substr(0, 2), "--");
    ExpectBufferOnScreen();
    EXPECT_EQ(KeyboardPicture(), picture);
}

TEST_F(Keyboard, ABlackSquareTakesNothingAndNoKeyDoesNothing) {
    PlayWithKeyboard(lopsidedBoard, smallSize);
    const std::string letters = PlayerLetters();
    SelectCell(2, 2, 0);
    EXPECT_GT(YellowDuringTap(40, 234), 100);
    TapKey(eraseKey);
    EXPECT_EQ(PlayerLetters(), letters);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(2, 2));
    SelectCell(1, 1, 0);
    for (POINT point : {POINT{215, 232}, {205, 246}, {0, 246}, {5, 257}, {60, 264}, {120, 267}}) {
        EXPECT_EQ(YellowDuringTap(point.x, point.y), 0) << point.x << ", " << point.y;
        EXPECT_EQ(PlayerLetters(), letters) << point.x << ", " << point.y;
        EXPECT_EQ(KeyboardPicture(), picture);
    }
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(1, 1));
    EXPECT_EQ(KeyboardVisible, 1);
}

// A tap where the keys would be while they are hidden, and one on the clue bar above them.
TEST_F(Keyboard, HiddenKeysAndTheClueBarAreNotTapped) {
    Play(lopsidedBoard, largeSize);
    TapKey('M');
    PressKeyboardButton();
    handheld->Tap(100, 210);
    EXPECT_EQ(PlayerLetters().find_first_not_of("-."), std::string::npos);
}

// The slow way: where the view must be after each change of either keyboard.
class Keyboards : public Keyboard {
protected:
    enum class Action { Keyboard, Panel, Ok };

    void Do(Action action) {
        const int bottom = ScrollY + ViewHeight;
        const int scroll = ScrollY;
        const bool shows = action == Action::Keyboard && KeyboardVisible == 0;
        if (action == Action::Ok && KeyboardVisible == 0) {
            return;
        }
        switch (action) {
            case Action::Keyboard: PressKeyboardButton(); break;
            case Action::Panel: handheld->PressPanelButton(); break;
            case Action::Ok: TapKey(okKey); break;
        }
        panelUp = action == Action::Panel && !panelUp;
        ExpectState(shows);
        if (Magnification.Small == 0 && !shows) {
            EXPECT_EQ(ScrollY, bottom >= ViewHeight ? bottom - ViewHeight : scroll);
        }
        ExpectCleanScreen();
    }

    void ExpectState(bool shown) {
        EXPECT_EQ(KeyboardVisible, shown ? 1 : 0);
        EXPECT_EQ(Host().PanelUp(), panelUp);
        EXPECT_EQ(BottomReserve, shown ? 65 : 20);
        EXPECT_EQ(ViewHeight, (panelUp ? 188 : 268) - BottomReserve);
        EXPECT_EQ(ViewWidth, 240);
        if (Magnification.Small == 1) {
            EXPECT_EQ(CellSize, ViewHeight / PuzzleHeight);
            EXPECT_EQ(ScrollY, 0);
        } else {
            EXPECT_EQ(CellSize, Magnification.Medium == 1 ? 20 : 24);
            EXPECT_LE((CursorRow + 1) * CellSize, ScrollY + ViewHeight);
        }
    }

    // Everything that belongs on the window is painted on a white one: the same must be there
    // already, without a strip of something older.
    void ExpectCleanScreen() {
        const QImage before = handheld->Client();
        HDC context = GetDC(MainWindow);
        PatBlt(context, 0, 0, 240, 268, WHITENESS);
        ReleaseDC(MainWindow, context);
        PaintClueBar(MainWindow);
        DrawKeyboardIfVisible(MainWindow);
        CopyViewToScreen(MainWindow);
        EXPECT_EQ(handheld->Client(), before);
        EXPECT_EQ(ColorAt(BufferImage(), BoardLeft + CursorCol * CellSize + 3,
                          CursorRow * CellSize + CellSize - 3),
                  RGB(255, 200, 125));
    }

    void StartPlay(MagnificationFlags size) {
        std::mt19937 random(5);
        BoardRows rows = RandomBoard(random, 17, 17);
        rows[11] = "ABCDEF.GHIJKLMNO.";
        Play(rows, size);
        SelectCell(11, 8, 0);
        ScrollX = size.Small == 1 ? 0 : 60;
        ScrollY = size.Small == 1 ? 0 : 40;
        RepaintFully(MainWindow);
    }

    bool panelUp = false;
};

TEST_F(Keyboards, AreNeverUpTogetherInWhateverOrderTheyAreRaised) {
    constexpr Action actions[] = {Action::Keyboard, Action::Panel, Action::Ok};
    constexpr int orders = 3 * 3 * 3 * 3;
    for (MagnificationFlags size : sizes) {
        for (int order = 0; order < orders; ++order) {
            SCOPED_TRACE("order " + std::to_string(order));
            StartPlay(size);
            for (int left = order + orders; left > 1; left /= 3) {
                Do(actions[left % 3]);
            }
            if (KeyboardVisible == 1) {
                PressKeyboardButton();
            }
            if (panelUp) {
                handheld->PressPanelButton();
                panelUp = false;
            }
            ASSERT_FALSE(HasFailure());
        }
    }
}

// Another board or size keeps the keyboard, and the view above it.
TEST_F(Keyboards, StayUpWhenTheSizeChanges) {
    StartPlay(smallSize);
    Do(Action::Keyboard);
    picture = KeyboardPicture();
    for (const char* size : {"Large", "Medium", "Small"}) {
        EXPECT_TRUE(ChooseFromBar(*handheld, "Puzzle magnification", {size}));
        EXPECT_EQ(BottomReserve, 65);
        EXPECT_EQ(ViewHeight, 203);
        EXPECT_EQ(KeyboardPicture(), picture) << size;
        PressFocusedKey(*handheld, Qt::Key_Right);
        ExpectCleanScreen();
    }
    EXPECT_EQ(CellSize, 203 / 17);
    handheld.reset();
    handheld = std::make_unique<Handheld>(home);
    EXPECT_EQ(KeyboardVisible, 0) << "hidden at every start";
}

}  // namespace
