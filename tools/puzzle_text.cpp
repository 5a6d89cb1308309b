#include "tools/puzzle_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr char blackSquare = '.';
constexpr std::size_t largestSide = 255;  // the file holds each side in one byte

// ---- Texts ----

// The code point that starts at the position, which moves behind it; nothing when the bytes are
// not UTF-8: cut off, longer than needed, a surrogate or beyond Unicode.
std::optional<char32_t> DecodeCodePoint(std::string_view text, std::size_t& position) {
    const auto lead = static_cast<unsigned char>(text[position++]);
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4)
        return std::nullopt;
    auto codePoint = static_cast<char32_t>(lead & (0x3F >> following));
    for (int count = 0; count < following; ++count) {
        if (position == text.size())
            return std::nullopt;
        const auto next = static_cast<unsigned char>(text[position++]);
        if ((next & 0xC0) != 0x80)
            return std::nullopt;
        codePoint = codePoint << 6 | (next & 0x3F);
    }
    const bool tooLong =
        (following == 2 && codePoint < 0x800) || (following == 3 && codePoint < 0x10000);
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (tooLong || surrogate || codePoint > 0x10FFFF)
        return std::nullopt;
    return codePoint;
}

std::optional<std::u32string> DecodeUtf8(std::string_view text) {
    std::u32string decoded;
    for (std::size_t position = 0; position < text.size();) {
        const std::optional<char32_t> codePoint = DecodeCodePoint(text, position);
        if (!codePoint)
            return std::nullopt;
        decoded.push_back(*codePoint);
    }
    return decoded;
}

// What Windows-1252 has at 0x80 to 0x9F; zero where it has nothing.
constexpr std::array<char16_t, 32> windowsCharacters = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::optional<char> EncodeWindowsCharacter(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    const auto* found = std::find(windowsCharacters.begin(), windowsCharacters.end(), codePoint);
    if (codePoint == 0 || found == windowsCharacters.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - windowsCharacters.begin()));
}

// The text, already known to be UTF-8, as the file holds it.
std::string EncodeText(std::string_view text) {
    std::string encoded;
    bool plain = true;
    const std::u32string decoded = DecodeUtf8(text).value();
    for (const char32_t codePoint : decoded) {
        const std::optional<char> byte = EncodeWindowsCharacter(codePoint);
        if (!byte)
            return std::string(text);
        encoded.push_back(*byte);
        plain = plain && codePoint < 0x80;
    }
    // A reader that tells the encodings apart by their bytes would take these few texts, such as
    // "Ã©", for UTF-8, so they have to be UTF-8.
    if (!plain && DecodeUtf8(encoded))
        return std::string(text);
    return encoded;
}

std::string_view Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// ---- Reading the sections ----

struct Line {
    int number;
    std::string_view text;
};

enum class Direction { Across, Down };

struct Clue {
    int line;
    int number;
    Direction direction;
    std::string_view text;
};

struct Source {
    std::string_view title;
    std::string_view author;
    std::string_view copyright;
    std::vector<Line> rows;
    std::vector<Clue> clues;
    std::string notes;
};

bool Fail(PuzzleTextError& error, int line, std::string reason) {
    error = {line, std::move(reason)};
    return false;
}

std::string Quote(std::string_view text) {
    return '"' + std::string(text) + '"';
}

bool CheckCharacters(Line line, PuzzleTextError& error) {
    const std::optional<std::u32string> decoded = DecodeUtf8(line.text);
    if (!decoded)
        return Fail(error, line.number, "this line is not UTF-8 text");
    for (const char32_t codePoint : *decoded) {
        if (codePoint == 0)
            return Fail(error, line.number, "a NUL character, which ends a text");
        if (codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0)) {
            return Fail(error, line.number, "a control character in the text");
        }
    }
    return true;
}

bool SplitLines(std::string_view text, std::vector<Line>& lines, PuzzleTextError& error) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back({number, Trim(text.substr(0, end))});
        if (!CheckCharacters(lines.back(), error))
            return false;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return true;
}

enum class Section { Title, Author, Copyright, Grid, Clues, Notes, None };

constexpr std::array<std::string_view, 6> sectionWords = {"Title", "Author", "Copyright",
                                                          "Grid",  "Clues",  "Notes"};

// The section that the line begins, with the rest of the line left in it.
Section TakeSectionWord(Line& line) {
    for (std::size_t index = 0; index < sectionWords.size(); ++index) {
        const std::string_view word = sectionWords[index];
        if (!line.text.starts_with(word))
            continue;
        const std::string_view rest = Trim(line.text.substr(word.size()));
        if (!rest.starts_with(':'))
            continue;
        line.text = Trim(rest.substr(1));
        return static_cast<Section>(index);
    }
    return Section::None;
}

bool ReadRow(Line line, Source& source, PuzzleTextError& error) {
    constexpr std::string_view squares = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz#.";
    const std::size_t bad = line.text.find_first_not_of(squares);
    if (bad != std::string_view::npos) {
        std::size_t end = bad;
        DecodeCodePoint(line.text, end);
        return Fail(error, line.number,
                    Quote(line.text.substr(bad, end - bad)) +
                        " in the grid: a square is a letter, or # or . when it is black");
    }
    const std::size_t width = source.rows.empty() ? line.text.size() : source.rows[0].text.size();
    if (line.text.size() != width) {
        return Fail(error, line.number,
                    "a row of " + std::to_string(line.text.size()) +
                        " squares, but the first row has " + std::to_string(width));
    }
    if (width > largestSide || source.rows.size() == largestSide) {
        return Fail(error, line.number, "the grid is larger than 255 squares");
    }
    source.rows.push_back(line);
    return true;
}

// Takes a clue number off the front of the text: its digits, at most five, which hold any number
// that a grid can have. Zero when there is none.
int TakeNumber(std::string_view& text) {
    int number = 0;
    for (int digits = 0; digits < 5 && !text.empty() && text[0] >= '0' && text[0] <= '9';
         ++digits) {
        number = number * 10 + (text[0] - '0');
        text.remove_prefix(1);
    }
    return number;
}

bool ReadClue(Line line, Source& source, PuzzleTextError& error) {
    std::string_view rest = line.text;
    const int number = TakeNumber(rest);
    const std::size_t colon = std::min(rest.find(':'), rest.size());
    const std::string_view direction = Trim(rest.substr(0, colon));
    if (number == 0 || colon == rest.size() || (direction != "across" && direction != "down")) {
        return Fail(error, line.number, "expected a clue like \"12 across: Its text\"");
    }
    const std::string_view text = Trim(rest.substr(colon + 1));
    if (text.empty())
        return Fail(error, line.number, "this clue has no text");
    source.clues.push_back(
        {line.number, number, direction == "down" ? Direction::Down : Direction::Across, text});
    return true;
}

bool ReadLine(Section section, Line line, Source& source, PuzzleTextError& error) {
    if (section == Section::Notes) {
        // The line ends of the system the format comes from.
        if (!source.notes.empty())
            source.notes += "\r\n";
        source.notes += line.text;
        return true;
    }
    if (line.text.empty())
        return true;
    if (section == Section::Grid)
        return ReadRow(line, source, error);
    if (section == Section::Clues)
        return ReadClue(line, source, error);
    return Fail(error, line.number, Quote(line.text) + " belongs to no section");
}

// Takes what stands on the line of the section's word.
bool BeginSection(Section section, Line line, Source& source, PuzzleTextError& error) {
    switch (section) {
        case Section::Title:
            source.title = line.text;
            return true;
        case Section::Author:
            source.author = line.text;
            return true;
        case Section::Copyright:
            source.copyright = line.text;
            return true;
        default:
            return ReadLine(section, line, source, error);
    }
}

bool ReadSections(const std::vector<Line>& lines, Source& source, PuzzleTextError& error) {
    std::array<bool, sectionWords.size()> seen = {};
    Section current = Section::None;
    for (Line line : lines) {
        const Section begun = current == Section::Notes ? Section::None : TakeSectionWord(line);
        if (begun == Section::None) {
            if (!ReadLine(current, line, source, error))
                return false;
            continue;
        }
        const auto index = static_cast<std::size_t>(begun);
        if (seen[index]) {
            return Fail(error, line.number, "a second section " + Quote(sectionWords[index]));
        }
        seen[index] = true;
        if (!BeginSection(begun, line, source, error))
            return false;
        const bool oneLine = begun < Section::Grid;
        current = oneLine ? Section::None : begun;
    }
    while (source.notes.ends_with("\r\n"))
        source.notes.resize(source.notes.size() - 2);
    return true;
}

// ---- The grid and its words ----

struct Grid {
    std::size_t width = 0;
    std::size_t height = 0;
    std::string squares;  // row by row, upper-case letters and '.'

    bool IsWhite(std::size_t row, std::size_t column) const {
        return squares[row * width + column] != blackSquare;
    }
};

struct Word {
    int number;
    Direction direction;
    int line;  // of the row where the word starts
    std::size_t column;
};

char NormaliseSquare(char square) {
    if (square == '#')
        return blackSquare;
    return static_cast<char>(std::toupper(static_cast<unsigned char>(square)));
}

bool BuildGrid(const Source& source, int lastLine, Grid& grid, PuzzleTextError& error) {
    if (source.rows.empty())
        return Fail(error, lastLine, "the puzzle has no grid");
    grid.width = source.rows[0].text.size();
    grid.height = source.rows.size();
    for (const Line& row : source.rows) {
        for (const char square : row.text)
            grid.squares.push_back(NormaliseSquare(square));
    }
    if (grid.squares.find_first_not_of(blackSquare) == std::string::npos) {
        return Fail(error, source.rows[0].number, "the grid has no letter in it");
    }
    return true;
}

bool StartsAcross(const Grid& grid, std::size_t row, std::size_t column) {
    return grid.IsWhite(row, column) && (column == 0 || !grid.IsWhite(row, column - 1)) &&
           column + 1 < grid.width && grid.IsWhite(row, column + 1);
}

bool StartsDown(const Grid& grid, std::size_t row, std::size_t column) {
    return grid.IsWhite(row, column) && (row == 0 || !grid.IsWhite(row - 1, column)) &&
           row + 1 < grid.height && grid.IsWhite(row + 1, column);
}

// The words in the order in which the file lists their clues: by number, across before down.
std::vector<Word> NumberWords(const Grid& grid, const std::vector<Line>& rows) {
    std::vector<Word> words;
    int number = 1;
    for (std::size_t row = 0; row < grid.height; ++row) {
        for (std::size_t column = 0; column < grid.width; ++column) {
            const bool across = StartsAcross(grid, row, column);
            const bool down = StartsDown(grid, row, column);
            const int line = rows[row].number;
            if (across)
                words.push_back({number, Direction::Across, line, column});
            if (down)
                words.push_back({number, Direction::Down, line, column});
            if (across || down)
                ++number;
        }
    }
    return words;
}

std::pair<int, Direction> ClueOrder(int number, Direction direction) {
    return {number, direction};
}

std::string NameWord(int number, Direction direction) {
    return std::to_string(number) + (direction == Direction::Across ? " across" : " down");
}

bool CheckForDoubles(const std::vector<Clue>& sorted, PuzzleTextError& error) {
    const auto doubled =
        std::adjacent_find(sorted.begin(), sorted.end(), [](const Clue& one, const Clue& other) {
            return ClueOrder(one.number, one.direction) == ClueOrder(other.number, other.direction);
        });
    if (doubled == sorted.end())
        return true;
    const Clue& second = doubled[1];
    return Fail(error, second.line,
                "a second clue for " + NameWord(second.number, second.direction) +
                    "; the first is in line " + std::to_string(doubled->line));
}

bool FailForExtraClue(const Clue& clue, PuzzleTextError& error) {
    return Fail(error, clue.line,
                "the grid has no word at " + NameWord(clue.number, clue.direction));
}

bool FailForMissingClue(const Word& word, PuzzleTextError& error) {
    return Fail(error, word.line,
                "no clue for " + NameWord(word.number, word.direction) +
                    ", which starts here in column " + std::to_string(word.column + 1));
}

// Puts the clues into the order of the words, and makes sure that they belong together one to
// one. A clue that fits no word is named before a word without a clue: a mistyped number makes
// one of each, and its line is the one to mend.
bool SortClues(const std::vector<Word>& words, std::vector<Clue>& clues, PuzzleTextError& error) {
    std::stable_sort(clues.begin(), clues.end(), [](const Clue& one, const Clue& other) {
        return ClueOrder(one.number, one.direction) < ClueOrder(other.number, other.direction);
    });
    if (!CheckForDoubles(clues, error))
        return false;
    const Word* missing = nullptr;
    auto clue = clues.begin();
    for (const Word& word : words) {
        const auto order = ClueOrder(word.number, word.direction);
        if (clue != clues.end() && ClueOrder(clue->number, clue->direction) < order)
            break;
        if (clue != clues.end() && ClueOrder(clue->number, clue->direction) == order) {
            ++clue;
        } else if (missing == nullptr) {
            missing = &word;
        }
    }
    if (clue != clues.end())
        return FailForExtraClue(*clue, error);
    return missing == nullptr || FailForMissingClue(*missing, error);
}

// ---- The file ----

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
    for (const Clue& clue : source.clues)
        texts.clues.push_back(EncodeText(clue.text));
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
        if (text.empty())
            return;
        checksum = AddToChecksum(checksum, std::string_view(text.c_str(), text.size() + 1));
    };
    addWithNul(texts.title);
    addWithNul(texts.author);
    addWithNul(texts.copyright);
    for (const std::string& clue : texts.clues)
        checksum = AddToChecksum(checksum, clue);
    addWithNul(texts.notes);
    return checksum;
}

std::string MakePlayerGrid(const std::string& solution) {
    std::string player = solution;
    for (char& square : player) {
        if (square != blackSquare)
            square = '-';
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

Bytes WriteFile(const Grid& grid, const FileTexts& texts) {
    const std::string player = MakePlayerGrid(grid.squares);
    std::string file = MakeHeader(grid, player, texts) + grid.squares + player;
    const auto addText = [&file](const std::string& text) { file.append(text).push_back('\0'); };
    addText(texts.title);
    addText(texts.author);
    addText(texts.copyright);
    for (const std::string& clue : texts.clues)
        addText(clue);
    addText(texts.notes);
    return Bytes(file.begin(), file.end());
}

}  // namespace

std::optional<std::vector<unsigned char>> CompilePuzzle(std::string_view text,
                                                        PuzzleTextError& error) {
    std::vector<Line> lines;
    Source source;
    Grid grid;
    if (!SplitLines(text, lines, error) || !ReadSections(lines, source, error)) {
        return std::nullopt;
    }
    const int lastLine = lines.empty() ? 1 : lines.back().number;
    if (!BuildGrid(source, lastLine, grid, error))
        return std::nullopt;
    if (!SortClues(NumberWords(grid, source.rows), source.clues, error))
        return std::nullopt;
    return WriteFile(grid, EncodeTexts(source));
}
