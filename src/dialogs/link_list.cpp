#include "dialogs/link_list.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/file_bytes.h"
#include "model/path_buffer.h"
#include "platform/files.h"
#include "platform/text.h"
#include "storage/paths.h"

namespace {

constexpr std::u16string_view linkListFileName = u"quadrelhttplist.dat";
constexpr std::u16string_view defaultLink = u"http://www.example.com/daily/puzzles/today.puz";
constexpr std::size_t mostBytes = 4096;
constexpr std::size_t longestLinkBytes = 259;

bool LinkListPath(WCHAR* buffer) {
    return PathInFolder(ProgramFolder, linkListFileName, buffer);
}

// A character of two units is not cut in half.
std::u16string WidenLink(std::string_view bytes) {
    std::u16string link = WidenPath(bytes);
    if (link.size() > longestLink) {
        const bool splits = (link[longestLink - 1] & 0xFC00) == 0xD800;
        link.resize(splits ? longestLink - 1 : longestLink);
    }
    return link;
}

// Nor is one of several bytes.
std::string NarrowLink(const std::u16string& link) {
    std::string bytes = NarrowPath(link);
    if (bytes.size() > longestLinkBytes) {
        std::size_t end = longestLinkBytes;
        while ((static_cast<unsigned char>(bytes[end]) & 0xC0) == 0x80) {
            --end;
        }
        bytes.resize(end);
    }
    return bytes;
}

// Empty pieces are passed over, and two zeros after a piece end the list.
std::vector<std::u16string> SplitLinks(std::string_view bytes) {
    std::vector<std::u16string> links;
    const auto isZero = [bytes](std::size_t i) { return i >= bytes.size() || bytes[i] == '\0'; };
    std::size_t start = 0;
    do {
        const std::size_t end = std::min(bytes.find('\0', start), bytes.size());
        if (end > start) {
            links.push_back(WidenLink(bytes.substr(start, end - start)));
        }
        start = end + 1;
    } while (!(isZero(start) && isZero(start + 1)));
    return links;
}

}  // namespace

bool FitsList(const std::u16string& link) {
    return link.size() <= longestLink && NarrowPath(link).size() <= longestLinkBytes;
}

bool ReadLinks(std::vector<std::u16string>& links) {
    WCHAR path[MAX_PATH];
    std::array<char, mostBytes> bytes{};
    if (!LinkListPath(path) || ReadFileStart(path, bytes) < 0) {
        links = {std::u16string(defaultLink)};
        return false;
    }
    links = SplitLinks({bytes.data(), bytes.size()});
    return true;
}

void WriteLinks(const std::vector<std::u16string>& links) {
    WCHAR path[MAX_PATH];
    if (!LinkListPath(path)) {
        return;
    }
    if (links.empty()) {
        DeleteFileW(path);
        return;
    }
    std::string bytes;
    for (const std::u16string& link : links) {
        bytes.append(NarrowLink(link)).push_back('\0');
    }
    WriteWholeFile(path, bytes);
}
