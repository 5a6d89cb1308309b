// The game a second time, slow and obvious: the same stylus and keys, the rules gone through cell
// by cell, everything painted by itself. Only the handheld's drawing is shared with the program.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/drawing.h"
#include "support/boards.h"
#include "support/handheld.h"

// Every key of the on-screen keyboard, by its letter: where it is drawn and what counts as it.
// Right and bottom are inclusive.
struct PlainKey {
    RECT drawn;
    RECT taps;
};
constexpr int eraseKey = '<';
constexpr int okKey = '!';
std::map<int, PlainKey> AllKeys();

// Written into every record.
struct PlainSettings {
    int size = 0;  // 0 small, 1 medium, 2 large
    bool autoSkip = false;
    bool numbers = false;
    COLORREF letterCells = RGB(255, 255, 255);
    COLORREF squares = RGB(0, 0, 0);
    bool operator==(const PlainSettings&) const = default;
};

// A record as somebody would write it with a pencil: every field at its place, zeros elsewhere.
std::string PlainRecord(const std::string& path, const BoardRows& letters,
                        const PlainSettings& settings);

struct PlainCell {
    int row = 0;
    int col = 0;
    auto operator<=>(const PlainCell&) const = default;
};

class PlainGame {
public:
    // The program has just started with that puzzle, whose clues are those of PuzzleBytes.
    explicit PlainGame(const BoardRows& puzzle);

    void StartAgain();
    void Open(const BoardRows& puzzle, const BoardRows& restored);
    void Tap(POINT point);
    void Drag(POINT from, POINT to);
    // A tap-and-hold; the menu that opens then is not part of it.
    void HoldAt(POINT point);
    void Press(int key);
    // An item of a menu, like "Fill/Word".
    void Choose(const std::string& item);
    // True when something is said.
    bool Check();
    void TurnDirection();
    void ToggleKeyboard();
    void TogglePanel();

    void ExpectSame(Handheld& handheld) const;
    POINT MiddleOf(PlainCell cell) const;
    int Side() const;
    int ViewHeight() const;

    BoardRows letters;
    PlainSettings settings;
    PlainCell selected;
    bool keyboardUp = false;
    bool panelUp = false;

private:
    int CellSide() const;
    int BoardLeft() const;
    RECT Box(PlainCell cell) const;
    char& Letter(PlainCell cell);
    char Solution(PlainCell cell) const;
    PlainWord SelectedWord() const;
    std::vector<PlainCell> CellsOf(const std::string& scope) const;

    bool TapBoard(POINT point, bool held);
    void TapKey(POINT point);
    void Enter(int key);
    void Erase();
    void Jump(bool forward);
    void ScrollToWord();
    void LayOut();
    void LayOutBelow(int viewHeightBefore);

    void WriteLetter(PlainCell cell, char letter, COLORREF color);
    void WriteNumber(PlainCell cell, int reach);
    void PaintBoard(bool solved = false);
    void PaintWord(bool solved = false);
    void PaintHint(const std::string& scope);
    void PaintBar();
    void ShowView();
    void ShowAll();
    void Repaint(bool highlighted);

    struct Canvas;
    BoardRows solution;
    std::vector<PlainWord> words;
    std::map<PlainCell, int> numbers;
    int direction = 0;
    POINT scroll;
    std::shared_ptr<Canvas> board;
    std::shared_ptr<Canvas> screen;
};
