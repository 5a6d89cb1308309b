#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

#include "platform/qt/host/host_window.h"
#include "platform/windows.h"
#include "storage/paths.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

// A record as somebody would write it with a pencil: every field at its place, zeros elsewhere.
std::string Record(const std::string& path, int side, const std::string& cells,
                   const std::string& size, const std::string& autoSkip,
                   const std::string& showNumbers) {
    std::string record(4096, '\0');
    const auto put = [&record](std::size_t at, const std::string& text) {
        record.replace(at, text.size(), text);
    };
    const std::size_t sizes = path.size() + 1;
    const std::size_t settings = sizes + 6 + cells.size();
    put(0, path);
    put(sizes, std::to_string(side));
    put(sizes + 3, std::to_string(side));
    put(sizes + 6, cells);
    put(settings + 1, size);
    put(settings + 3, autoSkip);
    put(settings + 5, showNumbers);
    for (std::size_t component = 0; component < 3; ++component) {
        put(settings + 7 + 4 * component, "255");
        put(settings + 19 + 4 * component, "0");
    }
    return record;
}

const std::string firstPath = "\\My Documents\\first.puz";
const std::string emptyGrid =
    "---.--"
    "------"
    "--.---"
    "------"
    ".-----"
    "--.---";

// Says where two files part; thousands of bytes in a message help nobody.
void ExpectSameBytes(const std::string& actual, const std::string& expected) {
    EXPECT_EQ(actual.size(), expected.size());
    const auto parting =
        std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    EXPECT_TRUE(actual == expected) << "first at offset " << parting.first - actual.begin();
}

class Session : public testing::Test {
protected:
    Session() {
        ForgetPuzzle();
        WriteBytes(home.documents() / "first.puz", PuzzleBytes(squareBoard, "First"));
    }
    ~Session() override {
        End();
        EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>());
    }
    Handheld& Start() {
        End();
        return handheld.emplace(home);
    }
    void End() {
        handheld.reset();
    }
    std::string State() {
        return ReadBytes(home.stateFile());
    }

    TemporaryHome home;
    std::optional<Handheld> handheld;
};

const std::string playedGrid =
    "XGH.--"
    "------"
    "--.---"
    "----A-"
    ".---B-"
    "--.-E-";

// Every way of entering and moving once, and the grid it must leave.
void PlayAlong(Handheld& handheld) {
    handheld.Type("XYZW");                  // the word is full: its last letter is replaced
    handheld.Press(Qt::Key_Backspace);      // erases it and steps back
    handheld.Press(Qt::Key_Return);         // down
    handheld.Type("G");                     // over the Y
    handheld.Press(Qt::Key_Right);          // the next word down starts in the third column
    handheld.Type("H");                     //
    handheld.Press(Qt::Key_Left);           // back to the second
    handheld.TapCell(3, 4);                 //
    handheld.Type("AB");                    // down still
    handheld.TapCell(5, 4);                 // the selected one: across
    handheld.Commit(QString(QChar(0xE9)));  // e with an accent
    handheld.Type("1 ");                    // no letters
}

TEST_F(Session, LeavesItsStateAndGoesOnWhereItStopped) {
    PlayAlong(Start());
    EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(5, 5, 0));
    Magnification = mediumSize;
    AutoSkip = 1;
    ShowNumbers = 1;
    End();
    const std::string state = State();
    ExpectSameBytes(state, Record(firstPath, 6, playedGrid, "1", "1", "1"));
    ForgetPuzzle();
    Start();
    EXPECT_EQ(PlayerLetters(), playedGrid);
    EXPECT_EQ(std::string(SolutionGrid, 6), "ABC.DE");
    EXPECT_EQ(std::tuple(CellSize, AutoSkip, ShowNumbers), std::tuple(20, 1, 1));
    End();
    ExpectSameBytes(State(), state);
}

// The restored letters are another puzzle's when the black squares differ, or the file is gone.
TEST_F(Session, DropsLettersOfAnotherPuzzleAtTheNextStart) {
    PlayAlong(Start());
    End();
    BoardRows other = squareBoard;
    other[1][2] = '.';
    WriteBytes(home.documents() / "first.puz", PuzzleBytes(other));
    std::string expected = emptyGrid;
    expected[1 * 6 + 2] = '.';
    Start();
    EXPECT_EQ(PlayerLetters(), expected);
    PlayAlong(*handheld);
    End();
    std::filesystem::remove(home.documents() / "first.puz");
    WriteBytes(home.documents() / "second.puz", PuzzleBytes(squareBoard));
    Start();
    EXPECT_EQ(PlayerLetters(), emptyGrid);
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\second.puz");
}

TEST_F(Session, WithoutAnyPuzzleSaysSoAndTakesEverythingCalmly) {
    std::filesystem::remove(home.documents() / "first.puz");
    Start();
    EXPECT_EQ(
        TakeShownMessages(),
        (std::vector<ShownMessage>{
            {u"Please choose a puzzle file from the Available Puzzles option.", u"Choose File"}}));
    EXPECT_TRUE(handheld->Running());
    const QImage bar = handheld->Client().copy(0, 248, 240, 20);
    QImage white(bar.size(), bar.format());
    white.fill(Qt::white);
    EXPECT_EQ(bar, white) << "a clue where there is no puzzle";
    EXPECT_TRUE(std::filesystem::is_directory(home.documents() / "Quadrel Puzzles"));
    handheld->Tap(3, 3);
    handheld->Press(Qt::Key_Left);
    handheld->Press(Qt::Key_Backspace);
    handheld->PressPanelButton();
    handheld->RightClick(100, 100);
    End();
    EXPECT_EQ(State().size(), 4096u);
}

// A folder with a puzzle's name, and a file that is none.
TEST_F(Session, UnreadableFallbackLeavesTheProgramRunningWithoutPuzzle) {
    std::filesystem::remove(home.documents() / "first.puz");
    std::filesystem::create_directory(home.documents() / "folder.puz");
    EXPECT_TRUE(Start().Running());
    End();
    std::filesystem::remove(home.documents() / "folder.puz");
    std::filesystem::remove(home.stateFile());
    WriteBytes(home.documents() / "stump.puz", std::string(81, '\x0F'));
    EXPECT_TRUE(Start().Running());
    EXPECT_EQ(TakeShownMessages(),
              (std::vector<ShownMessage>{
                  {u"This file is not a puzzle that Quadrel can open.", u"Open File"}}));
}

TEST_F(Session, StateFilesFromElsewhereDoNoHarm) {
    const std::string good = Record(firstPath, 6, playedGrid, "0", "0", "0");
    std::string wide = good;
    wide.replace(firstPath.size() + 4, 2, "99");
    for (const std::string& state :
         {std::string(), std::string("\\"), std::string(4096, '9'), std::string(4096, '\0'),
          good.substr(0, 40), wide, Record(firstPath, 40, std::string(1600, 'A'), "7", "x", "2")}) {
        WriteBytes(home.stateFile(), state);
        Start();
        EXPECT_EQ(PlayerLetters(), emptyGrid);
        EXPECT_EQ(std::tuple(Magnification.Small, AutoSkip, ShowNumbers), std::tuple(1, 0, 0));
    }
}

// Nothing was asked for and nothing may be lost: the state that cannot be written stays as it was.
TEST_F(Session, EveryWayOfEndingWritesTheState) {
    const std::string expected = Record(firstPath, 6, "B" + emptyGrid.substr(1), "0", "0", "0");
    const std::vector<void (*)(Handheld&)> endings = {
        [](Handheld& running) { running.Close(); },
        [](Handheld& running) { ChooseFromBar(running, "Main Menu", {"Exit"}); },
        [](Handheld& running) { running.Press(Qt::Key_Q, Qt::ControlModifier); },
        [](Handheld& running) { running.Press(Qt::Key_Down, Qt::ControlModifier); },
        [](Handheld& running) {
            SendMessageW(MainWindow, WM_SIZE, SIZE_MINIMIZED, 0);
            running.Settle();
        }};
    for (std::size_t ending = 0; ending < endings.size(); ++ending) {
        std::filesystem::remove(home.stateFile());
        Handheld& running = Start();
        running.Type("B");
        endings[ending](running);
        EXPECT_FALSE(running.Running()) << ending;
        ASSERT_TRUE(std::filesystem::exists(home.stateFile())) << ending;
        SCOPED_TRACE(ending);
        ExpectSameBytes(State(), expected);
    }
}

}  // namespace
