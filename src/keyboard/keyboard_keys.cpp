#include "keyboard/keyboard_keys.h"

namespace {

constexpr char KeyLetters[] = "QWERTYUIOPASDFGHJKLZXCVBNM";

constexpr int keysLeft = 10;
constexpr int keysTop = 228;
constexpr int keyPitch = 20;
constexpr int rowIndent = 10;  // each row begins further to the right
constexpr int rowPitch = 13;
// The rows of taps are a pixel closer together than the rows of the picture.
constexpr int tapRowPitch = 12;
constexpr int keyHeight = 12;

constexpr RECT eraseKeyPlace{170, 254, 190, 266};
constexpr RECT okKeyPlace{210, 254, 235, 266};

struct KeyRow {
    int firstLetter;
    int letters;
};

constexpr KeyRow keyRows[] = {{0, 10}, {10, 9}, {19, 7}};
constexpr int lastRow = 2;

KeyboardKey LetterKey(int row, int column) {
    const int left = keysLeft + rowIndent * row + keyPitch * column;
    const int top = keysTop + rowPitch * row;
    return {KeyboardKey::Kind::Letter,
            KeyLetters[keyRows[row].firstLetter + column],
            {left, top, left + keyPitch, top + keyHeight}};
}

// Behind the letters of the last row: two columns erase, two more are "OK".
KeyboardKey LastRowKey(int column) {
    constexpr int eraseColumn = 7;
    constexpr int okColumn = 9;
    constexpr int endColumn = 11;
    if (column >= eraseColumn && column < okColumn) {
        return {KeyboardKey::Kind::Erase, 0, eraseKeyPlace};
    }
    if (column >= okColumn && column < endColumn) {
        return {KeyboardKey::Kind::Ok, 0, okKeyPlace};
    }
    return {};
}

}  // namespace

// Both divisions round toward zero: a little above and to the left of the keys still counts.
KeyboardKey FindKey(int x, int y) {
    const int row = (y - keysTop) / tapRowPitch;
    if (row < 0 || row > lastRow) {
        return {};
    }
    const int column = (x - keysLeft - rowIndent * row) / keyPitch;
    if (column >= 0 && column < keyRows[row].letters) {
        return LetterKey(row, column);
    }
    return row == lastRow ? LastRowKey(column) : KeyboardKey{};
}
