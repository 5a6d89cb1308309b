
#include "app/view.h"
#include "keyboard/keyboard_visibility.h"
#include "support/dialogs.h"

namespace {

struct KnownDialog {
    const char* title;
    const char* button;
    const char* item;  // of the main menu, or null
    int command;
    int okButton;
};

class EveryDialog : public DialogTest, public testing::WithParamInterface<KnownDialog> {};

// Only the preferences bring the highlight back.
TEST_P(EveryDialog, LeavesTheScreenAsItWasWhicheverWayItCloses) {
    const auto& [title, button, item, command, okButton] = GetParam();
    const auto open = [&] {
        EXPECT_TRUE(item == nullptr ? handheld->PressButton(button)
                                    : ChooseFromBar(*handheld, button, QString(item).split('/')));
    };
    const std::function<void(OpenDialog&)> ways[] = {
        [&](OpenDialog& dialog) { dialog.Tap(okButton); },
        [](OpenDialog& dialog) { dialog.TapTitleOk(); },
        [](OpenDialog& dialog) { dialog.Press(Qt::Key_Escape); },
    };
    for (const MagnificationFlags& size : {smallSize, mediumSize, largeSize}) {
        Play(squareBoard, size);
        RepaintFully(MainWindow);
        SendMessageW(MainWindow, command == commandPreferences ? 0 : WM_PAINT, 0, 0);
        const QImage screen = handheld->Screen();
        for (const auto& way : ways) {
            handheld->PressPanelButton();
            Use(open, [&](OpenDialog& dialog) {
                EXPECT_EQ(QString::fromStdU16String(TopWindow()->title).toStdString(), title);
                EXPECT_FALSE(Host().PanelUp());
                way(dialog);
                EXPECT_FALSE(dialog.IsOpen());
            });
            EXPECT_EQ(handheld->Screen(), screen);
        }
        handheld->Press(Qt::Key_X);
        EXPECT_EQ(PlayerLetters()[0], 'X') << "keys no longer arrive";
    }
}

TEST_P(EveryDialog, AnImpatientHandOpensItOnce) {
    const std::string letters = PlayerLetters();
    int opened = 0;
    const auto open = [this] {
        PostMessageW(MainWindow, WM_COMMAND, static_cast<WPARAM>(GetParam().command), 0);
        PostMessageW(MainWindow, WM_COMMAND, static_cast<WPARAM>(GetParam().command), 0);
        PostMessageW(MainWindow, WM_KEYDOWN, 'Z', 0);
        handheld->Settle();
    };
    Use(open, [&](OpenDialog&) {
        ++opened;
        EXPECT_FALSE(handheld->PressButton("Select a new puzzle"));
    });
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(PlayerLetters(), letters);
}

// All inside, nothing over anything else, no text and no line of a list cut.
void ExpectTidy(const QWidget& dialog) {
    const auto controls = dialog.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* control : controls) {
        SCOPED_TRACE(control->objectName().toStdString() + control->metaObject()->className());
        const QRect place = control->geometry();
        for (const QWidget* other : controls) {
            const bool frames = control->inherits("QGroupBox") || other->inherits("QGroupBox");
            const QRect shared = place.intersected(other->geometry());
            EXPECT_TRUE(other == control || frames || shared.height() <= 1);
        }
        const QSize text =
            control->fontMetrics().size(0, control->property("text").toString().trimmed());
        EXPECT_LE(text.width(), place.width());
        EXPECT_LE(text.height(), place.height() + 1);
        EXPECT_TRUE(dialog.rect().contains(QRect(place.topLeft(), text)));
        if (const auto* list = qobject_cast<const QListWidget*>(control)) {
            EXPECT_EQ(list->viewport()->height() % list->sizeHintForRow(0), 0);
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(control)) {
            EXPECT_EQ(tabs->tabRect(1).height(), place.height());
        }
    }
}

TEST_P(EveryDialog, IsTidyAndLooksTheSameOnEveryScreen) {
    Use(GetParam().command, [this](OpenDialog& dialog) {
        dialog.TapAt(2, 2);  // the end of the show that About is
        const QImage small = handheld->Screen();
        ExpectLooksAsRecorded(small, GetParam().title);
        const auto* button = dialog.Find<QWidget>(GetParam().okButton);
        const QRect place = button->geometry();
        for (double times : {1.0, 1.37, 2.0, 3.0}) {
            SCOPED_TRACE(times);
            handheld->Resize(times);
            const QPoint shift = button->geometry().bottomRight() - place.bottomRight() * times;
            EXPECT_LE(shift.manhattanLength(), times + 1);
            EXPECT_LT(LargestDifference(small, handheld->Screen()), 64);
            ExpectTidy(*button->parentWidget());
        }
        handheld->Resize(1);
        EXPECT_EQ(handheld->Screen(), small);
    });
}

TEST_P(EveryDialog, ClosesWithTheProgramWhichSavesItsState) {
    std::filesystem::remove(home.stateFile());
    Use(GetParam().command, [this](OpenDialog& dialog) {
        Host().close();
        handheld->Settle();
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_FALSE(handheld->Running());
    EXPECT_TRUE(std::filesystem::exists(home.stateFile()));
    // Made anew behind the preferences, which a test closes from inside.
    DeleteOffscreenBuffer();
}

using Looks = PlayedBoard;

TEST_F(Looks, OfTheScreenAMenuAndABoxAreAsRecorded) {
    Play(squareBoard, mediumSize);
    ExpectLooksAsRecorded(handheld->Screen(), "Board");
    handheld->PressPanelButton();
    handheld->Resize(2);
    ExpectLooksAsRecorded(handheld->Screen(), "Board and soft input panel");
    CompareNextBox("Main menu");
    handheld->PressButton("Main Menu");
    CompareNextBox("Question");
    SendMessageW(MainWindow, WM_COMMAND, commandClearPuzzle, 0);
    TakeShownMessages();
    handheld->Resize(1);
}

INSTANTIATE_TEST_SUITE_P(
    , EveryDialog,
    testing::Values(
        KnownDialog{"Quadrel Clues", "Open the clue list", nullptr, commandClueList, commandClose},
        KnownDialog{"Preferences", "Main Menu", "Preferences", commandPreferences, commandClose},
        KnownDialog{"Quadrel Quick Help", "Main Menu", "Help", commandHelp, controlHelpClose},
        KnownDialog{"Download Puzzles", "Main Menu", "Puzzles/Download", commandDownload,
                    controlKeepLinks},
        KnownDialog{"About Quadrel", "About Quadrel", nullptr, commandAbout, controlAboutClose}));

}  // namespace
