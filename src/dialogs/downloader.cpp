#include "dialogs/downloader.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/view.h"
#include "dialogs/first_block.h"
#include "model/file_bytes.h"
#include "model/path_buffer.h"
#include "model/puzzle_file.h"
#include "platform/common_dialogs.h"
#include "platform/dialogs.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "platform/internet.h"
#include "platform/text.h"
#include "storage/paths.h"

namespace {

constexpr DWORD blockSize = 32000;

void ShowError(HWND dialog, const WCHAR* text) {
    MessageBoxW(dialog, text, u"Error", MB_ICONINFORMATION);
}

void ShowLastError(HWND dialog, std::u16string_view what) {
    std::u16string text(what);
    text.append(u": ").append(HexadecimalText(GetLastError()));
    ShowError(dialog, text.c_str());
}

struct ChosenFile {
    WCHAR path[MAX_PATH] = {};
    HANDLE handle = INVALID_HANDLE_VALUE;
    bool replaces = false;    // a file was there before
    PuzzleIdentity replaced;  // and the puzzle in it

    ChosenFile() = default;
    // A new file that is not whole is left to the player; an old one stays as it was.
    ~ChosenFile() {
        if (replaces && handle != INVALID_HANDLE_VALUE) {
            CancelIo(handle);
        }
        Close();
    }
    ChosenFile(const ChosenFile&) = delete;
    ChosenFile& operator=(const ChosenFile&) = delete;

    bool Create();
    // False when what was written could not take its place.
    bool Close();
};

bool ChosenFile::Create() {
    replaces = TimeWritten(path) != 0;
    replaced = IdentityOfFile(path);
    handle =
        CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    return handle != INVALID_HANDLE_VALUE;
}

// It begins with the path of its puzzle. The state of the game does so, too.
bool IsRecordOf(const WCHAR* puzzlePath, const WCHAR* path) {
    constexpr int recordSize = 4096;
    std::array<char, recordSize + 1> bytes = {};
    const int size = ReadFileStart(path, bytes);
    WCHAR state[MAX_PATH] = {};
    PathInFolder(ProgramFolder, stateFileName, state);
    return size == recordSize && NarrowPath(puzzlePath) == bytes.data() &&
           std::u16string_view(path) != state;
}

bool IsPuzzleName(std::u16string_view path) {
    return path.ends_with(u".puz") || path.ends_with(u".PUZ");
}

// Letters belong to the puzzle that they were entered in. They are looked for even where no puzzle
// was: one may have been deleted and left its letters behind.
void DeleteProgressOf(const WCHAR* puzzlePath) {
    for (const auto place : {ProgressFilePath, SecondProgressFilePath}) {
        WCHAR path[MAX_PATH];
        if (IsPuzzleName(puzzlePath) && place(puzzlePath, path) && IsRecordOf(puzzlePath, path)) {
            DeleteFileW(path);
        }
    }
}

bool ChosenFile::Close() {
    if (handle == INVALID_HANDLE_VALUE) {
        return true;
    }
    if (!CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE))) {
        return false;
    }
    if (replaced.side == 0 || !IsSamePuzzle(IdentityOfFile(path), replaced)) {
        DeleteProgressOf(path);
    }
    return true;
}

// Both handles are closed at the end of the scope, the link's first.
struct Connection {
    HINTERNET root = nullptr;
    HINTERNET link = nullptr;

    Connection() = default;
    ~Connection() {
        if (link != nullptr) {
            InternetCloseHandle(link);
        }
        if (root != nullptr) {
            InternetCloseHandle(root);
        }
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
};

bool Open(Connection& connection, HWND dialog, const WCHAR* link) {
    connection.root = InternetOpenW(u"Example", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    if (connection.root == nullptr) {
        ShowLastError(dialog, u"The network cannot be used");
        return false;
    }
    connection.link =
        InternetOpenUrlW(connection.root, link, nullptr, 0, INTERNET_FLAG_RAW_DATA, 0);
    if (connection.link == nullptr) {
        ShowLastError(dialog, u"InternetOpenUrl Error");
        return false;
    }
    return true;
}

bool SetUpFile(ChosenFile& file, HWND dialog, std::string_view firstBlock) {
    if (!IsSquarePuzzle(firstBlock) || IsWebPage(firstBlock)) {
        ShowError(dialog, u"Not a valid puzzle file, please check the URL.");
        return false;
    }
    WCHAR name[MAX_PATH];
    CopyPath(SuggestedName(firstBlock), name);
    if (ChooseSaveLocation(dialog, name, file.path) == 0) {
        return false;
    }
    if (!file.Create()) {
        ShowLastError(dialog, u"CreateFile Error");
        return false;
    }
    return true;
}

bool Write(const ChosenFile& file, HWND dialog, std::string_view block) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(block.size());
    if (WriteFile(file.handle, block.data(), size, &count, nullptr) && count == size) {
        return true;
    }
    ShowLastError(dialog, u"WriteFile Error");
    return false;
}

bool StoreBlock(ChosenFile& file, HWND dialog, std::string_view block) {
    const bool first = file.handle == INVALID_HANDLE_VALUE;
    return (!first || SetUpFile(file, dialog, block)) && Write(file, dialog, block);
}

// The file is in its place before the player is told so.
int Finish(ChosenFile& file, HWND dialog) {
    if (!file.Close()) {
        ShowLastError(dialog, u"WriteFile Error");
        return 0;
    }
    MessageBoxW(dialog, u"Puzzle file  downloaded successfully!", u"Download", MB_ICONINFORMATION);
    return 1;
}

bool ConfirmLocation(HWND dialog, const WCHAR* path) {
    const std::u16string question = std::u16string(u"Save file at this location: ") + path;
    return MessageBoxW(dialog, question.c_str(), u"Confirm", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

}  // namespace

int DownloadPuzzle(HWND dialog, const WCHAR* link) {
    Connection connection;
    ChosenFile file;
    if (!Open(connection, dialog, link)) {
        return 0;
    }
    std::array<char, blockSize> block;
    while (true) {
        DWORD count = 0;
        if (!InternetReadFile(connection.link, block.data(), blockSize, &count)) {
            ShowLastError(dialog, u"InternetReadFile Error");
            return 0;
        }
        if (count == 0) {
            return Finish(file, dialog);
        }
        if (!StoreBlock(file, dialog, {block.data(), count})) {
            return 0;
        }
    }
}

int ChooseSaveLocation(HWND dialog, WCHAR* name, WCHAR* path) {
    WCHAR file[MAX_PATH];
    if (!PathInFolder(puzzlesFolder, name, file)) {
        return 0;
    }
    OPENFILENAMEW request;
    request.hwndOwner = MainWindow;
    request.lpstrFilter = u"Puzzle files\0*.puz\0";
    request.lpstrFile = file;
    request.nMaxFile = MAX_PATH;
    request.lpstrFileTitle = name;
    request.nMaxFileTitle = MAX_PATH;
    request.lpstrTitle = u"Save File";
    request.Flags = OFN_EXPLORER;
    if (!GetSaveFileNameW(&request) || !ConfirmLocation(dialog, file)) {
        return 0;
    }
    CopyPath(file, path);
    return 1;
}
