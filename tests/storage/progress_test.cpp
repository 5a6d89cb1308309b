#include "storage/progress.h"

#include <gtest/gtest.h>

#include "play/settings.h"
#include "storage/paths.h"
#include "support/plain_record.h"
#include "support/temporary_home.h"

namespace {

constexpr PlainSettings usual{0, false, true};
// Every setting away from the usual.
constexpr PlainSettings unusual{1, true, false, RGB(1, 22, 133), RGB(254, 5, 60)};
const BoardRows savedRows = {"AB.-CDE", "FGHIJKL", "MNOPQRS"};
constexpr std::size_t grid = 2 + 6;
constexpr std::size_t gridEnd = grid + 21;

std::string SmallRecord() {
    return PlainRecord("p", savedRows, unusual);
}

class Progress : public testing::Test {
protected:
    Progress() {
        Forget();
    }
    static void Forget() {
        std::fill(std::begin(PlayerGrid), std::end(PlayerGrid), 'P');
        CopyPath(u"\\My Documents\\a.puz", CurrentPuzzlePath);
        PuzzleHeight = PuzzleWidth = 15;
        Magnification = {1, 0, 0};
        AutoSkip = 0;
        ShowNumbers = 1;
        BackgroundColor = usual.letterCells;
        SquareColor = usual.squares;
    }
    bool Load(const std::string& bytes) {
        WriteBytes(home.documents() / "p.dat", bytes);
        WCHAR path[MAX_PATH] = u"\\My Documents\\p.dat";
        const bool taken = LoadProgress(path);
        EXPECT_EQ(std::u16string(path) == u"Could not open User", !taken);
        return taken;
    }
    void ExpectNotTaken(const std::string& bytes) {
        const std::string before = RecordOfPlay();
        EXPECT_FALSE(Load(bytes));
        EXPECT_TRUE(RecordOfPlay() == before);
    }

    const TemporaryHome home;
};

TEST_F(Progress, TakesFromARecordOnlyWhatMakesSense) {
    std::string record = SmallRecord();
    // A revealed cell may be anything that a solution holds, but no control byte.
    const std::string cells("a1$@+ \xC9\xFF\0\x01\n\x7F.-Z", 15);
    record.replace(grid, cells.size(), cells);
    record[gridEnd + 1] = '7';
    record[gridEnd + 3] = '2';
    record.replace(gridEnd + 5, 2, "99");
    record.replace(gridEnd + 7, 4, std::string("511\0", 4));
    ASSERT_TRUE(Load(record));
    EXPECT_EQ(std::string(PlayerGrid, 15), "a1$@+ \xC9\xFF----.-Z");
    EXPECT_EQ(std::tuple(Magnification.Small, AutoSkip, ShowNumbers), std::tuple(1, 0, 1));
    EXPECT_EQ(BackgroundColor, RGB(255, 22, 133));
}

TEST_F(Progress, ForeignRecordsChangeNothing) {
    for (const std::string size : {"0", "41", "99", "-1", "x", ""}) {
        for (std::size_t slot : {2U, 5U}) {
            ExpectNotTaken(SmallRecord().replace(slot, 3, size + std::string(3 - size.size(), 0)));
        }
    }
    for (const std::string& bytes :
         {std::string(4096, '\0'), std::string(5000, '9'), std::string(260, 'p') + SmallRecord(),
          std::string(4080, 'p') + SmallRecord()}) {
        ExpectNotTaken(bytes);
    }
}

// Nothing of the puzzle that was left shows in a larger one.
TEST_F(Progress, ARecordCutAnywhereGivesWhatItHolds) {
    for (std::size_t length = 0; length <= SmallRecord().size(); length += 1 + length / 99 * 90) {
        SCOPED_TRACE(length);
        Forget();
        const std::string cut = SmallRecord().substr(0, length);
        if (length < gridEnd) {
            ExpectNotTaken(cut);
            continue;
        }
        ASSERT_TRUE(Load(cut));
        EXPECT_EQ(std::string(PlayerGrid + 21, maxCells - 21), std::string(maxCells - 21, '-'));
        EXPECT_EQ(Magnification.Medium, length > gridEnd + 2 ? 1 : 0);
        EXPECT_EQ(BackgroundColor, length > gridEnd + 18 ? RGB(1, 22, 133) : usual.letterCells);
    }
    EXPECT_TRUE(Load(SmallRecord()) && RecordOfPlay() == SmallRecord());
}

// Nor do sizes that a file which is not square left behind cost the settings.
TEST_F(Progress, TheLongestPathTheLargestBoardAndTheSettingsSurvive) {
    CopyPath(u"\\" + std::u16string(MAX_PATH - 2, u'\u6F22'), CurrentPuzzlePath);
    for (const auto& [width, height] : {std::pair{40, 40}, {100, 16}, {0, 127}, {1, 127}}) {
        PuzzleWidth = width;
        PuzzleHeight = height;
        AutoSkip = 1;
        const std::string record = RecordOfPlay();
        AutoSkip = 0;
        EXPECT_TRUE(Load(record) && record.size() == 4096) << width;
        EXPECT_EQ(CurrentPuzzlePath[MAX_PATH - 2], u'\u6F22');
        EXPECT_EQ(std::pair(AutoSkip, PuzzleWidth), std::pair(1, width == 40 ? 40 : 15));
    }
}

}  // namespace
