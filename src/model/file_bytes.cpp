#include "model/file_bytes.h"

#include "platform/files.h"

namespace {

HANDLE OpenToRead(const WCHAR* path) {
    return CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

}  // namespace

int ReadFileStart(const WCHAR* path, std::span<char> buffer) {
    HANDLE file = OpenToRead(path);
    if (file == INVALID_HANDLE_VALUE) {
        return -1;
    }
    std::size_t total = 0;
    DWORD count = 1;
    bool readable = true;
    while (readable && count > 0 && total < buffer.size()) {
        count = 0;
        const DWORD wanted = static_cast<DWORD>(buffer.size() - total);
        readable = ReadFile(file, buffer.data() + total, wanted, &count, nullptr);
        total += count;
    }
    CloseHandle(file);
    return readable ? static_cast<int>(total) : -1;
}

bool WriteWholeFile(const WCHAR* path, std::string_view bytes, Writing how) {
    const DWORD attributes = how == Writing::AtOnce ? FILE_ATTRIBUTE_NORMAL : FILE_FLAG_OVERLAPPED;
    HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, attributes, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    const bool written = WriteFile(file, bytes.data(), size, &count, nullptr);
    const bool closed = CloseHandle(file);
    return written && closed && count == size;
}

std::uint64_t TimeWritten(const WCHAR* path) {
    HANDLE file = OpenToRead(path);
    FILETIME written;
    if (file == INVALID_HANDLE_VALUE) {
        return 0;
    }
    GetFileTime(file, nullptr, nullptr, &written);
    CloseHandle(file);
    return (std::uint64_t{written.dwHighDateTime} << 32) + written.dwLowDateTime;
}
