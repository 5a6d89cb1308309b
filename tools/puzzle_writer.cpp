#include "tools/puzzle_writer.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "tools/puzzle_characters.h"

namespace puzzle_text {

namespace {

struct FileTexts {
    std::string title;
    std::string author;
    std::string copyright;
    std::vector<std::string> clues;
    std::string notes;
};

FileTexts EncodeTexts(const Source& source) {
    FileTexts texts;
    texts.title = EncodeText(source.title);
    texts.author = EncodeText(source.author);
    texts.copyright = EncodeText(source.copyright);
    for (const Clue& clue : source.clues) {
        texts.clues.push_back(EncodeText(clue.text));
    }
    texts.notes = EncodeText(source.notes);
    return texts;
}

std::uint16_t AddToChecksum(std::uint16_t checksum, std::string_view bytes) {
    unsigned sum = checksum;
    for (const char byte : bytes) {
        const unsigned rotated = (sum >> 1) | ((sum & 1) << 15);
        sum = (rotated + static_cast<unsigned char>(byte)) & 0xFFFF;
    }
    return static_cast<std::uint16_t>(sum);
}

// The format's own rules: an absent text counts for nothing, a clue counts without its NUL.
std::uint16_t AddTextsToChecksum(std::uint16_t checksum, const FileTexts& texts) {
    const auto addWithNul = [&checksum](const std::string& text) {
        if (text.empty()) {
            return;
        }
        checksum = AddToChecksum(checksum, std::string_view(text.c_str(), text.size() + 1));
    };
    addWithNul(texts.title);
    addWithNul(texts.author);
    addWithNul(texts.copyright);
    for (const std::string& clue : texts.clues) {
        checksum = AddToChecksum(checksum, clue);
    }
    addWithNul(texts.notes);
    return checksum;
}

std::string MakePlayerGrid(const std::string& solution) {
    std::string player = solution;
    for (char& square : player) {
        if (square != blackSquare) {
            square = '-';
        }
    }
    return player;
}

// The header's part that has a checksum of its own.
std::string MakePuzzleInfo(const Grid& grid, std::size_t clueCount) {
    std::string info(8, '\0');
    info[0] = static_cast<char>(grid.width);
    info[1] = static_cast<char>(grid.height);
    info[2] = static_cast<char>(clueCount & 0xFF);
    info[3] = static_cast<char>(clueCount >> 8);
    info[4] = 1;  // an ordinary puzzle; then two bytes of zero: the solution is not scrambled
    return info;
}

void StoreWord(std::string& header, std::size_t offset, std::uint16_t value) {
    header[offset] = static_cast<char>(value & 0xFF);
    header[offset + 1] = static_cast<char>(value >> 8);
}

void StoreMaskedChecksums(std::string& header, const std::array<std::uint16_t, 4>& checksums) {
    constexpr std::string_view maskLetters = "ICHEATED";
    for (std::size_t index = 0; index < 4; ++index) {
        const std::uint16_t checksum = checksums[index];
        header[0x10 + index] = static_cast<char>(maskLetters[index] ^ (checksum & 0xFF));
        header[0x14 + index] = static_cast<char>(maskLetters[index + 4] ^ (checksum >> 8));
    }
}

std::string MakeHeader(const Grid& grid, const std::string& player, const FileTexts& texts) {
    const std::string info = MakePuzzleInfo(grid, texts.clues.size());
    const std::uint16_t infoChecksum = AddToChecksum(0, info);
    const std::uint16_t gridsChecksum =
        AddToChecksum(AddToChecksum(infoChecksum, grid.squares), player);

    std::string header(0x2C, '\0');
    StoreWord(header, 0x00, AddTextsToChecksum(gridsChecksum, texts));
    header.replace(0x02, 11, "ACROSS&DOWN");
    StoreWord(header, 0x0E, infoChecksum);
    StoreMaskedChecksums(header, {infoChecksum, AddToChecksum(0, grid.squares),
                                  AddToChecksum(0, player), AddTextsToChecksum(0, texts)});
    header.replace(0x18, 3, "1.3");
    return header + info;
}

}  // namespace

std::vector<unsigned char> WritePuzzle(const Grid& grid, const Source& source) {
    const FileTexts texts = EncodeTexts(source);
    const std::string player = MakePlayerGrid(grid.squares);
    std::string file = MakeHeader(grid, player, texts) + grid.squares + player;
    const auto addText = [&file](const std::string& text) { file.append(text).push_back('\0'); };
    addText(texts.title);
    addText(texts.author);
    addText(texts.copyright);
    for (const std::string& clue : texts.clues) {
        addText(clue);
    }
    addText(texts.notes);
    return {file.begin(), file.end()};
}

}  // namespace puzzle_text
