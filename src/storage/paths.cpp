#include "storage/paths.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace {

// Names of files tell puzzles apart by a number: the paths themselves may be too long for one.
std::u16string NameOf(std::u16string_view puzzlePath) {
    constexpr std::uint64_t start = 14695981039346656037U;
    constexpr std::uint64_t factor = 1099511628211U;
    std::uint64_t number = start;
    for (char16_t unit : puzzlePath) {
        number = (number ^ unit) * factor;
    }
    std::u16string name;
    for (; number != 0; number >>= 4) {
        name += u"0123456789abcdef"[number & 0xF];
    }
    return name + u".dat";
}

}  // namespace

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

bool SecondProgressFilePath(const WCHAR* puzzlePath, WCHAR* buffer) {
    return PathInFolder(ProgramFolder, NameOf(puzzlePath), buffer);
}
