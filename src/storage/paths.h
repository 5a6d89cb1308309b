// Where the program and the puzzle in play live on the device.
#pragma once

#include <string_view>

#include "model/path_buffer.h"
#include "platform/types.h"

// The folder of the program file, with its trailing backslash. Written by start-up.
inline WCHAR ProgramFolder[MAX_PATH];

// In it: the last puzzle, its letters and the settings.
inline constexpr std::u16string_view stateFileName = u"quadrel.dat";

// Where puzzles are looked for when there is none in play, and where downloads go, which start-up
// makes. With their trailing backslashes.
inline constexpr std::u16string_view documentsFolder = u"\\My Documents\\";
inline constexpr std::u16string_view puzzlesFolder = u"\\My Documents\\Quadrel Puzzles\\";

// Full path of the puzzle in play, empty while there is none; a failed read at start-up leaves its
// short text here. Written by start-up, LoadProgress and OpenPuzzleFile.
inline WCHAR CurrentPuzzlePath[MAX_PATH];

// The path of a file in such a folder. False, with the buffer unchanged, when it is too long.
bool PathInFolder(std::u16string_view folder, std::u16string_view name, WCHAR* buffer);

// The progress file beside a puzzle: the path with its last four characters replaced by ".dat".
// False when there are fewer than four, or when it does not fit the buffer of 260 wide characters.
bool ProgressFilePath(const WCHAR* puzzlePath, WCHAR* buffer);

// The one in the program folder, for a puzzle beside which nothing can be written. False when it
// does not fit the buffer of 260 wide characters.
bool SecondProgressFilePath(const WCHAR* puzzlePath, WCHAR* buffer);
