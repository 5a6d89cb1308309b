// The handheld's paths and the host's.
#pragma once

#include <QtCore/QString>
#include <optional>
#include <string_view>

// With the trailing backslash.
inline constexpr std::u16string_view programFolderOnDevice = u"\\Program Files\\Quadrel\\";

QString DocumentsFolderOnHost();
QString ProgramFolderOnHost();
// The game's own, in the documents folder.
QString PuzzlesFolderOnHost();

// Nothing for a path that is empty, does not begin with a backslash or has more than 259
// characters.
std::optional<QString> ToHostPath(std::u16string_view devicePath);

// Nothing when the host's name holds a backslash, or the device path would have more than 259
// characters or bytes: progress records hold no longer ones.
std::optional<std::u16string> ToDevicePath(const QString& hostPath);
