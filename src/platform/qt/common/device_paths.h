// The handheld's paths and the host's.
#pragma once

#include <QtCore/QString>
#include <optional>
#include <string_view>

QString DocumentsFolderOnHost();
QString ProgramFolderOnHost();

// Nothing for a path that is empty, does not begin with a backslash or has more than 259
// characters.
std::optional<QString> ToHostPath(std::u16string_view devicePath);

// Nothing when the host's name holds a backslash, or the device path would have more than 259
// characters or bytes: progress records hold no longer ones.
std::optional<std::u16string> ToDevicePath(const QString& hostPath);
