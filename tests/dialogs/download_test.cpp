// The download dialog, its list of links, and what becomes of what is downloaded.
#include <optional>

#include "platform/qt/network/network_module.h"
#include "platform/qt/network/waiting.h"
#include "platform/qt/window/end_request.h"
#include "storage/paths.h"
#include "support/dialogs.h"
#include "support/no_space.h"
#include "support/web_server.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

using Links = std::vector<std::string>;
using Files = std::map<std::string, std::string>;
using Messages = std::vector<ShownMessage>;

const std::string defaultLink = "http://www.example.com/daily/puzzles/today.puz";
const ShownMessage success = {u"Puzzle file  downloaded successfully!", u"Download"};

Messages Error(const std::u16string& text) {
    return {{text, u"Error"}};
}

// As real files have it: after the sizes the number of clues and two small numbers, each in two
// bytes, low one first.
std::string Titled(const BoardRows& rows, const std::string& title) {
    return PuzzleBytes(rows, title).replace(heightOffset + 1, 6, "\x0C\0\1\0\0\0"s);
}

std::string WithSizes(std::string puzzle, int width, int height) {
    puzzle[widthOffset] = static_cast<char>(width);
    puzzle[heightOffset] = static_cast<char>(height);
    return puzzle;
}

class Downloads : public DialogTest {
protected:
    Downloads() {
        fs::create_directories(folder);
        TakeShownChoosers();
    }
    ~Downloads() override {
        ForgetPlans();
        TakeShownChoosers();
    }
    // What the player is told about that link, which is listed from then on when all went well.
    Messages ToldAbout(const std::string& link) {
        TakeShownMessages();
        bool listed = false;
        Use(commandDownload, [&](OpenDialog& dialog) {
            dialog.Type(controlLink, QString::fromStdString(link));
            dialog.Tap(controlGet);
            listed = dialog.IsOpen() && dialog.Lines(controlLinks).back() == link;
        });
        const Messages messages = TakeShownMessages();
        EXPECT_EQ(listed, !messages.empty() && messages.back() == success);
        return messages;
    }
    Messages Told(const WebAnswer& answer) {
        server.Put("/a.puz", answer);
        return ToldAbout(server.Link("/a.puz"));
    }
    void Plan(const fs::path& chosen, std::initializer_list<int> answers) {
        ForgetPlans();
        ChooseNextFile(chosen);
        std::for_each(answers.begin(), answers.end(), AnswerNextMessageBox);
    }
    // To the suggested name; an existing file is replaced.
    Messages Store(const std::string& bytes) {
        Plan(asSuggested, {IDYES, IDYES});
        return Told({{Page(bytes)}});
    }
    static ShownMessage Question(const std::u16string& name) {
        return {u"Save file at this location: \\My Documents\\Quadrel Puzzles\\" + name,
                u"Confirm"};
    }
    Files Stored() const {
        Files files;
        for (const auto& entry : fs::directory_iterator(folder)) {
            files[entry.path().filename()] = entry.is_directory() ? "" : ReadBytes(entry.path());
        }
        return files;
    }
    // The list's file, every link ended by a zero.
    static std::string Listed(const Links& links) {
        std::string bytes;
        for (const std::string& link : links) {
            bytes.append(link).push_back('\0');
        }
        return bytes;
    }

    WebServer server;
    fs::path linkFile = home.programFolder() / "quadrelhttplist.dat";
    fs::path folder = home.documents() / "Quadrel Puzzles";
    std::string puzzle = Titled(squareBoard, "The Sunday Puzzle No. 12");
};

TEST_F(Downloads, OnlyOkKeepsTheLinksAsTheyAreShown) {
    Use(commandDownload,
        [](OpenDialog& dialog) { EXPECT_EQ(dialog.Lines(controlLinks), Links{defaultLink}); });
    EXPECT_FALSE(fs::exists(linkFile)) << "the title bar's OK keeps nothing";
    const Links links = {"http://b.example/caf\xC3\xA9.puz", "http://a.example/1.puz", "x"};
    WriteBytes(linkFile, Listed(links));
    for (const bool keep : {false, true}) {
        Use(commandDownload, [&](OpenDialog& dialog) {
            EXPECT_EQ(dialog.Lines(controlLinks), links);
            dialog.Tap(controlDeleteLink);
            EXPECT_EQ(TakeShownMessages(), Messages()) << "nothing is selected";
            for (int answer : {IDNO, IDYES}) {
                EXPECT_EQ(dialog.Lines(controlLinks), links);
                dialog.TapLine(controlLinks, 1);
                AnswerNextMessageBox(answer);
                dialog.Tap(controlDeleteLink);
                EXPECT_EQ(TakeShownMessages(), (Messages{{u"Delete Link ?", u"New Game"}}));
            }
            EXPECT_EQ(dialog.Lines(controlLinks), (Links{links[0], links[2]}));
            keep ? dialog.Tap(controlKeepLinks) : dialog.TapTitleOk();
        });
        EXPECT_EQ(ReadBytes(linkFile), Listed(keep ? Links{links[0], links[2]} : links));
    }
}

TEST_F(Downloads, AChosenOrANewLinkIsEditedWithTheInputPanelUpAndListedOnce) {
    server.Put("/A.PUZ", {{Page(puzzle)}});
    server.Put("/a.puz", {{Page(puzzle)}});
    Use(commandDownload, [&](OpenDialog& dialog) {
        EXPECT_FALSE(Host().PanelUp());
        dialog.TapLine(controlLinks, 0);
        auto* edit = dialog.Find<QLineEdit>(controlLink);
        EXPECT_EQ(edit->text().toStdString(), defaultLink);
        EXPECT_TRUE(dialog.HasFocus(controlLink));
        EXPECT_TRUE(Host().PanelUp());
        dialog.Press(Qt::Key_Tab);
        EXPECT_FALSE(Host().PanelUp());
        dialog.Tap(controlGetNew);
        EXPECT_TRUE(Host().PanelUp());
        handheld->TapPanel(12 + 9, 16 + 8);
        EXPECT_EQ(edit->text(), "http://q");
        for (const char* path : {"/a.puz", "/a.puz", "/A.PUZ"}) {
            dialog.Tap(controlGetNew);
            dialog.Type(controlLink, QString::fromStdString(server.Link(path).substr(7)));
            Plan(asSuggested, {IDYES, IDYES});
            dialog.Press(Qt::Key_Return);
            EXPECT_EQ(dialog.Lines(controlLinks), (Links{defaultLink, server.Link("/a.puz")}));
            EXPECT_TRUE(dialog.HasFocus(controlLinks));
        }
        EXPECT_EQ(server.Requests().size(), 3u);
        dialog.Tap(controlKeepLinks);
    });
    EXPECT_FALSE(Host().PanelUp());
    EXPECT_EQ(ReadBytes(linkFile), Listed({defaultLink, server.Link("/a.puz")}));
    TakeShownMessages();
}

TEST_F(Downloads, EveryBlockIsStoredUnderTheSuggestedName) {
    EXPECT_EQ(Told({{Page("")}}), Messages{success}) << "an empty answer is one, without a file";
    EXPECT_EQ(Stored(), Files());
    WriteBytes(folder / "TheSundayP.dat", "notes");
    for (const std::string& bytes : {puzzle, puzzle + std::string(70000, 'n') + "end"}) {
        fs::remove(folder / "TheSundayP.puz");
        EXPECT_EQ(Store(bytes), (Messages{Question(u"TheSundayP.puz"), success}));
        EXPECT_EQ(Stored(), (Files{{"TheSundayP.dat", "notes"}, {"TheSundayP.puz", bytes}}));
    }
    EXPECT_EQ(CurrentPuzzlePath, u"\\My Documents\\start.puz"s) << "nothing is opened";
}

TEST_F(Downloads, FailuresAndANoStoreNothing) {
    EXPECT_EQ(ToldAbout("gopher://127.0.0.1/"), Error(u"InternetOpenUrl Error: 2ee6"));
    const std::string refused = WebServer().Link("/a.puz");
    EXPECT_EQ(ToldAbout(refused), Error(u"InternetOpenUrl Error: 2efd"));
    EXPECT_EQ(Told({{Page(puzzle).substr(0, 150)}}), Error(u"InternetReadFile Error: 2eff"));
    EXPECT_EQ(ToldAbout("http://127.0.0.1/" + std::string(243, 'a')),
              Error(u"This link is too long: a link may have 259 characters."));
    const QString usual = std::exchange(networkModuleName, "libquadrel_network_missing.so");
    EXPECT_EQ(Told({{Page(puzzle)}}), Error(u"The network cannot be used: 7e"));
    networkModuleName = usual;
    for (const std::string& bytes :
         {"<html><body>The page you asked for is not here, sorry.</body></html>"s,
          " <!DocType html><title>Not found, sorry</title>"s, puzzle.substr(0, 45),
          WithSizes(puzzle, 0, 0), WithSizes(puzzle, 6, 0), WithSizes(puzzle, 0, 6),
          WithSizes(puzzle, 15, 21)}) {
        EXPECT_EQ(Told({{Page(bytes)}}), Error(u"Not a valid puzzle file, please check the URL."));
    }
    EXPECT_TRUE(TakeShownChoosers().empty());
    Plan(asSuggested, {IDNO});
    EXPECT_EQ(Told({{Page(puzzle)}}), Messages{Question(u"TheSundayP.puz")});
    EXPECT_EQ(Stored(), Files());
}

// The four zeros, the grids and the title are looked for in whatever arrives.
TEST_F(Downloads, TheTitlesLettersAndDigitsAreSuggestedAndNothingElseIsRead) {
    const std::string head = puzzle.substr(0, gridOffset);
    const std::string grids = puzzle.substr(gridOffset, 72);
    const std::pair<std::string, std::string> blocks[] = {
        {puzzle, "TheSundayP"},
        {Titled(squareBoard, "\"?!\" ..."), ""},
        {Titled(squareBoard, "R\xC3\xA4tsel/7\\:"), "Rtsel7"},
        {Titled(squareBoard, std::string(49, ' ') + "ab"), "a"},
        {puzzle.substr(0, 46), ""},
        {head + grids, ""},
        {head + grids + "AZaz09 end", "AZaz09end"},
        {WithSizes(puzzle, 255, 255), ""},
        {WithSizes(std::string(32000, '\x01'), 1, 1), ""},
        {WithSizes(std::string(32000, '\0'), 1, 1), ""}};
    for (const auto& [block, name] : blocks) {
        EXPECT_EQ(Told({{Page(block)}}), Messages()) << "the chooser was cancelled";
        const auto choosers = TakeShownChoosers();
        ASSERT_EQ(choosers.size(), 1u);
        EXPECT_EQ(std::pair(choosers[0].title, choosers[0].folder),
                  std::pair(u"Save File"s, folder));
        EXPECT_EQ(choosers[0].name, name);
    }
}

TEST_F(Downloads, TheChooserAddsTheExtensionThenAsksBeforeItReplaces) {
    WriteBytes(folder / "mine.puz", "old");
    const ShownMessage replaced = {u"mine.puz is there already. Do you want to replace it?",
                                   u"Save File"};
    Plan("mine", {IDNO, IDYES});
    ChooseNextFile("new.Puz");
    EXPECT_EQ(Told({{Page(puzzle)}}), (Messages{replaced, Question(u"new.Puz"), success}));
    EXPECT_EQ(TakeShownChoosers().back().name, "mine.puz") << "the name stays to be changed";
    Plan("mine.", {IDYES, IDYES});
    EXPECT_EQ(Told({{Page(puzzle)}}), (Messages{replaced, Question(u"mine.puz"), success}));
    EXPECT_EQ(Stored(), (Files{{"mine.puz", puzzle}, {"new.Puz", puzzle}}));
    for (const auto& [file, explained] :
         {std::pair(folder / "back\\slash.puz", u"name of this file cannot be used"),
          {folder / "none" / "new.puz", u"Nothing can be saved in this folder"}}) {
        TakeShownChoosers();
        Plan(file, {});
        const Messages messages = Told({{Page(puzzle)}});
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_NE(messages[0].text.find(explained), std::u16string::npos);
        EXPECT_EQ(TakeShownChoosers().size(), 2u) << "it is chosen again";
    }
}

// The disk changes while the player thinks about the last question.
TEST_F(Downloads, WhatCannotBeWrittenSaysWhy) {
    const fs::path file = folder / "TheSundayP.puz";
    const auto expect = [&](const std::u16string& error, const std::string& answer,
                            const std::function<void()>& change) {
        fs::remove(file);
        Plan(asSuggested, {IDYES});
        DoDuringNextMessageBox(change);
        EXPECT_EQ(Told({{answer}}), (Messages{Question(u"TheSundayP.puz"), {error, u"Error"}}));
    };
    const std::string longPuzzle = puzzle + std::string(50000, 'n');
    expect(u"InternetReadFile Error: 2eff", Page(longPuzzle).substr(0, 45000), [] {});
    EXPECT_EQ(ReadBytes(file), longPuzzle.substr(0, 32000)) << "what came before the break";
    expect(u"InternetReadFile Error: 2eff", Page(longPuzzle).substr(0, 45000),
           [&] { WriteBytes(file, "old"); });
    EXPECT_EQ(ReadBytes(file), "old");
    std::optional<NoSpace> full;
    expect(u"WriteFile Error: 70", Page(longPuzzle), [&] {
        WriteBytes(file, "old");
        full.emplace();
    });
    full.reset();
    EXPECT_EQ(Stored(), (Files{{"TheSundayP.puz", "old"}}));
    expect(u"CreateFile Error: 5", Page(puzzle), [&] { fs::create_directory(file); });
    expect(u"CreateFile Error: 3", Page(puzzle), [this] { fs::remove_all(folder); });
}

TEST_F(Downloads, AskedToEndOneEndsAtOnceAndSaysNothing) {
    QTimer::singleShot(30, &Host(), [] { Host().close(); });
    EXPECT_EQ(Told({{}, 0, true}), Messages());
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
}

class Replacing : public Downloads {
protected:
    Replacing() {
        PlayFirst();
    }
    void PlayFirst() {
        Store(puzzle);
        OpenPuzzle(file);
        handheld->Type("XYZ");
    }
    void OpenAnother() {
        OpenPuzzle(home.documents() / "start.puz");
    }
    // The same black squares as squareBoard, other letters.
    void StoreLookalike() {
        const BoardRows rows = {"QWE.RT", "YUIOPA", "SD.FGH", "JKLZXC", ".VBNMQ", "WE.RTY"};
        Store(Titled(rows, "The Sunday Puzzle No. 13"));
    }
    static void ExpectFreshLookalike() {
        EXPECT_EQ(PlayerLetters() + SolutionGrid[0], "---.----------.---------.-------.---Q");
    }

    fs::path file = folder / "TheSundayP.puz";
};

TEST_F(Replacing, APuzzleLeavesNoLettersToItsSuccessor) {
    using Step = std::function<void()>;
    const Step store = [this] { StoreLookalike(); };
    const Step leave = [this] { OpenAnother(); };
    const Step remove = [this] { fs::remove(file); };
    const Step block = [this] {
        fs::remove(folder / "TheSundayP.dat");
        fs::create_directory(folder / "TheSundayP.dat");
    };
    const std::vector<Step> ways[] = {
        {leave, store}, {leave, remove, store}, {store}, {store, leave}, {block, leave, store}};
    for (const auto& steps : ways) {
        PlayFirst();
        for (const Step& step : steps) {
            step();
        }
        OpenPuzzle(file);
        ExpectFreshLookalike();
    }
    PlayFirst();
    StoreLookalike();
    handheld->Type("W");
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYW") << "the one in play is played on";
    Magnification = mediumSize;
    Restart();
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

}  // namespace
