#include "board/clue_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/drawing.h"
#include "platform/windows.h"
#include "support/played_board.h"

namespace {

constexpr int barHeight = 22;

class ClueBar : public PlayedBoard {
protected:
    // What the rows of the client area from the top on show, as far as the bar reaches.
    QImage Bar(int top) {
        return handheld->Client().copy(0, top, 240, std::min(barHeight, ClientHeight() - top));
    }
    static int ClientHeight() {
        RECT client;
        GetClientRect(MainWindow, &client);
        return client.bottom;
    }
};

// The bar as somebody would draw it who knows its text.
QImage BarWith(const std::u16string& text, int height) {
    HDC context = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(context, 240, height);
    HGDIOBJ oldBitmap = SelectObject(context, bitmap);
    LOGFONTW description;
    description.lfHeight = -10;
    std::u16string(u"System").copy(description.lfFaceName, 6);
    HFONT font = CreateFontIndirectW(&description);
    HGDIOBJ oldFont = SelectObject(context, font);
    RECT box{1, 0, 239, barHeight};
    DrawTextW(context, text.c_str(), -1, &box, DT_WORDBREAK);
    QImage image = ImageOf(context);
    SelectObject(context, oldFont);
    SelectObject(context, oldBitmap);
    DeleteObject(font);
    DeleteObject(bitmap);
    DeleteDC(context);
    return image;
}

// Faults: number, clue and length of the other direction, the length left out or cut, a stale bar.
TEST_F(ClueBar, ShowsTheSelectedWordsNumberDirectionClueAndLength) {
    Play(lopsidedBoard, smallSize);
    ClueTable[static_cast<std::size_t>(Cells[3 * 7].acrossClue)] = "Letters in a row";
    ClueTable[static_cast<std::size_t>(Cells[5].downClue)] = "Kept \x93under\x94 deck";
    handheld->TapCell(3, 5);
    EXPECT_EQ(Bar(248), BarWith(u"10 a: Letters in a row (7)", 20));
    handheld->TapCell(3, 5);
    EXPECT_EQ(Bar(248), BarWith(u"4 d: Kept \u201Cunder\u201D deck (4)", 20));
    handheld->Press(Qt::Key_Return);
    EXPECT_EQ(Bar(248), BarWith(u"10 a: Letters in a row (7)", 20));
}

TEST_F(ClueBar, ClearsWhenTheSelectedCellHasNoWord) {
    Play(lopsidedBoard, smallSize);
    BackgroundColor = RGB(200, 220, 255);
    for (const POINT cell : {POINT{2, 0}, POINT{1, 2}}) {
        SelectCell(4, 0, 0);
        PaintClueBar(MainWindow);
        ASSERT_NE(Bar(248), BarWith(u"", 20));
        SelectCell(cell.y, cell.x, 0);
        PaintClueBar(MainWindow);
        EXPECT_EQ(Bar(248), BarWith(u"", 20)) << cell.y << ", " << cell.x;
    }
}

// The bar stands at the bottom of what either keyboard leaves, and nothing of it stays behind.
TEST_F(ClueBar, StandsAboveTheKeyboards) {
    Play(lopsidedBoard, smallSize);
    handheld->PressPanelButton();
    EXPECT_EQ(Bar(168), BarWith(u"1 a: Clue 0 (2)", 20));
    handheld->PressPanelButton();
    EXPECT_EQ(Bar(248), BarWith(u"1 a: Clue 0 (2)", 20));
    EXPECT_NE(Bar(168), BarWith(u"1 a: Clue 0 (2)", barHeight));
    EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
    EXPECT_EQ(Bar(203), BarWith(u"1 a: Clue 0 (2)", barHeight));
}

// A clue of two lines keeps both whole; a longer one is cut and leaves nothing outside the bar.
TEST_F(ClueBar, CutsLongCluesAtTheBar) {
    Play(lopsidedBoard, smallSize);
    const QImage above = handheld->Client().copy(0, 0, 240, 248);
    std::string sentence;
    for (int i = 0; i < 60; ++i) {
        sentence += "words ";
    }
    std::vector<QImage> bars;
    for (const std::string& text : {std::string(60, 'W'), std::string(15000, 'W'), sentence}) {
        ClueTable[static_cast<std::size_t>(Cells[0].acrossClue)] = text.c_str();
        PaintClueBar(MainWindow);
        const QImage bar = bars.emplace_back(Bar(248));
        EXPECT_NE(bar, BarWith(u"", 20));
        EXPECT_NE(bar.copy(0, 11, 240, 9), BarWith(u"", 9));
        EXPECT_EQ(handheld->Client().copy(0, 0, 240, 248), above);
        for (int y = 0; y < bar.height(); ++y) {
            EXPECT_EQ(ColorAt(bar, 0, y), RGB(255, 255, 255));
            EXPECT_EQ(ColorAt(bar, 239, y), RGB(255, 255, 255));
        }
    }
    EXPECT_EQ(bars[0], bars[1]) << "what cannot be seen changes nothing";
    ClueTable[static_cast<std::size_t>(Cells[0].acrossClue)] = "";
}

}  // namespace
