// The game a second time, slow and obvious: the same stylus and keys, the rules gone through cell
// by cell, everything painted by itself. Only the surface under all drawing is shared with the
// program.
#pragma once

#include "play/settings.h"
#include "support/handheld.h"
#include "support/message_boxes.h"
#include "support/plain_record.h"

// Every key of the on-screen keyboard, by its letter: where it flashes and what counts as it, right
// and bottom inclusive.
struct PlainKey {
    RECT flash;
    RECT taps;
};
constexpr char eraseKey = '-';
constexpr char okKey = '!';
// The first key of each row takes what lies to its left, as far as the row begins; the rows of taps
// are a pixel lower than the keys.
inline std::map<char, PlainKey> AllKeys() {
    std::map<char, PlainKey> keys;
    const auto addRow = [&keys](const std::string& letters, int left, int firstTap, RECT rows) {
        int x = left;
        for (char letter : letters) {
            const int tapsFrom = x == left ? firstTap : x;
            keys[letter] = {{x, rows.left, x + 19, rows.top},
                            {tapsFrom, rows.right, x + 19, rows.bottom}};
            x += 20;
        }
    };
    addRow("QWERTYUIOP", 10, 0, {228, 239, 225, 239});
    addRow("ASDFGHJKL", 20, 1, {241, 252, 240, 251});
    addRow("ZXCVBNM", 30, 11, {254, 265, 252, 263});
    keys[eraseKey] = {{170, 254, 189, 265}, {170, 252, 209, 263}};
    keys[okKey] = {{210, 254, 234, 265}, {210, 252, 239, 263}};
    return keys;
}

inline bool IsIn(const RECT& inclusive, POINT point) {
    return point.x >= inclusive.left && point.x <= inclusive.right && point.y >= inclusive.top &&
           point.y <= inclusive.bottom;
}

struct PlainCell {
    int row = 0;
    int col = 0;
    auto operator<=>(const PlainCell&) const = default;
};

class PlainGame {
public:
    // The program has just started with that puzzle, whose clues are those of PuzzleBytes.
    PlainGame(const BoardRows& puzzle, const BoardRows& grid)
        : screen(std::make_shared<Canvas>(240, 268)) {
        Open(puzzle, grid);
        StartAgain();
    }

    void StartAgain() {
        selected = {};
        direction = 0;
        keyboardUp = panelUp = false;
        LayOut();
        Repaint(false);
    }

    void Open(const BoardRows& puzzle, const BoardRows& restored) {
        solution = puzzle;
        letters = restored;
        words = WordsOf(puzzle);
        numbers.clear();
        for (const PlainWord& word : words) {
            numbers.try_emplace({word.row, word.col}, static_cast<int>(numbers.size()) + 1);
        }
        selected = {};
        LayOut();
        Repaint(true);
    }

    int Side() const {
        return static_cast<int>(solution.size());
    }

    int ViewHeight() const {
        return (panelUp ? 188 : 268) - (keyboardUp ? 65 : 20);
    }

    POINT MiddleOf(PlainCell cell) const {
        const RECT box = Box(cell);
        return {(box.left + box.right) / 2 - scroll.x, (box.top + box.bottom) / 2 - scroll.y};
    }

    // What the stylus does.

    // With a tap-and-hold; the menu that opens then is not part of it.
    void Tap(POINT point, bool held = false) {
        flash = QImage();
        if (IsInView(point)) {
            TapBoard(point, held);
        } else if (keyboardUp && !held) {
            TapKey(point);
        }
        ShowView();
    }

    // One pen, one board; a move that would pass a limit does not happen.
    void Drag(POINT from, POINT to) {
        const int side = Side() * CellSide();
        const int mostX = side > 240 ? side + 1 - 240 : 0;
        const int mostY = side + 1 - ViewHeight();
        const bool scrolls = settings.size != 0 && (side > 240 || side > ViewHeight());
        POINT last = from;
        bool moved = false;
        const auto along = [](auto& position, int way, int most) {
            const int wanted = position + way;
            if ((way > 0 && wanted <= most) || (way < 0 && wanted >= 0)) {
                position = wanted;
            }
        };
        for (int step = 1; step <= 10; ++step) {
            const POINT pen{from.x + (to.x - from.x) * step / 10,
                            from.y + (to.y - from.y) * step / 10};
            // A hand trembles.
            moved = moved || std::abs(pen.x - from.x) > 4 || std::abs(pen.y - from.y) > 4;
            if (scrolls && moved && IsInView(pen)) {
                along(scroll.x, last.x - pen.x, mostX);
                along(scroll.y, last.y - pen.y, mostY);
                last = pen;
                ShowView();
            }
        }
        Tap(to);
    }

    // What keys do.

    void Press(int key) {
        if (key >= 'A' && key <= 'Z') {
            Enter(static_cast<char>(key));
        } else if (key == Qt::Key_Backspace) {
            Enter('-');
        } else {
            direction = key == Qt::Key_Return ? 1 - direction : direction;
            const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
            if (back || key == Qt::Key_Right || key == Qt::Key_Down) {
                Jump(back ? -1 : 1);
            }
            PaintBoard();
            PaintWord();
            ScrollToWord();
            PaintBar();
        }
        ShowView();
    }

    // What commands do: an item of a menu, like "Fill/Word".

    void Choose(const std::string& item) {
        const std::string menu = item.substr(0, item.find('/'));
        const std::string last = item.substr(item.find_last_of("/ ") + 1);
        if (item == "Toggle/Auto Skip") {
            settings.autoSkip = !settings.autoSkip;
        } else if (item == "Small" || item == "Medium" || item == "Large") {
            settings.size = item == "Small" ? 0 : item == "Medium" ? 1 : 2;
            selected = {};
            LayOut();
            Repaint(false);
        } else if (menu == "View" || menu == item) {
            PaintHint(last);
        } else {
            settings.numbers = settings.numbers != (last == "Numbers");
            if (menu != "Toggle") {
                ChangeLetters(menu == "Fill", last);
            }
            Repaint(true);
        }
    }

    // Neither bevels nor a highlight; wrong letters are red. What is said, and its title.
    std::vector<ShownMessage> Check() {
        bool anyLetter = false;
        bool anyWrong = false;
        for (PlainCell cell : CellsOf("Puzzle")) {
            const char letter = Letter(cell);
            const bool wrong = letter != Solution(cell);
            const bool square = Solution(cell) == '.';
            PaintCell(cell, square, false);
            if (!square) {
                WriteInto(cell, letter, wrong ? red : black);
                anyLetter = anyLetter || letter != '-';
                anyWrong = anyWrong || (wrong && letter != '-');
            }
        }
        ShowView();
        if (!anyLetter) {
            return {
                {u"This button will check puzzle for errors. You've have not yet started the "
                 u"puzzle, so there is nothing to check.",
                 u"Puzzle Checker"}};
        }
        const ShownMessage right{u"All the letters entered so far are correct.", u"Nothing Wrong"};
        return std::vector<ShownMessage>(anyWrong ? 0 : 1, right);
    }

    void TurnDirection() {
        direction = 1 - direction;
        Repaint(true);
    }

    void ToggleKeyboard() {
        const int before = ViewHeight();
        if (keyboardUp) {
            keyboardUp = false;
            LayOutBelow(before);
            return;
        }
        if (panelUp) {
            TogglePanel();
        }
        keyboardUp = true;
        if (settings.size == 0) {
            LayOutBelow(before);
        } else {
            ScrollToWord();
        }
        ShowAll();
    }

    void TogglePanel() {
        const int before = ViewHeight();
        panelUp = !panelUp;
        keyboardUp = false;
        LayOutBelow(before);
    }

    void ExpectSame(Handheld& handheld) const {
        ASSERT_TRUE(handheld.Running());
        ASSERT_EQ(std::string(PlayerGrid, static_cast<std::size_t>(PuzzleWidth * PuzzleHeight)),
                  Joined(letters));
        ASSERT_EQ(std::tuple(CursorRow, CursorCol, Direction, KeyboardVisible, ScrollX, ScrollY),
                  std::tuple(selected.row, selected.col, direction, int{keyboardUp}, int{scroll.x},
                             int{scroll.y}));
        const int size = Magnification.Large == 1 ? 2 : Magnification.Medium;
        ASSERT_TRUE(settings == (PlainSettings{size, AutoSkip == 1, ShowNumbers == 1,
                                               BackgroundColor, SquareColor}));
        const QImage shown = handheld.Client();
        ASSERT_EQ(shown, screen->Image().copy(shown.rect()));
    }

    BoardRows letters;
    PlainSettings settings;
    PlainCell selected;
    bool keyboardUp = false;
    bool panelUp = false;
    QImage flash;  // the screen with the key that was tapped last

private:
    static constexpr COLORREF black = RGB(0, 0, 0);
    static constexpr COLORREF white = RGB(255, 255, 255);
    static constexpr COLORREF red = RGB(255, 0, 0);
    static constexpr COLORREF grey = RGB(192, 192, 192);
    static constexpr COLORREF yellow = RGB(255, 255, 2);
    static constexpr COLORREF orange = RGB(255, 200, 125);

    static constexpr double cellPerEm = 1.117;  // of a letter's height
    static constexpr UINT centred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

    // A picture to paint on, white at first.
    struct Canvas : Surface {
        using Surface::Surface;

        void Clear(const RECT& area) {
            Draw(FillMark{area, ToQRgb(white)});
        }
        void Fill(const RECT& area, COLORREF color) {
            Draw(FrameMark{area, ToQRgb(black), ToQRgb(color), QSize()});
        }
        void Write(const std::string& text, const RECT& box, const FontChoice& font, UINT format,
                   COLORREF color) {
            Draw(TextMark{box, {text.begin(), text.end()}, format, font, ToQRgb(color)});
        }
    };

    bool IsInView(POINT point) const {
        return IsIn({0, 0, 239, ViewHeight() - 1}, point);
    }

    int CellSide() const {
        const int fitting = std::min(240 / Side(), ViewHeight() / Side());
        return settings.size == 0 ? fitting : settings.size == 1 ? 20 : 24;
    }

    int BoardLeft() const {
        return std::max((240 - Side() * CellSide()) / 2, 0);
    }

    RECT Box(PlainCell cell) const {
        const int left = BoardLeft() + cell.col * CellSide();
        const int top = cell.row * CellSide();
        return {left, top, left + CellSide() + 1, top + CellSide() + 1};
    }

    char& Letter(PlainCell cell) {
        return letters[static_cast<std::size_t>(cell.row)][static_cast<std::size_t>(cell.col)];
    }

    char Solution(PlainCell cell) const {
        return solution[static_cast<std::size_t>(cell.row)][static_cast<std::size_t>(cell.col)];
    }

    PlainWord SelectedWord() const {
        return WordAt(words, selected.row, selected.col, direction);
    }

    std::vector<PlainCell> CellsOf(const std::string& scope) const {
        const PlainWord word = SelectedWord();
        std::vector<PlainCell> cells;
        for (int i = 0; i < Side() * Side(); ++i) {
            const PlainCell cell{i / Side(), i % Side()};
            if (scope == "Puzzle" || (scope == "Word" && word.Contains(cell.row, cell.col)) ||
                cell == selected) {
                cells.push_back(cell);
            }
        }
        return cells;
    }

    // In Small the left outline, the top one and all beside the board are no part of it.
    void TapBoard(POINT point, bool held) {
        const int x = point.x - BoardLeft() + scroll.x;
        const int y = point.y + scroll.y;
        const int side = Side() * CellSide();
        if (settings.size == 0 && (x <= 0 || x >= side || y <= 0 || y > side)) {
            return;
        }
        PaintBoard();
        const PlainCell cell{y / CellSide(), x / CellSide()};
        if (x >= 0 && x < side && y < side) {
            direction = cell == selected && !held ? 1 - direction : direction;
            // A cell without both words stays unselected.
            if (WordAt(words, cell.row, cell.col, 0).length > 1 &&
                WordAt(words, cell.row, cell.col, 1).length > 1) {
                selected = cell;
                PaintWord();
            }
        }
        PaintBar();
        if (settings.size != 0) {
            ScrollToWord();
        }
    }

    void TapKey(POINT point) {
        static const auto keys = AllKeys();
        for (const auto& [name, key] : keys) {
            if (!IsIn(key.taps, point)) {
                continue;
            }
            Flash(key.flash, name == okKey ? "OK" : std::string(1, name == eraseKey ? ' ' : name));
            if (name == okKey) {
                ToggleKeyboard();
            } else {
                Enter(name);
            }
        }
    }

    void Flash(const RECT& key, const std::string& label) {
        const RECT whole{key.left, key.top, key.right + 1, key.bottom + 1};
        const RECT inside{key.left + 1, key.top + 1, key.right, key.bottom};
        screen->Draw(FrameMark{whole, ToQRgb(black), ToQRgb(yellow), QSize(2, 2)});
        screen->Write(label, inside, {FontChoice::Face::Small, false, 10}, centred, black);
        flash = screen->Image().copy();
        screen->Draw(ArtMark{{0, 225, 240, 269}, "keyboard.svg"});
    }

    // Only the whole puzzle's commands touch what is a black square to the player.
    void ChangeLetters(bool fill, const std::string& scope) {
        for (PlainCell cell : CellsOf(scope)) {
            if (scope == "Puzzle" && Solution(cell) == '.') {
                Letter(cell) = '.';
            } else if (scope == "Puzzle" || Letter(cell) != '.') {
                Letter(cell) = fill ? Solution(cell) : '-';
            }
        }
    }

    // A letter, or '-' to erase.
    void Enter(char letter) {
        if (Letter(selected) == '.') {
            return;
        }
        Letter(selected) = letter;
        PaintBoard();
        const std::vector<PlainCell> word = CellsOf("Word");
        auto place = std::find(word.begin(), word.end(), selected);
        if (letter == '-') {
            place -= place == word.begin() ? 0 : 1;
        } else {
            while (place + 1 != word.end() && !(settings.autoSkip && Letter(place[1]) == '.')) {
                ++place;
                if (!settings.autoSkip || Letter(*place) == '-') {
                    break;
                }
            }
        }
        selected = *place;
        PaintWord();
        PaintBar();
    }

    // Over the words of one direction in the order of their clues; to the corner from the list's
    // ends.
    void Jump(int step) {
        const int count = static_cast<int>(words.size());
        int next = static_cast<int>(SelectedWord().index) + step;
        while (next >= 0 && next < count && WordOf(next).direction != direction) {
            next += step;
        }
        const bool isListed = next >= 0 && next < count;
        selected = isListed ? PlainCell{WordOf(next).row, WordOf(next).col} : PlainCell();
    }

    const PlainWord& WordOf(int index) const {
        return words[static_cast<std::size_t>(index)];
    }

    // The rules in pixels, one long list.
    void ScrollToWord() {
        const PlainWord word = SelectedWord();
        const int cell = CellSide();
        const auto showEnd = [cell](auto& position, int view, int last, int from) {
            const int end = (last + 1) * cell;
            const bool shows = end > view + position && end - from * cell < view;
            position = shows ? end - view : position;
            return shows;
        };
        const auto showStart = [cell](auto& position, int view, int first) {
            if (first * cell < position && position - first * cell < view) {
                position = first * cell;
            }
        };
        const int lastRow = direction == 0 ? selected.row : word.row + word.length - 1;
        const int lastCol = direction == 0 ? word.col + word.length - 1 : selected.col;
        const bool rowShown = showEnd(scroll.y, ViewHeight(), lastRow, selected.row);
        if (!rowShown) {
            showStart(scroll.y, ViewHeight(), word.row);
        }
        if (!showEnd(scroll.x, 240, lastCol, selected.col) && (direction == 0 || !rowShown)) {
            showStart(scroll.x, 240, word.col);
        }
    }

    // The bottom edge of a larger board stays over the same row; where there is no board above that
    // could move down, the top one does.
    void LayOutBelow(int viewHeightBefore) {
        if (settings.size == 0) {
            LayOut();
            PaintBoard();
            PaintWord();
        } else if (scroll.y + viewHeightBefore >= ViewHeight()) {
            scroll.y += viewHeightBefore - ViewHeight();
        }
        ShowAll();
    }

    // How it looks.

    void LayOut() {
        scroll = {0, 0};
        const int side = Side() * CellSide() + 1;
        board = std::make_shared<Canvas>(std::max(240, side), std::max(268, side));
    }

    // The box of the number reaches so far beyond the cell's inside.
    void WriteInto(PlainCell cell, char letter, COLORREF color, int reach) {
        const RECT box = Box(cell);
        if (letter != '-') {
            const FontChoice font{FontChoice::Face::System, true, (CellSide() - 2) / cellPerEm};
            board->Write({letter}, box, font, centred, color);
        }
        const auto number = numbers.find(cell);
        if (settings.size != 0 && settings.numbers && number != numbers.end()) {
            const RECT area{box.left + 1, box.top, box.right - 1 + reach, box.bottom - 1 + reach};
            board->Write(std::to_string(number->second), area, {FontChoice::Face::Small, false, 7},
                         DT_SINGLELINE, black);
        }
    }
    void WriteInto(PlainCell cell, char letter, COLORREF color) {
        WriteInto(cell, letter, color, CellSide() / 2);
    }

    void PaintCell(PlainCell cell, bool square, bool bevel) {
        const RECT box = Box(cell);
        board->Fill(box, square ? settings.squares : settings.letterCells);
        if (bevel && !square) {
            const LONG left = box.left + 1;
            const LONG top = box.top + 1;
            board->Draw(LineMark{{left, top, box.right - 1, top + 1}, ToQRgb(grey)});
            board->Draw(LineMark{{left, top, left + 1, box.bottom - 1}, ToQRgb(grey)});
        }
    }

    void PaintBoard(bool solved = false) {
        const int whole = std::max(268, Side() * CellSide() + 1);
        board->Clear({0, 0, whole, whole});
        for (PlainCell cell : CellsOf("Puzzle")) {
            const char letter = solved ? Solution(cell) : Letter(cell);
            PaintCell(cell, letter == '.', true);
            if (letter != '.') {
                WriteInto(cell, letter, solved ? red : black);
            }
        }
    }

    // The squares of the whole word come before what is written in them.
    void PaintWord(bool solved = false) {
        const std::vector<PlainCell> word = CellsOf("Word");
        for (PlainCell cell : word) {
            board->Fill(Box(cell), cell == selected ? orange : yellow);
        }
        for (PlainCell cell : word) {
            if (Solution(cell) != '.') {
                WriteInto(cell, solved ? Solution(cell) : Letter(cell), solved ? red : black);
            }
        }
    }

    void PaintHint(const std::string& scope) {
        PaintBoard(scope == "Puzzle");
        if (scope == "Word") {
            PaintWord(true);
        } else if (scope == "Letter") {
            board->Fill(Box(selected), orange);
            // It must not run over the neighbour, which is not painted after it.
            WriteInto(selected, Solution(selected) == '.' ? '-' : Solution(selected), red, 0);
        }
        ShowAll();
    }

    void PaintBar() {
        const int top = ViewHeight();
        const PlainWord word = SelectedWord();
        std::string clue;
        if (word.length > 1) {
            clue = std::to_string(numbers.at({word.row, word.col})) +
                   (direction == 0 ? " a: " : " d: ") + ClueOf(word.index) + " (" +
                   std::to_string(word.length) + ")";
        }
        screen->Clear({0, top, 240, top + 22});
        screen->Write(clue, {1, top, 239, top + 22}, {FontChoice::Face::System, false, 10},
                      DT_WORDBREAK, black);
    }

    void ShowView() {
        screen->Copy({0, 0, 240, ViewHeight()}, *board, scroll);
    }

    void ShowAll() {
        PaintBar();
        if (keyboardUp) {
            screen->Draw(ArtMark{{0, 225, 240, 269}, "keyboard.svg"});
        }
        ShowView();
    }

    void Repaint(bool highlighted) {
        PaintBoard();
        if (highlighted) {
            PaintWord();
        }
        ShowAll();
    }

    BoardRows solution;
    std::vector<PlainWord> words;
    std::map<PlainCell, int> numbers;
    int direction = 0;
    POINT scroll;
    std::shared_ptr<Canvas> board;
    std::shared_ptr<Canvas> screen;
};
