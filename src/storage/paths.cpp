#include "storage/paths.h"

#include <string>
#include <string_view>

bool PathInFolder(std::u16string_view folder, std::u16string_view name, WCHAR* buffer) {
    return CopyPath(std::u16string(folder).append(name), buffer);
}

bool ProgressFilePath(const WCHAR* puzzlePath, WCHAR* buffer) {
    constexpr std::u16string_view extension = u".dat";
    std::u16string path = puzzlePath;
    if (path.size() < extension.size()) {
        return false;
    }
    path.replace(path.size() - extension.size(), extension.size(), extension);
    return CopyPath(path, buffer);
}
