
#include "dialogs/board_colors.h"
#include "support/dialogs.h"

namespace {

using Preferences = DialogTest;

using Settings = std::vector<int>;

Settings Taken() {
    return {Magnification.Small, Magnification.Medium, Magnification.Large, AutoSkip, ShowNumbers};
}

constexpr int settingControls[] = {controlSmall, controlMedium, controlLarge, controlAutoSkip,
                                   controlShowNumbers};

TEST_F(Preferences, EachSettingAloneIsTakenByOkOnly) {
    Play(BoardRows(20, "ABC.DEF.GHI.JKL.MNO."), mediumSize);
    handheld->Drag({120, 120}, {20, 20});
    ASSERT_GT(ScrollX, 0);
    SelectCell(3, 5, 1);
    const std::pair<int, Settings> changes[] = {
        {controlMedium, {0, 1, 0, 0, 0}},   {controlLarge, {0, 0, 1, 0, 0}},
        {controlAutoSkip, {0, 0, 1, 1, 0}}, {controlShowNumbers, {0, 0, 1, 1, 1}},
        {controlAutoSkip, {0, 0, 1, 0, 1}}, {controlSmall, {1, 0, 0, 0, 1}},
    };
    for (const auto& change : changes) {
        const Settings before = Taken();
        Use(commandPreferences, [&](OpenDialog& dialog) {
            Settings shown;
            for (int control : settingControls) {
                shown.push_back(dialog.Find<QAbstractButton>(control)->isChecked());
            }
            EXPECT_EQ(shown, before);
            dialog.Tap(change.first);
            EXPECT_EQ(Taken(), before);
        });
        EXPECT_EQ(Taken(), change.second);
        EXPECT_EQ(std::tuple(CursorRow, ScrollX, ScrollY), std::tuple(3, 0, 0));
        ExpectFullRepaint();
    }
    EXPECT_TRUE(ChecksOf(*handheld, "Main Menu")["Toggle/Numbers"]);
    Use(commandPreferences, [](OpenDialog& dialog) {
        EXPECT_TRUE(dialog.Find<QWidget>(controlColorGroup)->font().bold());
        for (int key : {Qt::Key_Right, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return}) {
            dialog.Press(key);
        }
    });
    EXPECT_EQ(Taken(), (Settings{0, 1, 0, 1, 1}));
}

// The colours that players mix themselves are kept for the run.
TEST_F(Preferences, AColorIsTakenAtOnceAndACancelledOneNever) {
    Play(squareBoard, smallSize);
    constexpr COLORREF green = RGB(10, 120, 30);
    constexpr COLORREF cream = RGB(250, 240, 220);
    Use(commandPreferences, [&](OpenDialog& dialog) {
        CompareNextBox("Color chooser");
        for (const auto& [control, color] :
             {std::pair(controlSquareColor, green), {controlBackgroundColor, cream}}) {
            PickNextColor(color, true);
            dialog.Tap(control);
            const QImage button = dialog.Find<QWidget>(control)->grab().toImage();
            EXPECT_EQ(ColorAt(button, button.width() / 2, button.height() / 2), color);
        }
        SquareColorChooser.lpCustColors[3] = RGB(1, 23, 45);
        PickNextColor(RGB(1, 2, 3), false);
        dialog.Tap(controlSquareColor);
        EXPECT_EQ(std::pair(SquareColor, BackgroundColor), std::pair(green, cream));
        EXPECT_EQ(QColorDialog::customColor(3), QColor(1, 23, 45));
        EXPECT_EQ(QColorDialog::customColor(8), QColor(Qt::black));
        EXPECT_EQ(QColorDialog::customColor(15), QColor(96, 96, 96));
    });
    // A black square of the first row, and a letter cell.
    const QImage board = handheld->Client();
    EXPECT_EQ(ColorAt(board, BoardLeft + 3 * CellSize + CellSize / 2, CellSize / 2), green);
    EXPECT_EQ(ColorAt(board, BoardLeft + 4 * CellSize + 2, CellSize - 3), cream);
}

}  // namespace
