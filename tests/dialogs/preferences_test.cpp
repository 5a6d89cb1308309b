#include <QtWidgets/QColorDialog>

#include "dialogs/board_colors.h"
#include "resources/ids.h"
#include "support/dialogs.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class Preferences : public PlayedBoard {
protected:
    void Start(MagnificationFlags size) {
        Play(lopsidedBoard, size);
        SelectCell(3, 5, 1);
        RepaintFully(MainWindow);
    }
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDialog(
            *handheld, [this] { ChooseFromBar(*handheld, "Main Menu", {"Preferences"}); }, use);
    }
    std::vector<int> Settings() const {
        return {Magnification.Small,
                Magnification.Medium,
                Magnification.Large,
                AutoSkip,
                ShowNumbers,
                static_cast<int>(SquareColor),
                static_cast<int>(BackgroundColor)};
    }
};

TEST_F(Preferences, OkAloneChangesNothingButLaysTheBoardOutAnew) {
    Play(BoardRows(20, "ABC.DEF.GHI.JKL.MNO."), mediumSize);
    handheld->Drag({120, 120}, {20, 20});
    ASSERT_GT(ScrollX, 0);
    const std::vector<int> before = Settings();
    Use([](OpenDialog& dialog) {
        EXPECT_TRUE(dialog.IsChecked(controlMedium));
        EXPECT_FALSE(dialog.IsChecked(controlSmall) || dialog.IsChecked(controlLarge));
        EXPECT_FALSE(dialog.IsChecked(controlAutoSkip) || dialog.IsChecked(controlShowNumbers));
        dialog.Tap(commandClose);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(Settings(), before);
    EXPECT_EQ(ScrollX, 0);
    EXPECT_EQ(ScrollY, 0);
}

TEST_F(Preferences, EachSettingAloneIsTakenByOkOnly) {
    Start(smallSize);
    const std::vector<int> start = Settings();
    const std::pair<int, std::vector<int>> changes[] = {
        {controlMedium, {0, 1, 0, 0, 0}},   {controlLarge, {0, 0, 1, 0, 0}},
        {controlAutoSkip, {0, 0, 1, 1, 0}}, {controlShowNumbers, {0, 0, 1, 1, 1}},
        {controlAutoSkip, {0, 0, 1, 0, 1}}, {controlSmall, {1, 0, 0, 0, 1}},
    };
    for (const auto& [control, expected] : changes) {
        const std::vector<int> before = Settings();
        Use([&, changed = control](OpenDialog& dialog) {
            dialog.Tap(changed);
            EXPECT_EQ(Settings(), before);
        });
        SCOPED_TRACE(control);
        std::vector<int> now = Settings();
        now.resize(expected.size());
        EXPECT_EQ(now, expected);
        EXPECT_EQ(PlayerLetters().size(), 35u);
        EXPECT_EQ(CursorRow, 3);
        ExpectFullRepaint();
    }
    EXPECT_TRUE(LookAtMenu(*handheld, "Puzzle magnification").items["Small"].checked);
    EXPECT_TRUE(LookAtMenu(*handheld, "Main Menu").items["Toggle/Numbers"].checked);
}

TEST_F(Preferences, TheArrowsChooseASize) {
    Start(smallSize);
    Use([](OpenDialog& dialog) {
        EXPECT_TRUE(dialog.HasFocus(controlSmall));
        dialog.Press(Qt::Key_Right);
        dialog.Press(Qt::Key_Tab);
        EXPECT_TRUE(dialog.HasFocus(controlAutoSkip));
        dialog.Press(Qt::Key_Space);
        dialog.Press(Qt::Key_Return);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(Magnification.Medium, 1);
    EXPECT_EQ(AutoSkip, 1);
}

// The colours that players mix themselves are kept for the run.
TEST_F(Preferences, AColorIsTakenAtOnceAndACancelledOneNever) {
    Start(smallSize);
    constexpr COLORREF green = RGB(10, 120, 30);
    constexpr COLORREF cream = RGB(250, 240, 220);
    Use([&](OpenDialog& dialog) {
        PickNextColor(green, true);
        dialog.Tap(controlSquareColor);
        EXPECT_EQ(SquareColor, green);
        PickNextColor(cream, true);
        dialog.Tap(controlBackgroundColor);
        EXPECT_EQ(BackgroundColor, cream);
        const QImage button = dialog.Widget(controlSquareColor)->grab().toImage();
        EXPECT_EQ(ColorAt(button, button.width() / 2, button.height() / 2), green);
        QColorDialog::setCustomColor(0, Qt::white);
        SquareColorChooser.lpCustColors[3] = RGB(1, 23, 45);
        PickNextColor(RGB(1, 2, 3), false);
        dialog.Tap(controlSquareColor);
        EXPECT_EQ(SquareColor, green);
        EXPECT_EQ(QColorDialog::customColor(3), QColor(1, 23, 45));
        EXPECT_EQ(QColorDialog::customColor(8), QColor(Qt::black));
    });
    // The black square of the first row, and a letter cell.
    EXPECT_EQ(handheld->Pixel(BoardLeft + 2 * CellSize + CellSize / 2, CellSize / 2), green);
    EXPECT_EQ(handheld->Pixel(BoardLeft + CellSize / 2, CellSize / 2), cream);
}

}  // namespace
