// Files and folders under the handheld's paths.
//
//   \My Documents\...            the user's documents folder
//   \Program Files\Quadrel\...   the user's data folder
//   any other \a\b               /a/b
//
// QUADREL_HOME=DIR puts both folders under DIR. GetLastError (errors.h) tells why an operation
// failed.
#pragma once

#include "platform/types.h"

struct FileObject;
struct FindObject;
using HANDLE = FileObject*;
using HFIND = FindObject*;

constexpr HANDLE INVALID_HANDLE_VALUE = nullptr;

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_FLAG_OVERLAPPED = 0x40000000;

// Counts up; what is newer is larger.
struct FILETIME {
    DWORD dwLowDateTime = 0;
    DWORD dwHighDateTime = 0;
};

struct WIN32_FIND_DATAW {
    DWORD dwFileAttributes = 0;
    WCHAR cFileName[MAX_PATH] = {};
};

// GENERIC_READ with OPEN_EXISTING, or GENERIC_WRITE with CREATE_ALWAYS. A file that is written
// takes its place, whole and flushed to the disk, only when its handle is closed: until then, and
// after any failure, the old file stays. INVALID_HANDLE_VALUE when it cannot be opened; a folder,
// an empty path and one of more than 259 characters cannot.
HANDLE CreateFileW(const WCHAR* path, DWORD access, DWORD share, void* security, DWORD disposition,
                   DWORD attributes, HANDLE templateFile);
// FALSE on an error; a read at the end of the file is TRUE with 0 bytes.
BOOL ReadFile(HANDLE file, void* buffer, DWORD size, DWORD* bytesRead, void* overlapped);
BOOL WriteFile(HANDLE file, const void* buffer, DWORD size, DWORD* bytesWritten, void* overlapped);
// Gives up what was written: closing the handle then fails, and an old file stays as it was.
BOOL CancelIo(HANDLE file);
// FALSE when a written file could not take its place; the handle is gone in any case.
BOOL CloseHandle(HANDLE file);

// A file written with FILE_FLAG_OVERLAPPED among its attributes takes its place after CloseHandle
// has returned, so that nobody waits for a slow disk; whatever is done with files next waits for
// it. 0, or why one could not take its place since this was asked last.
DWORD AwaitFiles();

// When a file that is open for reading was last written; the other times are not told. FALSE for
// any other handle.
BOOL GetFileTime(HANDLE file, FILETIME* created, FILETIME* accessed, FILETIME* written);

// Both FALSE on failure; an existing folder is one.
BOOL DeleteFileW(const WCHAR* path);
BOOL CreateDirectoryW(const WCHAR* path, void* security);

// The files and folders, in the order of names, that fit a pattern like "\folder\*.puz", upper and
// lower case alike. Null when none fits, and FALSE when no other does.
HFIND FindFirstFileW(const WCHAR* pattern, WIN32_FIND_DATAW* data);
BOOL FindNextFileW(HFIND search, WIN32_FIND_DATAW* data);
BOOL FindClose(HFIND search);

// The program file's device path; returns its length, 0 when the buffer is too short.
DWORD GetModuleFileNameW(HINSTANCE module, WCHAR* buffer, DWORD size);
