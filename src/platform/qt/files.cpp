// Files and folders.
//
// Supported: what files.h lists. Left out: sharing, attributes, seeking, appending, overlapped
// operations, searching beyond the first match.
#include "platform/files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <memory>
#include <string_view>

#include "platform/qt/device_paths.h"

struct FileObject {
    std::unique_ptr<QFile> reader;
    std::unique_ptr<QSaveFile> writer;
    bool failed = false;  // a write went wrong, so the old file stays
};

struct FindObject {};

namespace {

std::unique_ptr<FileObject> OpenReader(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return nullptr;
    }
    auto file = std::make_unique<FileObject>();
    file->reader = std::make_unique<QFile>(path);
    return file->reader->open(QIODevice::ReadOnly) ? std::move(file) : nullptr;
}

std::unique_ptr<FileObject> OpenWriter(const QString& path) {
    auto file = std::make_unique<FileObject>();
    file->writer = std::make_unique<QSaveFile>(path);
    return file->writer->open(QIODevice::WriteOnly) ? std::move(file) : nullptr;
}

bool FitsPath(const QString& name) {
    return !name.contains('\\') && name.size() < MAX_PATH;
}

}  // namespace

HANDLE CreateFileW(const WCHAR* path, DWORD access, DWORD, void*, DWORD disposition, DWORD,
                   HANDLE) {
    const auto hostPath = ToHostPath(path);
    if (!hostPath) {
        return INVALID_HANDLE_VALUE;
    }
    if (access == GENERIC_READ && disposition == OPEN_EXISTING) {
        return OpenReader(*hostPath).release();
    }
    if (access == GENERIC_WRITE && disposition == CREATE_ALWAYS) {
        return OpenWriter(*hostPath).release();
    }
    return INVALID_HANDLE_VALUE;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD size, DWORD* bytesRead, void*) {
    *bytesRead = 0;
    if (file == INVALID_HANDLE_VALUE || !file->reader) {
        return FALSE;
    }
    const qint64 count = file->reader->read(static_cast<char*>(buffer), size);
    if (count < 0) {
        return FALSE;
    }
    *bytesRead = static_cast<DWORD>(count);
    return TRUE;
}

BOOL WriteFile(HANDLE file, const void* buffer, DWORD size, DWORD* bytesWritten, void*) {
    *bytesWritten = 0;
    if (file == INVALID_HANDLE_VALUE || !file->writer) {
        return FALSE;
    }
    const qint64 count = file->writer->write(static_cast<const char*>(buffer), size);
    file->failed |= count != size;
    *bytesWritten = count < 0 ? 0 : static_cast<DWORD>(count);
    return !file->failed;
}

BOOL CloseHandle(HANDLE file) {
    if (file == INVALID_HANDLE_VALUE) {
        return FALSE;
    }
    const std::unique_ptr<FileObject> closing(file);
    // Flushed by itself first: a commit does not notice when the disk is full at its last flush.
    return !closing->writer ||
           (!closing->failed && closing->writer->flush() && closing->writer->commit());
}

BOOL DeleteFileW(const WCHAR* path) {
    const auto hostPath = ToHostPath(path);
    return hostPath && QFileInfo(*hostPath).isFile() && QFile::remove(*hostPath);
}

BOOL CreateDirectoryW(const WCHAR* path, void*) {
    const auto hostPath = ToHostPath(path);
    return hostPath && !QFileInfo::exists(*hostPath) && QDir().mkpath(*hostPath);
}

HFIND FindFirstFileW(const WCHAR* pattern, WIN32_FIND_DATAW* data) {
    const auto hostPattern = ToHostPath(pattern);
    if (!hostPattern) {
        return nullptr;
    }
    const QFileInfo split(*hostPattern);
    const auto entries =
        QDir(split.path()).entryInfoList({split.fileName()}, QDir::Files | QDir::Dirs, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (FitsPath(entry.fileName())) {
            const std::u16string name = entry.fileName().toStdU16String();
            data->dwFileAttributes =
                entry.isDir() ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
            data->cFileName[name.copy(data->cFileName, name.size())] = 0;
            return new FindObject;
        }
    }
    return nullptr;
}

BOOL FindClose(HFIND search) {
    delete search;
    return search != nullptr;
}

DWORD GetModuleFileNameW(HINSTANCE, WCHAR* buffer, DWORD size) {
    constexpr std::u16string_view path = u"\\Program Files\\Quadrel\\Quadrel.exe";
    if (size <= path.size()) {
        return 0;
    }
    buffer[path.copy(buffer, path.size())] = 0;
    return static_cast<DWORD>(path.size());
}
