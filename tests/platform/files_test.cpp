#include "platform/files.h"

#include "platform/errors.h"
#include "platform/qt/files/device_paths.h"
#include "platform/qt/files/litter.h"
#include "storage/paths.h"
#include "support/no_space.h"
#include "support/played_board.h"

namespace {

using Files = PlayedBoard;

HANDLE OpenFile(const std::u16string& path, DWORD access, DWORD disposition) {
    return CreateFileW(path.c_str(), access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

TEST_F(Files, WhatIsNoFileCannotBeOpenedAndSaysWhy) {
    std::filesystem::create_directory(home.documents() / "folder.puz");
    WriteBytes(home.documents() / "file", "");
    const std::u16string documents = u"\\My Documents\\";
    const std::tuple<std::u16string, DWORD, DWORD> wrong[] = {
        {u"plain.puz", ERROR_INVALID_NAME, ERROR_INVALID_NAME},
        {documents + u"folder.puz", ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED},
        {documents + u"missing\\a.dat", ERROR_PATH_NOT_FOUND, ERROR_PATH_NOT_FOUND},
        {documents + u"file\\a.dat", ERROR_PATH_NOT_FOUND, ERROR_PATH_NOT_FOUND},
        {documents + std::u16string(246, u'a'), ERROR_FILENAME_EXCED_RANGE,
         ERROR_FILENAME_EXCED_RANGE},
        {documents + std::u16string(245, u'a'), ERROR_FILE_NOT_FOUND, 0},
    };
    for (const auto& [path, readError, writeError] : wrong) {
        SCOPED_TRACE(NarrowPath(path));
        EXPECT_EQ(OpenFile(path, GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), readError);
        HANDLE file = OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS);
        EXPECT_EQ(file == INVALID_HANDLE_VALUE ? GetLastError() : !CloseHandle(file), writeError);
    }
}

// Faults: the old file is emptied at the start of a write, or a part of the new one is seen. A few
// bytes find no room only when all is flushed at the end.
TEST_F(Files, AWriteShowsOnlyWhenAllOfItIsOnTheDisk) {
    handheld.reset();
    const std::size_t files = home.Files().size();
    for (DWORD size : {4096u, 50000u}) {
        WriteBytes(home.stateFile(), "the old state");
        for (bool diskIsFull : {true, false}) {
            SCOPED_TRACE(size);
            const auto full = diskIsFull ? std::make_unique<NoSpace>() : nullptr;
            HANDLE file =
                OpenFile(u"\\Program Files\\Quadrel\\quadrel.dat", GENERIC_WRITE, CREATE_ALWAYS);
            DWORD count = 0;
            const std::string bytes(size, 'n');
            const BOOL written = WriteFile(file, bytes.data(), size, &count, nullptr);
            EXPECT_EQ(ReadBytes(home.stateFile()), "the old state");
            EXPECT_EQ(CloseHandle(file) && written && count == size, !diskIsFull);
            EXPECT_TRUE(!diskIsFull || GetLastError() == ERROR_DISK_FULL);
            EXPECT_EQ(ReadBytes(home.stateFile()), diskIsFull ? "the old state" : bytes);
            EXPECT_EQ(home.Files().size(), files) << "a temporary file was left behind";
        }
    }
}

TEST_F(Files, OnlyOldTemporaryFilesOfTheGameAreLitter) {
    const auto now = std::filesystem::file_time_type::clock::now();
    const std::pair<const char*, bool> names[] = {{"quadrel.dat.aBcDeF", true},
                                                  {"a.puz.ABCDEf", true},
                                                  {"a.dat.backup", false},
                                                  {"a.dat.aBcDeFg", false},
                                                  {"a.txt.aBcDeF", false}};
    for (const auto& [name, litter] : names) {
        for (const auto& folder : {home.documents(), home.programFolder()}) {
            for (int age : {5, 500}) {
                WriteBytes(folder / name, "\\My Documents\\a.puz");
                last_write_time(folder / name, now - std::chrono::seconds(age));
                RemoveLitter();
                EXPECT_EQ(exists(folder / name), !litter || age == 5) << name;
            }
        }
    }
    WriteBytes(home.documents() / "a.dat.BackUp", "dear");
    last_write_time(home.documents() / "a.dat.BackUp", now - std::chrono::hours(1));
    RemoveLitter();
    EXPECT_TRUE(exists(home.documents() / "a.dat.BackUp"));
    handheld.reset();
    EXPECT_EQ(status(home.stateFile()).permissions(), std::filesystem::perms(0600));
}

// Accents and characters beyond the basic plane come back from the record as they were.
TEST_F(Files, NamesOfEveryLanguageAreRememberedWhileTheyFit) {
    const std::filesystem::path name(u"R\u00E4tsel \u8C1C \U0001F9E9.puz");
    WriteBytes(home.documents() / name, PuzzleBytes(squareBoard));
    OpenPuzzle(home.documents() / name);
    handheld->Type("XYZ");
    Restart();
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\" + name.u16string());
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
    const QString longest = '/' + QString(256, 'a');  // of 257 bytes
    for (const QString end : {"aa", "\u00E9"}) {
        const QString path = longest + end;
        EXPECT_EQ(ToDevicePath(path), (u"\\" + path.mid(1).toStdU16String()));
        EXPECT_FALSE(ToDevicePath(path + 'a'));
    }
}

}  // namespace
