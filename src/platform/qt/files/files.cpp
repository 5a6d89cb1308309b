// Files and folders.
//
// Supported: what files.h lists. Left out: sharing, attributes, seeking, appending, overlapped
// operations.
#include "platform/files.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <cerrno>
#include <cstdint>
#include <future>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/qt/files/device_paths.h"
#include "platform/qt/files/last_error.h"

struct FileObject {
    std::unique_ptr<QFile> reader;
    std::unique_ptr<QSaveFile> writer;
    bool takesItsPlaceLater = false;
    DWORD writeError = 0;  // a write went wrong, so the old file stays
};

struct FindObject {
    QFileInfoList left;
};

namespace {

// The toolkit tells reasons as text only; what it lets through of the system's number is asked
// after what can be seen from outside.
DWORD ReasonNotOpened(const QString& path, int systemError) {
    const QFileInfo file(path);
    if (!QFileInfo(file.path()).isDir()) {
        return ERROR_PATH_NOT_FOUND;
    }
    return file.isDir() ? ERROR_ACCESS_DENIED : ErrorOfSystem(systemError, ERROR_ACCESS_DENIED);
}

template <typename Device>
bool Open(Device& device, QIODevice::OpenMode mode) {
    errno = 0;
    if (device.open(mode)) {
        return true;
    }
    SetLastError(ReasonNotOpened(device.fileName(), errno));
    return false;
}

std::unique_ptr<FileObject> OpenReader(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        SetLastError(ReasonNotOpened(path, ENOENT));
        return nullptr;
    }
    auto file = std::make_unique<FileObject>();
    file->reader = std::make_unique<QFile>(path);
    return Open(*file->reader, QIODevice::ReadOnly) ? std::move(file) : nullptr;
}

std::unique_ptr<FileObject> OpenWriter(const QString& path, DWORD attributes) {
    auto file = std::make_unique<FileObject>();
    file->takesItsPlaceLater = (attributes & FILE_FLAG_OVERLAPPED) != 0;
    file->writer = std::make_unique<QSaveFile>(path);
    if (!Open(*file->writer, QIODevice::WriteOnly)) {
        return nullptr;
    }
    // Documents follow the user's mask; what is the game's own is nobody else's business.
    if (path.startsWith(ProgramFolderOnHost() + '/')) {
        file->writer->setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    return file;
}

// Puts the file in its place; 0, or why it could not be.
DWORD PutInPlace(QSaveFile& file) {
    errno = 0;
    // Flushed by itself first: a commit does not notice when the disk is full at its last flush.
    if (file.flush() && file.commit()) {
        return 0;
    }
    const int systemError = errno;
    const bool folderIsThere = QFileInfo(QFileInfo(file.fileName()).path()).isDir();
    return folderIsThere ? ErrorOfSystem(systemError, ERROR_GEN_FAILURE) : ERROR_PATH_NOT_FOUND;
}

// On its way to its place on a thread of its own. Never two: files wait for each other.
std::future<DWORD> onItsWay;
DWORD missedItsPlace = 0;

void AwaitFileOnItsWay() {
    if (onItsWay.valid()) {
        const DWORD error = onItsWay.get();
        missedItsPlace = error == 0 ? missedItsPlace : error;
    }
}

void PutInPlaceLater(std::unique_ptr<QSaveFile> file) {
    AwaitFileOnItsWay();
    onItsWay =
        std::async(std::launch::async, [file = std::move(file)] { return PutInPlace(*file); });
}

bool FitsPath(const QString& name) {
    return !name.contains('\\') && name.size() < MAX_PATH;
}

}  // namespace

HANDLE CreateFileW(const WCHAR* path, DWORD access, DWORD, void*, DWORD disposition,
                   DWORD attributes, HANDLE) {
    AwaitFileOnItsWay();
    const auto hostPath = ToHostPath(path);
    if (!hostPath) {
        const bool tooLong = std::u16string_view(path).size() >= MAX_PATH;
        SetLastError(tooLong ? ERROR_FILENAME_EXCED_RANGE : ERROR_INVALID_NAME);
        return INVALID_HANDLE_VALUE;
    }
    if (access == GENERIC_READ && disposition == OPEN_EXISTING) {
        return OpenReader(*hostPath).release();
    }
    if (access == GENERIC_WRITE && disposition == CREATE_ALWAYS) {
        return OpenWriter(*hostPath, attributes).release();
    }
    SetLastError(ERROR_INVALID_PARAMETER);
    return INVALID_HANDLE_VALUE;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD size, DWORD* bytesRead, void*) {
    *bytesRead = 0;
    if (file == INVALID_HANDLE_VALUE || !file->reader) {
        return Fail(ERROR_INVALID_HANDLE);
    }
    errno = 0;
    const qint64 count = file->reader->read(static_cast<char*>(buffer), size);
    if (count < 0) {
        return Fail(ErrorOfSystem(errno, ERROR_GEN_FAILURE));
    }
    *bytesRead = static_cast<DWORD>(count);
    return TRUE;
}

BOOL WriteFile(HANDLE file, const void* buffer, DWORD size, DWORD* bytesWritten, void*) {
    *bytesWritten = 0;
    if (file == INVALID_HANDLE_VALUE || !file->writer) {
        return Fail(ERROR_INVALID_HANDLE);
    }
    errno = 0;
    const qint64 count = file->writer->write(static_cast<const char*>(buffer), size);
    if (count != size && file->writeError == 0) {
        file->writeError = ErrorOfSystem(errno, ERROR_GEN_FAILURE);
    }
    *bytesWritten = count < 0 ? 0 : static_cast<DWORD>(count);
    return file->writeError == 0 ? TRUE : Fail(file->writeError);
}

BOOL CancelIo(HANDLE file) {
    file->writeError = ERROR_OPERATION_ABORTED;
    return TRUE;
}

BOOL CloseHandle(HANDLE file) {
    if (file == INVALID_HANDLE_VALUE) {
        return Fail(ERROR_INVALID_HANDLE);
    }
    const std::unique_ptr<FileObject> closing(file);
    DWORD error = closing->writeError;
    if (closing->writer && error == 0) {
        if (closing->takesItsPlaceLater) {
            PutInPlaceLater(std::move(closing->writer));
            return TRUE;
        }
        error = PutInPlace(*closing->writer);
    }
    return error == 0 ? TRUE : Fail(error);
}

DWORD AwaitFiles() {
    AwaitFileOnItsWay();
    return std::exchange(missedItsPlace, 0);
}

BOOL GetFileTime(HANDLE file, FILETIME*, FILETIME*, FILETIME* written) {
    if (file == INVALID_HANDLE_VALUE || !file->reader) {
        return Fail(ERROR_INVALID_HANDLE);
    }
    const QDateTime time = file->reader->fileTime(QFileDevice::FileModificationTime);
    const auto milliseconds = static_cast<std::uint64_t>(time.toMSecsSinceEpoch());
    *written = {static_cast<DWORD>(milliseconds), static_cast<DWORD>(milliseconds >> 32)};
    return TRUE;
}

BOOL DeleteFileW(const WCHAR* path) {
    const auto hostPath = ToHostPath(path);
    if (!hostPath) {
        return Fail(ERROR_INVALID_NAME);
    }
    AwaitFileOnItsWay();
    errno = ENOENT;
    return (QFileInfo(*hostPath).isFile() && QFile::remove(*hostPath)) ||
           Fail(ReasonNotOpened(*hostPath, errno));
}

BOOL CreateDirectoryW(const WCHAR* path, void*) {
    const auto hostPath = ToHostPath(path);
    if (!hostPath) {
        return Fail(ERROR_INVALID_NAME);
    }
    if (QFileInfo::exists(*hostPath)) {
        return Fail(ERROR_ALREADY_EXISTS);
    }
    errno = 0;
    return QDir().mkpath(*hostPath) || Fail(ErrorOfSystem(errno, ERROR_ACCESS_DENIED));
}

HFIND FindFirstFileW(const WCHAR* pattern, WIN32_FIND_DATAW* data) {
    const auto hostPattern = ToHostPath(pattern);
    if (!hostPattern) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return nullptr;
    }
    AwaitFileOnItsWay();
    const QFileInfo split(*hostPattern);
    auto search = std::make_unique<FindObject>();
    search->left =
        QDir(split.path()).entryInfoList({split.fileName()}, QDir::Files | QDir::Dirs, QDir::Name);
    return FindNextFileW(search.get(), data) ? search.release() : nullptr;
}

BOOL FindNextFileW(HFIND search, WIN32_FIND_DATAW* data) {
    while (!search->left.isEmpty()) {
        const QFileInfo entry = search->left.takeFirst();
        if (FitsPath(entry.fileName())) {
            const std::u16string name = entry.fileName().toStdU16String();
            data->dwFileAttributes =
                entry.isDir() ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
            data->cFileName[name.copy(data->cFileName, name.size())] = 0;
            return TRUE;
        }
    }
    return Fail(ERROR_FILE_NOT_FOUND);
}

BOOL FindClose(HFIND search) {
    delete search;
    return search != nullptr || Fail(ERROR_INVALID_HANDLE);
}

DWORD GetModuleFileNameW(HINSTANCE, WCHAR* buffer, DWORD size) {
    const std::u16string path = std::u16string(programFolderOnDevice) + u"Quadrel.exe";
    if (size <= path.size()) {
        return 0;
    }
    buffer[path.copy(buffer, path.size())] = 0;
    return static_cast<DWORD>(path.size());
}
