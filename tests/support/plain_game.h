// The game a second time, slow and obvious: the same stylus and keys, the rules gone through cell
// by cell, everything painted by itself. Only the handheld's drawing is shared with the program.
#pragma once

#include <QtGui/QImage>
#include <map>
#include <optional>
#include <string>

#include "platform/drawing.h"
#include "support/boards.h"
#include "support/handheld.h"

// A picture of its own to paint on, white at first.
class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void Box(RECT area, COLORREF fill, COLORREF outline = RGB(0, 0, 0));
    void Line(POINT from, POINT to, COLORREF color);
    struct Font {
        std::u16string face;
        int height;
        int weight;
    };
    void Write(const std::u16string& text, RECT box, const Font& font, UINT format,
               COLORREF color = RGB(0, 0, 0));
    void CopyFrom(HDC source, RECT target, POINT from);

    HDC context;

private:
    HBITMAP bitmap;
    HGDIOBJ previous;
};

// Every key of the on-screen keyboard, by its letter: where it is drawn and what counts as it.
// Right and bottom are inclusive.
struct PlainKey {
    RECT drawn;
    RECT taps;
};
constexpr int eraseKey = '<';
constexpr int okKey = '!';
std::map<int, PlainKey> AllKeys();
// 0 where there is none.
int KeyAt(POINT point);
POINT MiddleOf(const PlainKey& key);

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

class PlainGame {
public:
    // The program has just started with that puzzle, whose clues are those of PuzzleBytes.
    explicit PlainGame(const BoardRows& puzzle);

    void StartAgain();
    void Open(const BoardRows& puzzle, const BoardRows& restored);

    void Tap(POINT point);
    void Drag(POINT from, POINT to);
    // Also a tap-and-hold; the menu that opens then is not part of it.
    void HoldAt(POINT point);
    void Press(int key);

    void TurnDirection();
    void ChooseSize(int size);
    void ToggleNumbers();
    void ToggleAutoSkip();
    // "Letter", "Word" or "Puzzle".
    void Fill(const std::string& scope);
    void Clear(const std::string& scope);
    void Hint(const std::string& scope);
    // True when something is said.
    bool Check();
    void ToggleKeyboard();
    void TogglePanel();

    POINT MiddleOfCell(int cellRow, int cellCol) const;
    int Side() const;
    int ViewHeight() const;
    std::string Letters() const;
    void ExpectSame(Handheld& handheld) const;

    BoardRows letters;
    PlainSettings settings;
    int row = 0;
    int col = 0;
    int direction = 0;
    POINT scroll;
    bool keyboardUp = false;
    bool panelUp = false;

private:
    int CellSide() const;
    int BoardLeft() const;
    RECT CellBox(int cellRow, int cellCol) const;
    char SolutionAt(int cellRow, int cellCol) const;
    char& LetterAt(int cellRow, int cellCol);
    PlainWord SelectedWord() const;
    int NumberAt(int cellRow, int cellCol) const;
    std::u16string ClueText() const;

    bool TapOnBoard(POINT point, bool held);
    void TapKey(int key);
    void Enter(int key);
    void Erase();
    void Jump(bool forward);
    void ScrollToWord();
    void LayOut();
    void LeaveKeyboard(int viewHeightBefore);

    template <typename Action>
    void ForEachCell(const std::string& scope, const Action& action);
    void WriteLetter(int cellRow, int cellCol, char letter, COLORREF color);
    void WriteNumber(int cellRow, int cellCol, std::optional<RECT> box = std::nullopt);
    void PaintBoard(bool solved = false);
    void PaintWord(bool ofSolution = false);
    void PaintBar();
    void PaintKeyboard();
    void ShowView();
    void Repaint(bool highlighted);

    BoardRows solution;
    std::vector<PlainWord> words;
    std::map<std::pair<int, int>, int> numbers;  // by the cells that start words
    std::optional<Canvas> board;
    Canvas screen{240, 268};
};
