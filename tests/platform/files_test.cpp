#include "platform/files.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/dialogs.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "storage/paths.h"
#include "support/no_space.h"
#include "support/played_board.h"

namespace {

class Files : public testing::Test {
protected:
    static HANDLE OpenToWrite(const char16_t* path) {
        return CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    }
    static HANDLE OpenToRead(const char16_t* path) {
        return CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    }
    static bool Write(HANDLE file, const std::string& bytes) {
        DWORD count = 0;
        const BOOL written =
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
        return written && count == bytes.size();
    }

    TemporaryHome home;
};

TEST_F(Files, WhatIsNoFileCannotBeOpenedAndSaysWhy) {
    std::filesystem::create_directory(home.documents() / "folder.puz");
    WriteBytes(home.documents() / "file", "");
    const std::pair<std::u16string, DWORD> wrong[] = {
        {u"", ERROR_INVALID_NAME},
        {u"plain.puz", ERROR_INVALID_NAME},
        {u"\\My Documents\\folder.puz", ERROR_ACCESS_DENIED},
        {u"\\My Documents\\", ERROR_ACCESS_DENIED},
        {u"\\My Documents\\missing\\a.dat", ERROR_PATH_NOT_FOUND},
        {u"\\My Documents\\file\\a.dat", ERROR_PATH_NOT_FOUND},
        {u"\\My Documents\\" + std::u16string(250, u'a'), ERROR_FILENAME_EXCED_RANGE},
    };
    for (const auto& [path, error] : wrong) {
        EXPECT_EQ(OpenToRead(path.c_str()), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), error) << NarrowPath(path);
        EXPECT_EQ(OpenToWrite(path.c_str()), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), error) << NarrowPath(path);
    }
    EXPECT_EQ(OpenToRead(u"\\My Documents\\missing.puz"), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(OpenToWrite(u"\\proc\\a.dat"), INVALID_HANDLE_VALUE);
}

TEST_F(Files, AFolderThatIsGoneBeforeTheFileIsWholeSaysSo) {
    std::filesystem::create_directory(home.documents() / "folder");
    HANDLE file = OpenToWrite(u"\\My Documents\\folder\\a.puz");
    EXPECT_TRUE(Write(file, "content"));
    std::filesystem::remove_all(home.documents() / "folder");
    EXPECT_FALSE(CloseHandle(file));
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
}

// Faults: the old file is emptied at the start of a write, or a part of the new one is seen.
TEST_F(Files, AWriteShowsOnlyWhenItIsClosed) {
    WriteBytes(home.stateFile(), "the old state");
    HANDLE file = OpenToWrite(u"\\program files\\Quadrel\\quadrel.dat");
    EXPECT_TRUE(Write(file, std::string(50000, 'n')));
    EXPECT_EQ(ReadBytes(home.stateFile()), "the old state");
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_TRUE(ReadBytes(home.stateFile()) == std::string(50000, 'n'));
    EXPECT_EQ(home.Files().size(), 1u) << "a temporary file was left behind";
}

TEST_F(Files, AFullDiskKeepsTheOldFileAndSaysSo) {
    for (std::size_t size : {4096u, 50000u}) {
        WriteBytes(home.stateFile(), "the old state");
        BOOL closed = TRUE;
        bool written = true;
        {
            const NoSpace full;
            HANDLE file = OpenToWrite(u"\\Program Files\\Quadrel\\quadrel.dat");
            written = Write(file, std::string(size, 'n'));
            closed = CloseHandle(file);
        }
        EXPECT_FALSE(written && closed) << size << " bytes";
        EXPECT_EQ(GetLastError(), ERROR_DISK_FULL) << size << " bytes";
        const std::string kept = ReadBytes(home.stateFile());
        EXPECT_TRUE(kept == "the old state") << "a torn file of " << kept.size() << " bytes";
        EXPECT_EQ(home.Files().size(), 1u) << "a temporary file was left behind";
    }
}

TEST_F(Files, SearchesFindTheFirstUsableName) {
    WIN32_FIND_DATAW found;
    EXPECT_EQ(FindFirstFileW(u"\\My Documents\\*.puz", &found), nullptr);
    WriteBytes(home.documents() / "a\\b.puz", "no name for the device");
    WriteBytes(home.documents() / "z.puz", "");
    WriteBytes(home.documents() / "b.PuZ", "");
    WriteBytes(home.documents() / "a.puz.txt", "");
    HFIND search = FindFirstFileW(u"\\My Documents\\*.puz", &found);
    ASSERT_NE(search, nullptr);
    EXPECT_EQ(std::u16string(found.cFileName), u"b.PuZ");
    EXPECT_EQ(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_TRUE(FindClose(search));
}

class ChosenNames : public PlayedBoard {};

TEST_F(ChosenNames, WithoutADevicePathAreExplained) {
    std::filesystem::path deep = home.root();
    for (int i = 0; i < 4; ++i) {
        deep /= std::string(60, 'a');
    }
    std::filesystem::create_directories(deep);
    for (const auto& file : {home.documents() / "back\\slash.puz", deep / "deep.puz"}) {
        WriteBytes(file, PuzzleBytes(squareBoard));
        ChooseNextFile(file);
        ChooseNextFile({});
        EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
        const auto messages = TakeShownMessages();
        ASSERT_EQ(messages.size(), 1u) << file;
        EXPECT_NE(messages[0].text.find(u"cannot be used"), std::u16string::npos);
    }
}

// Accents and characters beyond the basic plane come back from the record as they were.
TEST_F(ChosenNames, OfEveryLanguageAreRemembered) {
    const std::filesystem::path name(u"R\u00E4tsel \u8C1C \U0001F9E9.puz");
    WriteBytes(home.documents() / name, PuzzleBytes(squareBoard));
    ChooseNextFile(home.documents() / name);
    AnswerNextMessageBox(IDYES);
    EXPECT_TRUE(handheld->PressButton("Select a new puzzle"));
    EXPECT_EQ(TakeShownMessages().size(), 1u);
    EXPECT_EQ(PuzzleWidth, 6);
    handheld->Type("XYZ");
    handheld.reset();
    ForgetPuzzle();
    handheld = std::make_unique<Handheld>(home);
    EXPECT_EQ(std::u16string(CurrentPuzzlePath), u"\\My Documents\\" + name.u16string());
    EXPECT_EQ(PlayerLetters().substr(0, 3), "XYZ");
}

}  // namespace
