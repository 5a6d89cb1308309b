// Reading the beginning of a file.
#pragma once

#include <span>

#include "platform/types.h"

// Reads until the buffer is full or the file ends. Returns the bytes read, -1 when the file cannot
// be opened or read.
int ReadFileStart(const WCHAR* path, std::span<char> buffer);
