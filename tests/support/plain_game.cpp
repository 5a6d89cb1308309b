#include "support/plain_game.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "app/view.h"
#include "platform/windows.h"
#include "play/settings.h"
#include "resources/ids.h"

namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF bevelGrey = RGB(192, 192, 192);
constexpr COLORREF wordYellow = RGB(255, 255, 2);
constexpr COLORREF selectedOrange = RGB(255, 200, 125);

bool Inside(const RECT& inclusive, POINT point) {
    return point.x >= inclusive.left && point.x <= inclusive.right && point.y >= inclusive.top &&
           point.y <= inclusive.bottom;
}

std::u16string Widen(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

}  // namespace

Canvas::Canvas(int width, int height)
    : context(CreateCompatibleDC(nullptr)), bitmap(CreateCompatibleBitmap(context, width, height)) {
    previous = SelectObject(context, bitmap);
    PatBlt(context, 0, 0, width, height, WHITENESS);
    SetBkMode(context, TRANSPARENT);
}

Canvas::~Canvas() {
    SelectObject(context, previous);
    DeleteDC(context);
    DeleteObject(bitmap);
}

void Canvas::Box(RECT area, COLORREF fill, COLORREF outline) {
    HPEN pen = CreatePen(PS_SOLID, 1, outline);
    HBRUSH brush = CreateSolidBrush(fill);
    HGDIOBJ oldPen = SelectObject(context, pen);
    HGDIOBJ oldBrush = SelectObject(context, brush);
    Rectangle(context, area.left, area.top, area.right, area.bottom);
    SelectObject(context, oldPen);
    SelectObject(context, oldBrush);
    DeleteObject(pen);
    DeleteObject(brush);
}

void Canvas::Line(POINT from, POINT to, COLORREF color) {
    HPEN pen = CreatePen(PS_SOLID, 1, color);
    HGDIOBJ oldPen = SelectObject(context, pen);
    const POINT points[] = {from, to};
    Polyline(context, points, 2);
    SelectObject(context, oldPen);
    DeleteObject(pen);
}

void Canvas::Write(const std::u16string& text, RECT box, const Font& font, UINT format,
                   COLORREF color) {
    LOGFONTW description;
    description.lfHeight = font.height;
    description.lfWeight = font.weight;
    font.face.copy(description.lfFaceName, LF_FACESIZE - 1);
    HFONT created = CreateFontIndirectW(&description);
    HGDIOBJ oldFont = SelectObject(context, created);
    SetTextColor(context, color);
    DrawTextW(context, text.c_str(), -1, &box, format);
    SelectObject(context, oldFont);
    DeleteObject(created);
}

void Canvas::CopyFrom(HDC source, RECT target, POINT from) {
    BitBlt(context, target.left, target.top, target.right - target.left, target.bottom - target.top,
           source, from.x, from.y, SRCCOPY);
}

// The first key of each row takes what lies to its left, as far as the row begins; the rows of taps
// are a pixel lower than the keys.
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

int KeyAt(POINT point) {
    static const auto keys = AllKeys();
    for (const auto& [name, key] : keys) {
        if (Inside(key.taps, point)) {
            return name;
        }
    }
    return 0;
}

POINT MiddleOf(const PlainKey& key) {
    return {(key.drawn.left + key.drawn.right) / 2, (key.drawn.top + key.drawn.bottom) / 2};
}

std::string PlainRecord(const std::string& path, const BoardRows& letters,
                        const PlainSettings& settings) {
    std::string record(4096, '\0');
    const auto put = [&record](std::size_t at, const std::string& text) {
        record.replace(at, text.size(), text);
    };
    std::string cells;
    for (const std::string& row : letters) {
        cells += row;
    }
    const std::size_t sizes = path.size() + 1;
    const std::size_t end = sizes + 6 + cells.size();
    put(0, path);
    put(sizes, std::to_string(letters.size()));
    put(sizes + 3, std::to_string(letters[0].size()));
    put(sizes + 6, cells);
    put(end + 1, std::to_string(settings.size));
    put(end + 3, settings.autoSkip ? "1" : "0");
    put(end + 5, settings.numbers ? "1" : "0");
    std::size_t at = end + 7;
    for (COLORREF color : {settings.letterCells, settings.squares}) {
        for (int part : {GetRValue(color), GetGValue(color), GetBValue(color)}) {
            put(at, std::to_string(part));
            at += 4;
        }
    }
    return record;
}

PlainGame::PlainGame(const BoardRows& puzzle) {
    Open(puzzle, EmptyBoard(puzzle));
    StartAgain();
}

void PlainGame::StartAgain() {
    row = col = direction = 0;
    keyboardUp = panelUp = false;
    LayOut();
    Repaint(false);
}

void PlainGame::Open(const BoardRows& puzzle, const BoardRows& restored) {
    solution = puzzle;
    letters = restored;
    words = WordsOf(puzzle);
    numbers.clear();
    for (const PlainWord& word : words) {
        numbers.try_emplace({word.row, word.col}, static_cast<int>(numbers.size()) + 1);
    }
    row = col = 0;
    LayOut();
    Repaint(true);
}

int PlainGame::Side() const {
    return static_cast<int>(solution.size());
}

int PlainGame::ViewHeight() const {
    return (panelUp ? 188 : 268) - (keyboardUp ? 65 : 20);
}

int PlainGame::CellSide() const {
    const int fitting = std::min(240 / Side(), ViewHeight() / Side());
    return settings.size == 0 ? fitting : settings.size == 1 ? 20 : 24;
}

int PlainGame::BoardLeft() const {
    return std::max((240 - Side() * CellSide()) / 2, 0);
}

RECT PlainGame::CellBox(int cellRow, int cellCol) const {
    const int left = BoardLeft() + cellCol * CellSide();
    const int top = cellRow * CellSide();
    return {left, top, left + CellSide() + 1, top + CellSide() + 1};
}

POINT PlainGame::MiddleOfCell(int cellRow, int cellCol) const {
    const RECT box = CellBox(cellRow, cellCol);
    return {(box.left + box.right) / 2 - scroll.x, (box.top + box.bottom) / 2 - scroll.y};
}

char PlainGame::SolutionAt(int cellRow, int cellCol) const {
    return solution[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellCol)];
}

char& PlainGame::LetterAt(int cellRow, int cellCol) {
    return letters[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellCol)];
}

std::string PlainGame::Letters() const {
    std::string all;
    for (const std::string& line : letters) {
        all += line;
    }
    return all;
}

PlainWord PlainGame::SelectedWord() const {
    return WordAt(words, row, col, direction);
}

int PlainGame::NumberAt(int cellRow, int cellCol) const {
    const auto found = numbers.find({cellRow, cellCol});
    return found == numbers.end() ? 0 : found->second;
}

std::u16string PlainGame::ClueText() const {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].direction == direction && words[i].Contains(row, col)) {
            return Widen(std::to_string(NumberAt(words[i].row, words[i].col)) +
                         (direction == 0 ? " a: " : " d: ") + "Clue " + std::to_string(i) + " (" +
                         std::to_string(words[i].length) + ")");
        }
    }
    return {};
}

// What the stylus does.

void PlainGame::Tap(POINT point) {
    if (point.x < 0 || point.x >= 240 || point.y < 0) {
        return;
    }
    if (point.y >= ViewHeight()) {
        if (keyboardUp && point.y >= 225 && point.y < 298) {
            TapKey(KeyAt(point));
        }
    } else if (TapOnBoard(point, false)) {
        ShowView();
    }
}

void PlainGame::HoldAt(POINT point) {
    if (point.y < ViewHeight()) {
        TapOnBoard(point, true);
    }
    ShowView();
}

// In Small the left outline, the top one and all beside the board are no part of it.
bool PlainGame::TapOnBoard(POINT point, bool held) {
    const int left = BoardLeft();
    const int boardSide = Side() * CellSide();
    if (settings.size == 0 &&
        (point.x <= left || point.x >= left + boardSide || point.y <= 0 || point.y > boardSide)) {
        return false;
    }
    PaintBoard();
    const int x = point.x - left + scroll.x;
    const int y = point.y + scroll.y;
    for (int i = 0; i < Side() * Side(); ++i) {
        const int cellRow = i / Side();
        const int cellCol = i % Side();
        const int top = cellRow * CellSide();
        const int start = cellCol * CellSide();
        if (x >= start && x < start + CellSide() && y >= top && y < top + CellSide()) {
            if (cellRow == row && cellCol == col && !held) {
                direction = 1 - direction;
            }
            // A cell without both words stays unselected.
            if (WordAt(words, cellRow, cellCol, 0).length > 1 &&
                WordAt(words, cellRow, cellCol, 1).length > 1) {
                row = cellRow;
                col = cellCol;
                PaintWord();
            }
        }
    }
    PaintBar();
    if (settings.size != 0) {
        ScrollToWord();
    }
    return true;
}

// One pen, one board; a move that would pass a limit does not happen.
void PlainGame::Drag(POINT from, POINT to) {
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
        const POINT pen{from.x + (to.x - from.x) * step / 10, from.y + (to.y - from.y) * step / 10};
        // A hand trembles.
        moved = moved || std::abs(pen.x - from.x) > 4 || std::abs(pen.y - from.y) > 4;
        const bool inView = pen.x >= 0 && pen.x < 240 && pen.y >= 0 && pen.y < ViewHeight();
        if (scrolls && moved && inView) {
            along(scroll.x, last.x - pen.x, mostX);
            along(scroll.y, last.y - pen.y, mostY);
            last = pen;
            ShowView();
        }
    }
    Tap(to);
}

void PlainGame::TapKey(int key) {
    PaintKeyboard();
    if (key == okKey) {
        ToggleKeyboard();
        return;
    }
    if (key == eraseKey) {
        Erase();
    } else if (key != 0) {
        Enter(key);
    }
    ShowView();
}

// What keys do.

void PlainGame::Press(int key) {
    if (key >= 'A' && key <= 'Z') {
        Enter(key);
    } else if (key == Qt::Key_Backspace) {
        Erase();
    } else {
        direction = key == Qt::Key_Return ? 1 - direction : direction;
        if (key == Qt::Key_Left || key == Qt::Key_Up) {
            Jump(false);
        } else if (key == Qt::Key_Right || key == Qt::Key_Down) {
            Jump(true);
        }
        PaintBoard();
        PaintWord();
        ScrollToWord();
        PaintBar();
    }
    ShowView();
}

void PlainGame::Enter(int key) {
    if (SolutionAt(row, col) == '.') {
        return;
    }
    LetterAt(row, col) = static_cast<char>(key);
    PaintBoard();
    const PlainWord word = SelectedWord();
    const int rowStep = direction;
    const int colStep = 1 - direction;
    const auto isLast = [&](int cellRow, int cellCol) {
        return cellRow == word.row + rowStep * (word.length - 1) &&
               cellCol == word.col + colStep * (word.length - 1);
    };
    while (!isLast(row, col)) {
        row += rowStep;
        col += colStep;
        if (!settings.autoSkip || LetterAt(row, col) == '-') {
            break;
        }
    }
    PaintWord();
    PaintBar();
}

void PlainGame::Erase() {
    if (SolutionAt(row, col) == '.') {
        return;
    }
    LetterAt(row, col) = '-';
    PaintBoard();
    const PlainWord word = SelectedWord();
    if (row != word.row || col != word.col) {
        row -= direction;
        col -= 1 - direction;
    }
    PaintWord();
}

// Over the words of one direction in the order of their clues; to the corner from the list's ends.
void PlainGame::Jump(bool forward) {
    std::vector<PlainWord> list;
    std::copy_if(words.begin(), words.end(), std::back_inserter(list),
                 [this](const PlainWord& word) { return word.direction == direction; });
    std::size_t current = 0;
    while (current < list.size() && !list[current].Contains(row, col)) {
        ++current;
    }
    if (forward ? current + 1 >= list.size() : current == 0) {
        row = col = 0;
        return;
    }
    const PlainWord& target = list[forward ? current + 1 : current - 1];
    row = target.row;
    col = target.col;
}

// The rules in pixels, one long list.
void PlainGame::ScrollToWord() {
    const PlainWord word = SelectedWord();
    const int cell = CellSide();
    const auto showEnd = [cell](auto& position, int view, int last, int selected) {
        const int end = (last + 1) * cell;
        const bool shows = end > view + position && end - selected * cell < view;
        position = shows ? end - view : position;
        return shows;
    };
    const auto showStart = [cell](auto& position, int view, int first) {
        if (first * cell < position && position - first * cell < view) {
            position = first * cell;
        }
    };
    if (direction == 0) {
        if (!showEnd(scroll.x, 240, word.col + word.length - 1, col)) {
            showStart(scroll.x, 240, word.col);
        }
        if (!showEnd(scroll.y, ViewHeight(), row, row)) {
            showStart(scroll.y, ViewHeight(), row);
        }
        return;
    }
    const bool endShown = showEnd(scroll.y, ViewHeight(), word.row + word.length - 1, row);
    if (!endShown) {
        showStart(scroll.y, ViewHeight(), word.row);
    }
    const bool columnShown = showEnd(scroll.x, 240, col, col);
    if (!endShown && !columnShown) {
        showStart(scroll.x, 240, col);
    }
}

// What commands do.

void PlainGame::TurnDirection() {
    direction = 1 - direction;
    Repaint(true);
}

void PlainGame::ChooseSize(int size) {
    settings.size = size;
    row = col = 0;
    LayOut();
    Repaint(false);
}

void PlainGame::ToggleNumbers() {
    settings.numbers = !settings.numbers;
    Repaint(true);
}

void PlainGame::ToggleAutoSkip() {
    settings.autoSkip = !settings.autoSkip;
}

template <typename Action>
void PlainGame::ForEachCell(const std::string& scope, const Action& action) {
    const PlainWord word = SelectedWord();
    for (int i = 0; i < Side() * Side(); ++i) {
        const int cellRow = i / Side();
        const int cellCol = i % Side();
        if (scope == "Puzzle" || (scope == "Word" && word.Contains(cellRow, cellCol)) ||
            (cellRow == row && cellCol == col)) {
            action(cellRow, cellCol);
        }
    }
}

void PlainGame::Fill(const std::string& scope) {
    ForEachCell(scope, [this](int cellRow, int cellCol) {
        LetterAt(cellRow, cellCol) = SolutionAt(cellRow, cellCol);
    });
    Repaint(true);
}

void PlainGame::Clear(const std::string& scope) {
    ForEachCell(scope, [this](int cellRow, int cellCol) {
        LetterAt(cellRow, cellCol) = SolutionAt(cellRow, cellCol) == '.' ? '.' : '-';
    });
    Repaint(true);
}

void PlainGame::Hint(const std::string& scope) {
    PaintBoard(scope == "Puzzle");
    const RECT box = CellBox(row, col);
    if (scope == "Letter") {
        board->Box(box, selectedOrange);
        WriteLetter(row, col, SolutionAt(row, col), red);
        // It must not run over the neighbour, which is not painted after it.
        WriteNumber(row, col, RECT{box.left + 1, box.top, box.right - 1, box.bottom - 1});
    } else if (scope == "Word") {
        PaintWord(true);
    }
    PaintBar();
    PaintKeyboard();
    ShowView();
}

// Neither bevels nor a highlight; wrong letters are red.
bool PlainGame::Check() {
    bool anyLetter = false;
    bool anyWrong = false;
    ForEachCell("Puzzle", [&](int cellRow, int cellCol) {
        const char letter = LetterAt(cellRow, cellCol);
        const bool wrong = letter != SolutionAt(cellRow, cellCol);
        board->Box(CellBox(cellRow, cellCol),
                   letter == '.' ? settings.squares : settings.letterCells);
        WriteLetter(cellRow, cellCol, letter, wrong ? red : black);
        WriteNumber(cellRow, cellCol);
        anyLetter = anyLetter || (letter != '.' && letter != '-');
        anyWrong = anyWrong || (wrong && letter != '-');
    });
    ShowView();
    return !anyWrong || !anyLetter;
}

void PlainGame::ToggleKeyboard() {
    const int before = ViewHeight();
    if (keyboardUp) {
        keyboardUp = false;
        LeaveKeyboard(before);
        return;
    }
    if (panelUp) {
        TogglePanel();
    }
    keyboardUp = true;
    if (settings.size == 0) {
        LayOut();
        PaintBoard();
        PaintWord();
    } else {
        ScrollToWord();
    }
    PaintBar();
    PaintKeyboard();
    ShowView();
}

void PlainGame::TogglePanel() {
    const int before = ViewHeight();
    panelUp = !panelUp;
    keyboardUp = false;
    LeaveKeyboard(before);
}

// Where there is no board above that could move down, it stays.
void PlainGame::LeaveKeyboard(int viewHeightBefore) {
    if (settings.size == 0) {
        LayOut();
        PaintBoard();
        PaintWord();
    } else if (scroll.y + viewHeightBefore >= ViewHeight()) {
        scroll.y += viewHeightBefore - ViewHeight();
    }
    PaintBar();
    ShowView();
}

// How it looks.

void PlainGame::LayOut() {
    scroll = {0, 0};
    const int side = Side() * CellSide() + 1;
    board.emplace(std::max(240, side), std::max(268, side));
}

void PlainGame::WriteLetter(int cellRow, int cellCol, char letter, COLORREF color) {
    if (letter != '.' && letter != '-') {
        board->Write(std::u16string(1, static_cast<char16_t>(letter)), CellBox(cellRow, cellCol),
                     {u"System", CellSide() - 2, 700}, DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                     color);
    }
}

void PlainGame::WriteNumber(int cellRow, int cellCol, std::optional<RECT> box) {
    const int number = NumberAt(cellRow, cellCol);
    if (settings.size == 0 || !settings.numbers || number == 0) {
        return;
    }
    const RECT cell = CellBox(cellRow, cellCol);
    const int reach = CellSide() + CellSide() / 2;
    const RECT usual{cell.left + 1, cell.top, cell.left + reach, cell.top + reach};
    board->Write(Widen(std::to_string(number)), box.value_or(usual), {u"Arial", -7, 0},
                 DT_SINGLELINE);
}

void PlainGame::PaintBoard(bool solved) {
    const int whole = std::max(268, Side() * CellSide() + 1);
    board->Box({0, 0, whole, whole}, white, white);
    ForEachCell("Puzzle", [&](int cellRow, int cellCol) {
        const RECT box = CellBox(cellRow, cellCol);
        if (SolutionAt(cellRow, cellCol) == '.') {
            board->Box(box, settings.squares);
            return;
        }
        board->Box(box, settings.letterCells);
        board->Line({box.left + 1, box.top + 1}, {box.right - 1, box.top + 1}, bevelGrey);
        board->Line({box.left + 1, box.top + 1}, {box.left + 1, box.bottom - 1}, bevelGrey);
        WriteLetter(cellRow, cellCol,
                    solved ? SolutionAt(cellRow, cellCol) : LetterAt(cellRow, cellCol),
                    solved ? red : black);
        WriteNumber(cellRow, cellCol);
    });
}

// The squares of the whole word come first, and what is written in them after.
void PlainGame::PaintWord(bool ofSolution) {
    ForEachCell("Word", [&](int cellRow, int cellCol) {
        board->Box(CellBox(cellRow, cellCol), wordYellow);
    });
    board->Box(CellBox(row, col), selectedOrange);
    // Of a solution all letters come before the numbers.
    for (const bool numbersOnly : {false, true}) {
        ForEachCell("Word", [&](int cellRow, int cellCol) {
            if (ofSolution && !numbersOnly) {
                WriteLetter(cellRow, cellCol, SolutionAt(cellRow, cellCol), red);
            } else if (ofSolution) {
                WriteNumber(cellRow, cellCol);
            } else if (!numbersOnly) {
                WriteLetter(cellRow, cellCol, LetterAt(cellRow, cellCol), black);
                WriteNumber(cellRow, cellCol);
            }
        });
    }
}

void PlainGame::PaintBar() {
    const int top = (panelUp ? 188 : 268) - (keyboardUp ? 65 : 20);
    screen.Box({0, top, 240, top + 22}, white, white);
    screen.Write(ClueText(), {1, top, 239, top + 22}, {u"System", -10, 0}, DT_WORDBREAK);
}

void PlainGame::PaintKeyboard() {
    if (keyboardUp) {
        HDC context = CreateCompatibleDC(nullptr);
        HBITMAP picture = LoadBitmapW(&programResources, bitmapKeyboard);
        HGDIOBJ previous = SelectObject(context, picture);
        screen.CopyFrom(context, {0, 225, 240, 269}, {0, 0});
        SelectObject(context, previous);
        DeleteDC(context);
        DeleteObject(picture);
    }
}

void PlainGame::ShowView() {
    screen.CopyFrom(board->context, {0, 0, 240, ViewHeight()}, scroll);
}

void PlainGame::Repaint(bool highlighted) {
    PaintBoard();
    if (highlighted) {
        PaintWord();
    }
    PaintBar();
    PaintKeyboard();
    ShowView();
}

void PlainGame::ExpectSame(Handheld& handheld) const {
    ASSERT_TRUE(handheld.Running());
    ASSERT_EQ(std::string(PlayerGrid, static_cast<std::size_t>(PuzzleWidth * PuzzleHeight)),
              Letters());
    ASSERT_EQ((std::array{CursorRow, CursorCol, Direction}), (std::array{row, col, direction}));
    ASSERT_EQ((std::array{ScrollX, ScrollY}), (std::array{int{scroll.x}, int{scroll.y}}));
    const int size = Magnification.Large == 1 ? 2 : Magnification.Medium;
    ASSERT_TRUE(settings == (PlainSettings{size, AutoSkip == 1, ShowNumbers == 1, BackgroundColor,
                                           SquareColor}));
    ASSERT_EQ(KeyboardVisible == 1, keyboardUp);
    const QImage shown = handheld.Client();
    ASSERT_EQ(shown, ImageOf(screen.context).copy(shown.rect()));
}
