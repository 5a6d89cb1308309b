#include "platform/files.h"

#include <gtest/gtest.h>

#include "platform/errors.h"
#include "platform/text.h"
#include "storage/paths.h"
#include "support/no_space.h"
#include "support/played_board.h"

namespace {

class Files : public PlayedBoard {
protected:
    static HANDLE OpenToWrite(const std::u16string& path) {
        return CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    static bool Write(HANDLE file, const std::string& bytes) {
        DWORD count = 0;
        const BOOL written =
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
        return written && count == bytes.size();
    }
};

TEST_F(Files, WhatIsNoFileCannotBeOpenedAndSaysWhy) {
    std::filesystem::create_directory(home.documents() / "folder.puz");
    WriteBytes(home.documents() / "file", "");
    const std::u16string documents = u"\\My Documents\\";
    const std::tuple<std::u16string, DWORD, DWORD> wrong[] = {
        {u"plain.puz", ERROR_INVALID_NAME, ERROR_INVALID_NAME},
        {documents + u"folder.puz", ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED},
        {documents + u"missing\\a.dat", ERROR_PATH_NOT_FOUND, ERROR_PATH_NOT_FOUND},
        {documents + u"file\\a.dat", ERROR_PATH_NOT_FOUND, ERROR_PATH_NOT_FOUND},
        {documents + std::u16string(250, u'a'), ERROR_FILENAME_EXCED_RANGE,
         ERROR_FILENAME_EXCED_RANGE},
        {documents + u"missing.puz", ERROR_FILE_NOT_FOUND, 0},
    };
    for (const auto& [path, readError, writeError] : wrong) {
        SCOPED_TRACE(NarrowPath(path));
        EXPECT_EQ(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr),
                  INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), readError);
        HANDLE file = OpenToWrite(path);
        EXPECT_EQ(file == INVALID_HANDLE_VALUE ? GetLastError() : !CloseHandle(file), writeError);
    }
}

// Faults: the old file is emptied at the start of a write, or a part of the new
// one is seen.
TEST_F(Files, AWriteShowsOnlyWhenAllOfItIsOnTheDisk) {
    handheld.reset();
    const std::size_t files = home.Files().size();
    for (std::size_t size : {4096u, 50000u}) {
        for (bool diskIsFull : {true, false}) {
            SCOPED_TRACE(size);
            WriteBytes(home.stateFile(), "the old state");
            std::optional<NoSpace> full;
            if (diskIsFull) {
                full.emplace();
            }
            HANDLE file = OpenToWrite(u"\\Program Files\\Quadrel\\quadrel.dat");
            const bool written = Write(file, std::string(size, 'n'));
            EXPECT_EQ(ReadBytes(home.stateFile()), "the old state");
            EXPECT_EQ(CloseHandle(file) && written, !diskIsFull);
            EXPECT_TRUE(!diskIsFull || GetLastError() == ERROR_DISK_FULL);
            EXPECT_EQ(ReadBytes(home.stateFile()),
                      diskIsFull ? "the old state" : std::string(size, 'n'));
            EXPECT_EQ(home.Files().size(), files) << "a temporary file was left behind";
        }
    }
}

// Accents and characters beyond the basic plane come back from the record as
// they were.
TEST_F(Files, NamesOfEveryLanguageAreRemembered) {
    const std::filesystem::path name(u"R\u00E4tsel \u8C1C \U0001F9E9.puz");
    WriteBytes(home.documents() / name, PuzzleBytes(squareBoard));
    OpenPuzzle(home.documents() / name);
    handheld->Type("XYZ");
    Restart();
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\" + name.u16string());
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
}

}  // namespace
