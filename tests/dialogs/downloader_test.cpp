#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <optional>

#include "platform/dialogs.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/network/network_module.h"
#include "platform/qt/network/waiting.h"
#include "platform/qt/window/end_request.h"
#include "storage/paths.h"
#include "support/downloads.h"
#include "support/no_space.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

namespace fs = std::filesystem;

// The same black squares as squareBoard, other letters.
const BoardRows lookalikeBoard = {
    "QWE.RT",  //
    "YUIOPA",  //
    "SD.FGH",  //
    "JKLZXC",  //
    ".VBNMQ",  //
    "WE.RTY",
};

const ShownMessage success = {u"Puzzle file  downloaded successfully!", u"Download"};
const ShownMessage notAPuzzle = {u"Not a valid puzzle file, please check the URL.", u"Error"};

ShownMessage Error(const std::u16string& text) {
    return {text, u"Error"};
}

// As real files have it: after the sizes the number of clues and two small numbers, each in two
// bytes, low one first.
std::string Titled(const BoardRows& rows, const std::string& title) {
    using namespace std::string_literals;
    return PuzzleBytes(rows, title).replace(heightOffset + 1, 6, "\x0C\0\1\0\0\0"s);
}

class Downloading : public PlayedBoard {
protected:
    Downloading() {
        fs::create_directories(folder);
        TakeShownChoosers();
    }
    ~Downloading() override {
        ForgetPlans();
    }
    int Download(const std::string& link) {
        return ::Download(*handheld, link) ? 1 : 0;
    }
    int Download(const std::string& path, const WebAnswer& answer) {
        server.Put(path, answer);
        return Download(server.Link(path));
    }
    // To the suggested name; an existing file is replaced.
    void Store(const std::string& bytes) {
        AcceptNextFile();
        AnswerNextMessageBox(IDYES);
        AnswerNextMessageBox(IDYES);
        EXPECT_EQ(Download("/a.puz", {{Page(bytes)}}), 1);
        TakeShownMessages();
        TakeShownChoosers();
    }
    static ShownMessage Question(const std::u16string& name) {
        return {u"Save file at this location: \\My Documents\\Quadrel Puzzles\\" + name,
                u"Confirm"};
    }
    std::vector<fs::path> Stored() const {
        std::vector<fs::path> names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            names.push_back(entry.path().filename());
        }
        return names;
    }
    void ExpectMessages(const std::vector<ShownMessage>& messages) {
        EXPECT_EQ(TakeShownMessages(), messages);
    }

    WebServer server;
    fs::path folder = home.documents() / "Quadrel Puzzles";
    std::string puzzle = Titled(squareBoard, "The Sunday Puzzle No. 12");
};

TEST_F(Downloading, StoresEveryBlockUnderTheSuggestedName) {
    const std::string longPuzzle = puzzle + std::string(70000, 'n') + "end";
    for (const std::string& bytes : {puzzle, longPuzzle}) {
        AcceptNextFile();
        AnswerNextMessageBox(IDYES);
        EXPECT_EQ(Download("/a.puz", {{Page(bytes).substr(0, 70), Page(bytes).substr(70)}, 1}), 1);
        ExpectMessages({Question(u"TheSundayP.puz"), success});
        const auto choosers = TakeShownChoosers();
        ASSERT_EQ(choosers.size(), 1u);
        EXPECT_EQ(choosers[0].title, u"Save File");
        EXPECT_EQ(choosers[0].folder, folder);
        EXPECT_EQ(choosers[0].name, "TheSundayP");
        EXPECT_EQ(Stored(), std::vector<fs::path>{"TheSundayP.puz"});
        EXPECT_TRUE(ReadBytes(folder / "TheSundayP.puz") == bytes);
        fs::remove(folder / "TheSundayP.puz");
    }
    EXPECT_EQ(CurrentPuzzlePath, std::u16string(u"\\My Documents\\start.puz"))
        << "nothing is opened";
}

TEST_F(Downloading, AnEmptyAnswerIsASuccessWithoutAFile) {
    EXPECT_EQ(Download("/a.puz", {{Page("")}}), 1);
    ExpectMessages({success});
    EXPECT_EQ(Stored(), std::vector<fs::path>());
}

TEST_F(Downloading, FailuresAreToldAndStoreNothing) {
    EXPECT_EQ(Download("gopher://127.0.0.1/"), 0);
    EXPECT_EQ(Download(RefusedLink()), 0);
    EXPECT_EQ(Download("/cut", {{Page(puzzle).substr(0, 150)}}), 0);
    EXPECT_EQ(
        Download("/missing",
                 {{Page("<html><body>The page you asked for is not here, sorry.</body></html>",
                        "404 Not Found")}}),
        0);
    const QString usual = std::exchange(networkModuleName, "libquadrel_network_missing.so");
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
    networkModuleName = usual;
    ExpectMessages({Error(u"InternetOpenUrl Error: 2ee6"), Error(u"InternetOpenUrl Error: 2efd"),
                    Error(u"InternetReadFile Error: 2eff"), notAPuzzle,
                    Error(u"The network cannot be used: 7e")});
    EXPECT_EQ(Stored(), std::vector<fs::path>());
    EXPECT_TRUE(TakeShownChoosers().empty());
}

std::string WithSizes(std::string puzzle, int width, int height) {
    puzzle[widthOffset] = static_cast<char>(width);
    puzzle[heightOffset] = static_cast<char>(height);
    return puzzle;
}

TEST_F(Downloading, WhatIsNoSquarePuzzleIsRefused) {
    for (const std::string& bytes :
         {std::string(1, 'x'), puzzle.substr(0, 44), puzzle.substr(0, 45), WithSizes(puzzle, 0, 0),
          WithSizes(puzzle, 6, 0), WithSizes(puzzle, 0, 6), WithSizes(puzzle, 15, 21)}) {
        EXPECT_EQ(Download("/a.puz", {{Page(bytes)}}), 0);
        ExpectMessages({notAPuzzle});
    }
    EXPECT_TRUE(TakeShownChoosers().empty());
}

// The four zeros, the grids and the title are looked for in whatever arrives.
TEST_F(Downloading, SuggestsTheTitlesLettersAndDigitsAndReadsNothingElse) {
    const auto titled = [](const std::string& title) { return Titled(squareBoard, title); };
    const std::string head = puzzle.substr(0, gridOffset);
    const std::string grids = puzzle.substr(gridOffset, 72);
    const std::pair<std::string, std::string> blocks[] = {
        {titled("The Sunday Puzzle No. 12"), "TheSundayP"},
        {titled(""), ""},
        {titled("\"?!\" ..."), ""},
        {titled("R\xC3\xA4tsel 7"), "Rtsel7"},
        {titled(std::string(49, ' ') + "ab"), "a"},
        {titled("a/b\\c:d"), "abcd"},
        {puzzle.substr(0, 46), ""},
        {head, ""},
        {head + grids, ""},
        {head + grids + "No end", "Noend"},
        {head + std::string(100, 'x'), ""},
        {WithSizes(puzzle, 255, 255), ""},
        {WithSizes(std::string(32000, '\x01'), 1, 1), ""},
        {WithSizes(std::string(32000, '\0'), 1, 1), ""}};
    for (const auto& [block, name] : blocks) {
        EXPECT_EQ(Download("/a.puz", {{Page(block)}}), 0);
        const auto choosers = TakeShownChoosers();
        ASSERT_EQ(choosers.size(), 1u);
        EXPECT_EQ(choosers[0].name, name);
        EXPECT_EQ(choosers[0].folder, folder);
    }
}

TEST_F(Downloading, CancelAndNoEndItSilently) {
    ChooseNextFile({});
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
    ExpectMessages({});
    AcceptNextFile();
    AnswerNextMessageBox(IDNO);
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
    ExpectMessages({Question(u"TheSundayP.puz")});
    EXPECT_EQ(Stored(), std::vector<fs::path>());
}

TEST_F(Downloading, TheChooserAddsTheExtensionThenAsksBeforeItReplaces) {
    WriteBytes(folder / "mine.puz", "old");
    WriteBytes(folder / "other.txt", "old");
    const ShownMessage replaced = {u"mine.puz is there already. Do you want to replace it?",
                                   u"Save File"};
    ChooseNextFile("mine");
    AnswerNextMessageBox(IDNO);
    ChooseNextFile("new.Puz");
    AnswerNextMessageBox(IDYES);
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 1);
    ExpectMessages({replaced, Question(u"new.Puz"), success});
    const auto choosers = TakeShownChoosers();
    ASSERT_EQ(choosers.size(), 2u);
    EXPECT_EQ(choosers[1].name, "mine.puz") << "the name stays to be changed";
    EXPECT_EQ(ReadBytes(folder / "mine.puz"), "old");

    ChooseNextFile("mine.");
    AnswerNextMessageBox(IDYES);
    AnswerNextMessageBox(IDYES);
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 1);
    ExpectMessages({replaced, Question(u"mine.puz"), success});
    EXPECT_TRUE(ReadBytes(folder / "mine.puz") == puzzle);
}

TEST_F(Downloading, NamesAndFoldersThatCannotBeUsedAreExplainedAndChosenAgain) {
    const std::pair<fs::path, std::u16string> wrong[] = {
        {folder / "back\\slash.puz", u"name of this file cannot be used"},
        {folder / "none" / "new.puz", u"Nothing can be saved in this folder"}};
    for (const auto& [file, explained] : wrong) {
        ChooseNextFile(file);
        ChooseNextFile({});
        EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
        const auto messages = TakeShownMessages();
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].title, u"Save File");
        EXPECT_NE(messages[0].text.find(explained), std::u16string::npos);
        EXPECT_EQ(TakeShownChoosers().size(), 2u);
    }
    EXPECT_EQ(Stored(), std::vector<fs::path>());
}

// The disk changes while the player thinks about the last question.
TEST_F(Downloading, APlaceThatCannotBeWrittenSaysWhy) {
    fs::path file = folder / "TheSundayP.puz";
    const auto downloadAfter = [this](const std::function<void()>& change) {
        AcceptNextFile();
        DoDuringNextMessageBox(change);
        AnswerNextMessageBox(IDYES);
        EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
    };
    downloadAfter([&] { fs::create_directory(file); });
    ExpectMessages({Question(u"TheSundayP.puz"), Error(u"CreateFile Error: 5")});
    fs::remove(file);
    downloadAfter([&] { fs::remove_all(folder); });
    ExpectMessages({Question(u"TheSundayP.puz"), Error(u"CreateFile Error: 3")});
}

TEST_F(Downloading, AFullDiskKeepsTheOldPuzzleAndSaysSo) {
    puzzle += std::string(50000, 'n');
    WriteBytes(folder / "mine.puz", "old");
    std::optional<NoSpace> full;
    ChooseNextFile("mine.puz");
    AnswerNextMessageBox(IDYES);
    DoDuringNextMessageBox([&] { full.emplace(); });
    AnswerNextMessageBox(IDYES);
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle)}}), 0);
    full.reset();
    EXPECT_EQ(TakeShownMessages().back(), Error(u"WriteFile Error: 70"));
    EXPECT_EQ(ReadBytes(folder / "mine.puz"), "old");
    EXPECT_EQ(Stored().size(), 1u);
}

TEST_F(Downloading, WhatWasReadBeforeAConnectionBrokeStaysUnderTheName) {
    puzzle += std::string(50000, 'n');
    AcceptNextFile();
    AnswerNextMessageBox(IDYES);
    EXPECT_EQ(Download("/a.puz", {{Page(puzzle).substr(0, 45000)}}), 0);
    ExpectMessages({Question(u"TheSundayP.puz"), Error(u"InternetReadFile Error: 2eff")});
    EXPECT_TRUE(ReadBytes(folder / "TheSundayP.puz") == puzzle.substr(0, 32000));
}

TEST_F(Downloading, AskedToEndItEndsAtOnceAndSaysNothing) {
    QTimer::singleShot(30, &Host(), [] { Host().close(); });
    EXPECT_EQ(Download("/a.puz", {{}, 0, WebAnswer::Ending::StayOpen}), 0);
    ExpectMessages({});
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
}

class Replacing : public Downloading {
protected:
    Replacing() {
        PlayFirst();
    }
    void PlayFirst() {
        Store(puzzle);
        OpenPuzzle(file);
        handheld->Type("XYZ");
    }
    void StoreLookalike() {
        Store(Titled(lookalikeBoard, "The Sunday Puzzle No. 13"));
    }
    void OpenAnother() {
        OpenPuzzle(home.documents() / "start.puz");
    }
    void ExpectFreshLookalike() {
        EXPECT_EQ(PlayerLetters(),
                  "---.--------"
                  "--.---------"
                  ".-----"
                  "--.---");
        EXPECT_EQ(SolutionGrid[0], 'Q');
    }

    fs::path file = folder / "TheSundayP.puz";
};

TEST_F(Replacing, APuzzleLeavesNoLettersToItsSuccessor) {
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"closed before",
         [this] {
             OpenAnother();
             StoreLookalike();
         }},
        {"deleted before",
         [this] {
             OpenAnother();
             fs::remove(file);
             StoreLookalike();
         }},
        {"still in play", [this] { StoreLookalike(); }},
        {"closed after",
         [this] {
             StoreLookalike();
             OpenAnother();
         }},
    };
    for (const auto& [name, replace] : ways) {
        SCOPED_TRACE(name);
        PlayFirst();
        replace();
        OpenPuzzle(file);
        ExpectFreshLookalike();
    }
}

TEST_F(Replacing, ThePuzzleInPlayIsPlayedOnAndLeavesNoneToTheNextStart) {
    StoreLookalike();
    handheld->Type("W");
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYW");
    Magnification = mediumSize;
    Restart();
    EXPECT_EQ(CurrentPuzzlePath,
              std::u16string(u"\\My Documents\\Quadrel Puzzles\\TheSundayP.puz"));
    ExpectFreshLookalike();
    EXPECT_EQ(Magnification.Medium, 1) << "the settings are the player's";
}

TEST_F(Replacing, TheSamePuzzleKeepsItsLettersAndACorrectedOne) {
    BoardRows corrected = squareBoard;
    corrected[4][4] = 'Q';
    for (const std::string& bytes : {puzzle, Titled(corrected, "The Sunday Puzzle No. 12")}) {
        Store(bytes);
        Restart();
        EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
        OpenAnother();
        Store(bytes);
        OpenPuzzle(file);
        EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
    }
}

TEST_F(Replacing, AFileThatCannotBePlayedTakesNoLetters) {
    WriteBytes(file, PuzzleBytes(lopsidedBoard));
    OpenAnother();
    WriteBytes(file, puzzle);
    OpenPuzzle(file);
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
}

}  // namespace
