#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>
#include <algorithm>
#include <functional>
#include <map>

#include "keyboard/keyboard_keys.h"
#include "platform/qt/window/window.h"
#include "support/played_board.h"

namespace {

constexpr COLORREF yellow = RGB(255, 255, 2);

constexpr int eraseKey = '<';
constexpr int okKey = '!';

struct PlainKey {
    RECT drawn;  // its outline in the picture; right and bottom are inclusive
    RECT taps;   // what counts as the key, inclusive, too
};

// By its letter, eraseKey or okKey; said key by key, as the picture shows it. The first key of each
// row takes what lies to its left, as far as the row begins; the rows of taps are a pixel lower
// than the keys.
std::map<int, PlainKey> AllKeys() {
    std::map<int, PlainKey> keys;
    const auto addRow = [&keys](const std::string& letters, int left, int firstTap, RECT rows) {
        int x = left;
        for (char letter : letters) {
            const int tapsFrom = x == left ? firstTap : x;
            keys[letter] = {{x, rows.left, x + 18, rows.top},
                            {tapsFrom, rows.right, x + 19, rows.bottom}};
            x += 20;
        }
    };
    addRow("QWERTYUIOP", 10, 0, {228, 239, 225, 239});
    addRow("ASDFGHJKL", 20, 1, {241, 252, 240, 251});
    addRow("ZXCVBNM", 30, 11, {254, 265, 252, 263});
    keys[eraseKey] = {{170, 254, 188, 265}, {170, 252, 209, 263}};
    keys[okKey] = {{210, 254, 234, 265}, {210, 252, 239, 263}};
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

TEST(KeyboardKeys, EveryPointIsTheKeyOfItsZone) {
    const auto keys = AllKeys();
    for (int y = 225; y < 298; ++y) {
        for (int x = 0; x < 240; ++x) {
            int expected = 0;
            for (const auto& [name, key] : keys) {
                expected = Inside(key.taps, x, y) ? name : expected;
            }
            ASSERT_EQ(NameOf(FindKey(x, y)), expected) << x << ", " << y;
        }
    }
}

// The flash covers the outline, and a column more; the erase and "OK" keys are as wide as drawn.
TEST(KeyboardKeys, FlashWhereTheyAreDrawn) {
    for (const auto& [name, key] : AllKeys()) {
        const POINT middle = MiddleOf(key);
        const RECT place = FindKey(middle.x, middle.y).place;
        const int beyond = name == okKey ? 1 : 2;
        EXPECT_EQ(place.left, key.drawn.left) << name;
        EXPECT_EQ(place.top, key.drawn.top) << name;
        EXPECT_EQ(place.right, key.drawn.right + beyond) << name;
        EXPECT_EQ(place.bottom, key.drawn.bottom + 1) << name;
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
        const POINT middle = MiddleOf(AllKeys().at(name));
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
    for (const auto& [name, key] : AllKeys()) {
        const POINT middle = MiddleOf(key);
        EXPECT_EQ(handheld->Pixel(middle.x, key.drawn.top), black) << name;
        EXPECT_EQ(handheld->Pixel(middle.x, key.drawn.bottom), black) << name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left, middle.y), black) << name;
        EXPECT_EQ(handheld->Pixel(key.drawn.right, middle.y), black) << name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left + 1, middle.y), RGB(255, 255, 255)) << name;
        EXPECT_EQ(handheld->Pixel(key.drawn.left - 1, middle.y), grey) << name;
        EXPECT_EQ(handheld->Pixel(key.drawn.right + 1, middle.y), grey) << name;
    }
}

TEST_F(Keyboard, EveryLetterKeyFlashesAndTypes) {
    const BoardRows rows = {std::string(14, 'A') + ".", std::string(15, 'B')};
    PlayWithKeyboard(rows, smallSize);
    for (const auto& [name, key] : AllKeys()) {
        if (name == eraseKey || name == okKey) {
            continue;
        }
        SelectCell(1, 3, 0);
        const POINT middle = MiddleOf(key);
        EXPECT_GT(YellowDuringTap(middle.x, middle.y), 100);
        EXPECT_EQ(PlayerGrid[15 + 3], name);
        EXPECT_EQ(CursorCol, 4);
        EXPECT_EQ(KeyboardPicture(), picture) << static_cast<char>(name);
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
    EXPECT_EQ(KeyboardPicture(), picture);
}

TEST_F(Keyboard, ABlackSquareAHiddenKeyboardAndPlacesWithoutAKeyTakeNothing) {
    Play(lopsidedBoard, smallSize);
    TapKey('M');
    EXPECT_EQ(PlayerLetters().find_first_not_of("-."), std::string::npos);
    PlayWithKeyboard(lopsidedBoard, smallSize);
    const std::string letters = PlayerLetters();
    SelectCell(2, 2, 0);
    EXPECT_GT(YellowDuringTap(40, 234), 100);
    TapKey(eraseKey);
    EXPECT_EQ(PlayerLetters(), letters);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(2, 2));
    SelectCell(1, 1, 0);
    for (POINT point :
         {POINT{100, 210}, {215, 232}, {205, 246}, {0, 246}, {5, 257}, {60, 264}, {120, 267}}) {
        EXPECT_EQ(YellowDuringTap(point.x, point.y), 0) << point.x << ", " << point.y;
        EXPECT_EQ(PlayerLetters(), letters) << point.x << ", " << point.y;
        EXPECT_EQ(KeyboardPicture(), picture);
    }
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(1, 1));
    EXPECT_EQ(KeyboardVisible, 1);
}

// Where there is no board above that could move down, it stays.
TEST_F(Keyboard, ThePanelAndAHiddenKeyboardKeepTheBottomEdgeOfTheView) {
    const std::function<void()> changes[] = {
        [this] { handheld->PressPanelButton(); }, [this] { handheld->PressPanelButton(); },
        [this] { PressKeyboardButton(); },        [this] { TapKey(okKey); },
        [this] { PressKeyboardButton(); },        [this] { handheld->PressPanelButton(); },
        [this] { PressKeyboardButton(); },        [this] { PressKeyboardButton(); },
    };
    for (MagnificationFlags size : {mediumSize, largeSize}) {
        for (int row : {3, 11}) {
            Play(BoardRows(17, "ABCDEF.GHIJKLMNO."), size);
            SelectCell(row, 8, 0);
            ScrollY = 40;
            for (const auto& change : changes) {
                const int before = ScrollY;
                const int bottom = ScrollY + ViewHeight;
                change();
                if (KeyboardVisible == 1) {
                    EXPECT_LE((row + 1) * CellSize, ScrollY + ViewHeight);
                } else {
                    EXPECT_EQ(ScrollY, bottom >= ViewHeight ? bottom - ViewHeight : before);
                }
            }
        }
    }
}

}  // namespace
