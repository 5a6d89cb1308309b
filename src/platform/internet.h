// Reading what a web address holds.
//
// http and https; certificates are checked against the system's list, or against SSL_CERT_FILE
// where the environment names one. At most ten redirects, none from https to http. No proxy, no
// cookies, no cache. Compressed answers arrive unpacked, error pages like any other answer. The
// heads of all answers on the way may hold 64 KiB together.
//
// Opening and reading wait for the network. The window stays alive meanwhile, with a sign that the
// program is busy, but what the player does with stylus and keys is dropped. Waiting ends with
// ERROR_INTERNET_TIMEOUT when the server is silent for 30 seconds, and with
// ERROR_INTERNET_OPERATION_CANCELLED at Escape, at a tap on the sign, and when the program is asked
// to end. GetLastError (errors.h) tells why an operation failed.
#pragma once

#include "platform/types.h"

struct InternetObject;
using HINTERNET = InternetObject*;

constexpr DWORD INTERNET_OPEN_TYPE_DIRECT = 1;
constexpr DWORD INTERNET_FLAG_RAW_DATA = 0x40000000;

// The handle under which addresses are opened; the agent is the name that servers are told. Null
// with ERROR_MOD_NOT_FOUND when the network part of the program is not there.
HINTERNET InternetOpenW(const WCHAR* agent, DWORD accessType, const WCHAR* proxy,
                        const WCHAR* proxyBypass, DWORD flags);

// Null when no server has answered.
HINTERNET InternetOpenUrlW(HINTERNET root, const WCHAR* address, const WCHAR* headers,
                           DWORD headersLength, DWORD flags, std::uintptr_t context);

// Fills the buffer unless the answer ends before; TRUE with 0 bytes at its end. FALSE, with nothing
// read, when the connection breaks before the buffer is full and before the announced end, or with
// ERROR_FILE_TOO_LARGE when the answer, packed or unpacked, holds more than 1 MiB.
BOOL InternetReadFile(HINTERNET link, void* buffer, DWORD size, DWORD* bytesRead);

// A link's connection ends with its handle. The root handle is closed last.
BOOL InternetCloseHandle(HINTERNET handle);
