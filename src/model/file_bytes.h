// Reading the beginning of a file, and writing a whole one.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/types.h"

// Reads until the buffer is full or the file ends. Returns the bytes read, -1 when the file cannot
// be opened or read.
int ReadFileStart(const WCHAR* path, std::span<char> buffer);

// False when the file cannot be created or written; an old file then stays as it was. One that is
// written behind the player's back is on the disk a little later: AwaitFiles tells.
enum class Writing { AtOnce, BehindThePlayersBack };
bool WriteWholeFile(const WCHAR* path, std::string_view bytes, Writing how = Writing::AtOnce);

// When the file was last written; 0 when there is none.
std::uint64_t TimeWritten(const WCHAR* path);
