#include "storage/progress.h"

#include <gtest/gtest.h>

#include <cstring>

#include "play/settings.h"
#include "storage/paths.h"
#include "support/boards.h"
#include "support/temporary_home.h"

namespace {

std::string ModelText() {
    std::string text(PlayerGrid, sizeof PlayerGrid);
    for (int number : {PuzzleHeight, PuzzleWidth, Magnification.Small, Magnification.Medium,
                       Magnification.Large, AutoSkip, ShowNumbers, static_cast<int>(SquareColor),
                       static_cast<int>(BackgroundColor)}) {
        text += " " + std::to_string(number);
    }
    for (const WCHAR* unit = CurrentPuzzlePath; *unit != 0; ++unit) {
        text += " " + std::to_string(static_cast<int>(*unit));
    }
    return text;
}

class Progress : public testing::Test {
protected:
    Progress() {
        std::memset(PlayerGrid, 'P', sizeof PlayerGrid);
        CopyPath(u"\\My Documents\\a.puz", CurrentPuzzlePath);
        PuzzleHeight = PuzzleWidth = 15;
        Magnification = {1, 0, 0};
        AutoSkip = 0;
        ShowNumbers = 1;
        BackgroundColor = RGB(255, 255, 255);
        SquareColor = RGB(0, 0, 0);
    }
    std::filesystem::path HostPath() const {
        return home.documents() / "p.dat";
    }
    std::string Save() {
        CopyPath(u"\\My Documents\\p.dat", path);
        SaveProgress(path);
        return ReadBytes(HostPath());
    }
    bool Load(const std::string& bytes) {
        WriteBytes(HostPath(), bytes);
        CopyPath(u"\\My Documents\\p.dat", path);
        return LoadProgress(path);
    }
    void ExpectNotTaken(const std::string& bytes) {
        const std::string before = ModelText();
        EXPECT_FALSE(Load(bytes));
        EXPECT_EQ(path, std::u16string(u"Could not open User"));
        EXPECT_TRUE(ModelText() == before);
    }

    TemporaryHome home;
    WCHAR path[MAX_PATH] = {};
};

// A record of three rows and seven columns with every setting away from its default.
constexpr std::size_t smallGrid = 2 + 6;
constexpr std::size_t smallGridEnd = smallGrid + 21;

std::string SmallRecord() {
    std::string record(4096, '\0');
    const auto put = [&record](std::size_t offset, std::string_view text) {
        record.replace(offset, text.size(), text);
    };
    put(0, "p");
    put(2, "3");
    put(5, "7");
    put(smallGrid, "AB.-CDEFGHIJKLMNOPQRS");
    put(smallGridEnd + 1, "1");
    put(smallGridEnd + 3, "1");
    put(smallGridEnd + 5, "0");
    put(smallGridEnd + 7, "1");
    put(smallGridEnd + 11, "22");
    put(smallGridEnd + 15, "133");
    put(smallGridEnd + 19, "254");
    put(smallGridEnd + 23, "5");
    put(smallGridEnd + 27, "60");
    return record;
}

}  // namespace

TEST_F(Progress, RestoresEveryField) {
    ASSERT_TRUE(Load(SmallRecord()));
    EXPECT_EQ(CurrentPuzzlePath, std::u16string(u"p"));
    EXPECT_EQ(PuzzleHeight, 3);
    EXPECT_EQ(PuzzleWidth, 7);
    EXPECT_EQ(std::string(PlayerGrid, 21), "AB.-CDEFGHIJKLMNOPQRS");
    // Nothing of the puzzle that was left shows in a larger one.
    EXPECT_EQ(std::string(PlayerGrid + 21, maxCells - 21), std::string(maxCells - 21, '-'));
    EXPECT_EQ(Magnification.Small * 100 + Magnification.Medium * 10 + Magnification.Large, 10);
    EXPECT_EQ(AutoSkip, 1);
    EXPECT_EQ(ShowNumbers, 0);
    EXPECT_EQ(BackgroundColor, RGB(1, 22, 133));
    EXPECT_EQ(SquareColor, RGB(254, 5, 60));
    EXPECT_TRUE(Save() == SmallRecord());
}

TEST_F(Progress, TakesFromARecordOnlyWhatMakesSense) {
    std::string record = SmallRecord();
    // A revealed cell may be anything that a solution holds, but no control byte.
    const std::string cells("a1$@+ \xC9\xFF\0\x01\n\x7F.-Z", 15);
    record.replace(smallGrid, cells.size(), cells);
    record[smallGridEnd + 1] = '7';
    record[smallGridEnd + 3] = '2';
    record.replace(smallGridEnd + 5, 2, "99");
    record.replace(smallGridEnd + 7, 4, std::string("511\0", 4));
    Magnification = {0, 0, 1};
    ASSERT_TRUE(Load(record));
    EXPECT_EQ(std::string(PlayerGrid, 15), "a1$@+ \xC9\xFF----.-Z");
    EXPECT_EQ(Magnification.Large, 1);
    EXPECT_EQ(AutoSkip, 0);
    EXPECT_EQ(ShowNumbers, 1);
    EXPECT_EQ(BackgroundColor, RGB(255, 22, 133));
}

TEST_F(Progress, ForeignRecordsChangeNothing) {
    const std::string before = ModelText();
    CopyPath(u"\\My Documents\\missing.dat", path);
    EXPECT_FALSE(LoadProgress(path));
    EXPECT_EQ(path, std::u16string(u"Could not open User"));
    EXPECT_TRUE(ModelText() == before);

    for (const char* size : {"0", "41", "99", "-1", "-9", "x", ""}) {
        for (std::size_t slot : {2U, 5U}) {
            SCOPED_TRACE(std::string(size) + " at " + std::to_string(slot));
            std::string record = SmallRecord();
            record.replace(slot, 3, std::string(size).append(3 - std::strlen(size), '\0'));
            ExpectNotTaken(record);
        }
    }
    ExpectNotTaken(std::string(4096, '\0'));
    ExpectNotTaken(std::string(4096, 'x'));
    ExpectNotTaken(std::string(5000, '9'));
    ExpectNotTaken(std::string(260, 'p') + SmallRecord().substr(1));
    ExpectNotTaken(std::string(4080, 'p') + SmallRecord().substr(1));
}

TEST_F(Progress, CutAtEveryByte) {
    for (std::size_t length = 0; length < smallGridEnd + 40; ++length) {
        SCOPED_TRACE(length);
        const std::string cut = SmallRecord().substr(0, length);
        if (length < smallGridEnd) {
            ExpectNotTaken(cut);
            continue;
        }
        Magnification = {0, 0, 1};
        BackgroundColor = RGB(9, 9, 9);
        ASSERT_TRUE(Load(cut));
        EXPECT_EQ(Magnification.Large, length > smallGridEnd + 2 ? 0 : 1);
        EXPECT_EQ(BackgroundColor, length > smallGridEnd + 18 ? RGB(1, 22, 133) : RGB(9, 9, 9));
    }
}

TEST_F(Progress, RandomBytesAreHarmless) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::string record = SmallRecord();
        for (auto change = random() % 20; change > 0; --change) {
            record[random() % (smallGridEnd + 31)] = static_cast<char>(random());
        }
        Load(record);
        ASSERT_EQ(Magnification.Small + Magnification.Medium + Magnification.Large, 1);
        ASSERT_TRUE(PuzzleHeight >= 1 && PuzzleHeight <= 40);
        ASSERT_TRUE(PuzzleWidth >= 1 && PuzzleWidth <= 40);
    }
}

TEST_F(Progress, LongestPathAndLargestBoardSurvive) {
    const std::u16string longest = u"\\" + std::u16string(MAX_PATH - 2, u'\u6F22');
    ASSERT_TRUE(CopyPath(longest, CurrentPuzzlePath));
    PuzzleHeight = PuzzleWidth = 40;
    SquareColor = RGB(1, 2, 3);
    const std::string record = Save();
    ASSERT_EQ(record.size(), 4096U);
    CurrentPuzzlePath[0] = 0;
    SquareColor = 0;
    ASSERT_TRUE(Load(record));
    EXPECT_EQ(CurrentPuzzlePath, longest);
    EXPECT_EQ(SquareColor, RGB(1, 2, 3));
    EXPECT_EQ(PlayerGrid[maxCells - 1], 'P');
}

// What a file that is not square leaves in the sizes must not cost the settings.
TEST_F(Progress, SizesNoRecordHoldsKeepTheSettings) {
    for (const auto& [width, height] : {std::pair{100, 16}, {0, 127}, {1, 127}}) {
        SCOPED_TRACE(width);
        PuzzleWidth = width;
        PuzzleHeight = height;
        AutoSkip = 1;
        const std::string record = Save();
        AutoSkip = 0;
        ASSERT_TRUE(Load(record));
        EXPECT_EQ(AutoSkip, 1);
        EXPECT_EQ(PuzzleWidth, 15);
        EXPECT_EQ(std::string(PlayerGrid, 225), std::string(225, '-'));
    }
}

TEST(ProgressFilePath, ReplacesTheLastFourCharacters) {
    WCHAR path[MAX_PATH] = u"kept";
    EXPECT_FALSE(ProgressFilePath(u"puz", path));
    EXPECT_EQ(path, std::u16string(u"kept"));
    EXPECT_TRUE(ProgressFilePath(u"\\a.b\\c.PUZ", path));
    EXPECT_EQ(path, std::u16string(u"\\a.b\\c.dat"));
    const std::u16string longest(MAX_PATH - 1, u'x');
    EXPECT_TRUE(ProgressFilePath(longest.c_str(), path));
    EXPECT_EQ(std::u16string(path).size(), longest.size());
}
