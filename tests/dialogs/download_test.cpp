// The download dialog, its list of links, and what becomes of what is downloaded.
#include <optional>

#include "storage/paths.h"
#include "support/dialogs.h"
#include "support/no_space.h"
#include "support/web_server.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

using Links = std::vector<std::string>;
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
    void PlayFirst() {
        Store(puzzle);
        OpenPuzzle(file);
        handheld->Type("XYZ");
    }
    static ShownMessage Question(const std::u16string& name) {
        return {u"Save file at this location: \\My Documents\\Quadrel Puzzles\\" + name,
                u"Confirm"};
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
    fs::path file = folder / "TheSundayP.puz";
    fs::path another = home.documents() / "start.puz";
    std::string puzzle = Titled(squareBoard, "The Sunday Puzzle No. 12");
};

// Their file ends at two zeros and passes over one; 4096 bytes count, 259 characters of a link do,
// and none is torn. Fault: something is read beyond the buffer.
TEST_F(Downloads, LinksAreShownAndKeptInTheirOrder) {
    const std::string longest(259, 'a');
    const std::string puzzlePiece = "\xF0\x9F\xA7\xA9";
    const std::pair<std::string, Links> files[] = {
        {"\0\0\0a\0"s, {}},
        {"c\0\xC3\xA4\xE8\xB0\x9C\0d"s, {"c", "\xC3\xA4\xE8\xB0\x9C", "d"}},
        {"\0b\0\0a\0\0\0c"s, {"b", "a"}},
        {std::string(9000, 'a'), {longest}},
        {std::string(4094, 'a') + "\0bbbb"s, {longest, "b"}},
        {std::string(4095, 'a') + "\0b"s, {longest}},
        {std::string(258, 'a') + puzzlePiece, {std::string(258, 'a')}},
        {"", {}}};
    for (const auto& [bytes, shown] : files) {
        WriteBytes(linkFile, bytes);
        Use(commandDownload, [&, &expected = shown](OpenDialog& dialog) {
            EXPECT_EQ(dialog.Lines(controlLinks), expected);
            dialog.Tap(controlKeepLinks);
        });
        EXPECT_EQ(fs::exists(linkFile) ? ReadBytes(linkFile) : "none",
                  shown.empty() ? "none" : Listed(shown));
    }
    Use(commandDownload,
        [](OpenDialog& dialog) { EXPECT_EQ(dialog.Lines(controlLinks), Links{defaultLink}); });
    EXPECT_FALSE(fs::exists(linkFile)) << "the title bar's OK keeps nothing";
}

TEST_F(Downloads, OnlyOkKeepsWhatIsLeftOfTheLinks) {
    const std::string most(257, 'a');
    const Links links = {"http://b.example/caf\xC3\xA9.puz", "x", most + "\xE8\xB0\x9C"};
    const Links left = {links[0], links[2]};
    WriteBytes(linkFile, Listed(links));
    for (const bool keep : {false, true}) {
        Use(commandDownload, [&](OpenDialog& dialog) {
            dialog.Tap(controlDeleteLink);
            EXPECT_EQ(TakeShownMessages(), Messages()) << "nothing is selected";
            for (int answer : {IDNO, IDYES}) {
                EXPECT_EQ(dialog.Lines(controlLinks), links);
                dialog.TapLine(controlLinks, 1);
                AnswerNextMessageBox(answer);
                dialog.Tap(controlDeleteLink);
            }
            EXPECT_EQ(TakeShownMessages(), Messages(2, {u"Delete Link ?", u"New Game"}));
            EXPECT_EQ(dialog.Lines(controlLinks), left);
            keep ? dialog.Tap(controlKeepLinks) : dialog.TapTitleOk();
        });
        EXPECT_EQ(ReadBytes(linkFile), Listed(keep ? Links{links[0], most} : links));
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
        const std::string refused = "http://localhost:1/a.puz";
        for (const std::string& link :
             {server.Link("/a.puz"), server.Link("/a.puz"), server.Link("/A.PUZ"), refused}) {
            dialog.Tap(controlGetNew);
            dialog.Type(controlLink, QString::fromStdString(link.substr(7)));
            Plan(asSuggested, {IDYES, IDYES});
            dialog.Press(Qt::Key_Return);
            EXPECT_EQ(dialog.Lines(controlLinks), (Links{defaultLink, server.Link("/a.puz")}));
            EXPECT_EQ(dialog.HasFocus(controlLinks), link != refused);
        }
        EXPECT_EQ(server.Requests().size(), 3u);
        dialog.Tap(controlKeepLinks);
    });
    EXPECT_FALSE(Host().PanelUp());
    EXPECT_EQ(ReadBytes(linkFile), Listed({defaultLink, server.Link("/a.puz")}));
    TakeShownMessages();
}

TEST_F(Downloads, TooLongLinksOtherFilesAndANoStoreNothing) {
    const std::string longest = server.Link("/a.puz?" + std::string(259, 'a')).substr(0, 259);
    server.Put(longest.substr(server.Link("").size()), {{Page(puzzle)}});
    for (const std::string& notes :
         {std::string(4096, 'n'), "\\My Documents\\Quadrel Puzzles\\TheSundayP.puz\0notes"s}) {
        WriteBytes(folder / "TheSundayP.dat", notes);
        Plan(asSuggested, {IDYES});
        EXPECT_EQ(ToldAbout(longest), (Messages{Question(u"TheSundayP.puz"), success}));
        EXPECT_EQ(ReadBytes(folder / "TheSundayP.dat"), notes);
        fs::remove(file);
    }
    EXPECT_EQ(ToldAbout(longest + 'a'),
              Error(u"This link is too long: a link may have 259 characters."));
    EXPECT_EQ(CurrentPuzzlePath, u"\\My Documents\\start.puz"s) << "nothing is opened";
    TakeShownChoosers();
    for (const std::string& bytes :
         {WithSizes("<HTML>" + puzzle, 6, 6), WithSizes(" <!DocType html>" + puzzle, 6, 6),
          WithSizes("\r\n<?xml" + puzzle, 6, 6), puzzle.substr(0, 45), WithSizes(puzzle, 0, 0),
          WithSizes(puzzle, 6, 0), WithSizes(puzzle, 0, 6), WithSizes(puzzle, 15, 21)}) {
        EXPECT_EQ(Told({{Page(bytes)}}), Error(u"Not a valid puzzle file, please check the URL."));
    }
    EXPECT_TRUE(TakeShownChoosers().empty());
    Plan(asSuggested, {IDNO});
    EXPECT_EQ(Told({{Page(puzzle)}}), Messages{Question(u"TheSundayP.puz")});
    EXPECT_FALSE(fs::exists(file));
}

// The four zeros, the grids and the title are looked for in whatever arrives.
TEST_F(Downloads, TheTitlesLettersAndDigitsAreSuggestedAndNothingElseIsRead) {
    const std::string head = puzzle.substr(0, gridOffset);
    const std::string grids = puzzle.substr(gridOffset, 72);
    const std::string late = std::string(49, ' ') + "ab";
    const std::pair<std::string, std::string> blocks[] = {
        {puzzle, "TheSundayP"},
        {Titled(squareBoard, "\"?!\" ..."), ""},
        {Titled(squareBoard, "R\xC3\xA4tsel/7\\:"), "Rtsel7"},
        {Titled(squareBoard, late), "a"},
        {std::string(head).replace(heightOffset + 1, 1, "A") + "\0\0"s + grids + late, "a"},
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
        EXPECT_EQ(std::tuple(choosers[0].title, choosers[0].folder, choosers[0].name),
                  std::tuple(u"Save File"s, folder, name));
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
    EXPECT_EQ(ReadBytes(folder / "mine.puz") + ReadBytes(folder / "new.Puz"), puzzle + puzzle);
    for (const auto& [unfit, explained] :
         {std::pair(folder / "back\\slash.puz", u"name of this file cannot be used"),
          {folder / "none" / "new.puz", u"Nothing can be saved in this folder"}}) {
        TakeShownChoosers();
        Plan(unfit, {});
        const Messages messages = Told({{Page(puzzle)}});
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_NE(messages[0].text.find(explained), std::u16string::npos);
        EXPECT_EQ(TakeShownChoosers().size(), 2u) << "it is chosen again";
    }
}

// The disk changes while the player thinks about the last question.
TEST_F(Downloads, WhatCannotBeWrittenSaysWhy) {
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
    std::optional<NoSpace> full;
    expect(u"WriteFile Error: 70", Page(longPuzzle), [&] {
        WriteBytes(file, "old");
        full.emplace();
    });
    full.reset();
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "something is left behind";
    expect(u"CreateFile Error: 5", Page(puzzle), [&] { fs::create_directory(file); });
    expect(u"CreateFile Error: 3", Page(puzzle), [this] { fs::remove_all(folder); });
}

TEST_F(Downloads, AskedToEndOneEndsAtOnceAndSaysNothing) {
    QTimer::singleShot(30, &Host(), [] { Host().close(); });
    EXPECT_EQ(Told({{}, 0, true}), Messages());
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
}

// Of a puzzle with the same black squares and other letters.
TEST_F(Downloads, APuzzleLeavesNoLettersToItsSuccessor) {
    const BoardRows rows = {"QWE.RT", "YUIOPA", "SD.FGH", "JKLZXC", ".VBNMQ", "WE.RTY"};
    const std::string fresh = "---.----------.---------.-------.---Q";
    const fs::path record = folder / "TheSundayP.dat";
    using Step = std::function<void()>;
    const Step store = [&] { Store(Titled(rows, "The Sunday Puzzle No. 13")); };
    const Step leave = [&] { OpenPuzzle(another); };
    const Step remove = [&] { fs::remove(file); };
    const Step block = [&] { fs::remove(record), fs::create_directory(record); };
    const std::vector<Step> ways[] = {
        {leave, store}, {leave, remove, store}, {store}, {store, leave}, {block, leave, store}};
    for (const auto& steps : ways) {
        PlayFirst();
        std::for_each(steps.begin(), steps.end(), [](const Step& step) { step(); });
        OpenPuzzle(file);
        EXPECT_EQ(PlayerLetters() + SolutionGrid[0], fresh);
    }
    PlayFirst();
    store();
    handheld->Type("W");
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYW") << "the one in play is played on";
    Magnification = mediumSize;
    Restart();
    EXPECT_EQ(PlayerLetters() + SolutionGrid[0], fresh);
    EXPECT_EQ(Magnification.Medium, 1) << "the settings are the player's";
}

TEST_F(Downloads, TheSamePuzzleKeepsItsLettersAndACorrectedOne) {
    PlayFirst();
    BoardRows corrected = squareBoard;
    corrected[4][4] = 'Q';
    for (const std::string& bytes : {puzzle, Titled(corrected, "The Sunday Puzzle No. 12")}) {
        for (const fs::path& next : {file, another}) {
            OpenPuzzle(next);
            Store(bytes);
            Restart();
            OpenPuzzle(file);
            EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
        }
    }
}

}  // namespace
