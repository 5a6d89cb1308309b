#include "tools/puzzle_source.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "platform/text.h"
#include "tools/puzzle_characters.h"

namespace puzzle_text {

namespace {

constexpr std::size_t largestSide = 255;  // the file holds each side in one byte

std::string_view Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string Quote(std::string_view text) {
    return '"' + std::string(text) + '"';
}

bool CheckCharacters(Line line, PuzzleTextError& error) {
    if (!IsUtf8(line.text)) {
        return Fail(error, line.number, "this line is not UTF-8 text");
    }
    for (const char16_t character : WidenText(line.text)) {
        if (character == 0) {
            return Fail(error, line.number, "a NUL character, which ends a text");
        }
        if (character < 0x20 || (character >= 0x7F && character < 0xA0)) {
            return Fail(error, line.number, "a control character in the text");
        }
    }
    return true;
}

bool SplitLines(std::string_view text, std::vector<Line>& lines, PuzzleTextError& error) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back({number, Trim(text.substr(0, end))});
        if (!CheckCharacters(lines.back(), error)) {
            return false;
        }
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
        if (!line.text.starts_with(word)) {
            continue;
        }
        const std::string_view rest = Trim(line.text.substr(word.size()));
        if (!rest.starts_with(':')) {
            continue;
        }
        line.text = Trim(rest.substr(1));
        return static_cast<Section>(index);
    }
    return Section::None;
}

bool ReadRow(Line line, Source& source, PuzzleTextError& error) {
    constexpr std::string_view squares = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz#.";
    const std::size_t bad = line.text.find_first_not_of(squares);
    if (bad != std::string_view::npos) {
        return Fail(error, line.number,
                    Quote(FirstCharacter(line.text.substr(bad))) +
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
    if (text.empty()) {
        return Fail(error, line.number, "this clue has no text");
    }
    source.clues.push_back(
        {line.number, number, direction == "down" ? Direction::Down : Direction::Across, text});
    return true;
}

bool ReadLine(Section section, Line line, Source& source, PuzzleTextError& error) {
    if (section == Section::Notes) {
        // The line ends of the system the format comes from.
        if (!source.notes.empty()) {
            source.notes += "\r\n";
        }
        source.notes += line.text;
        return true;
    }
    if (line.text.empty()) {
        return true;
    }
    if (section == Section::Grid) {
        return ReadRow(line, source, error);
    }
    if (section == Section::Clues) {
        return ReadClue(line, source, error);
    }
    return Fail(error, line.number, Quote(line.text) + " belongs to no section");
}

// Takes what stands on the line of the section's word.
bool BeginSection(Section section, Line line, Source& source, PuzzleTextError& error) {
    switch (section) {
        case Section::Title: source.title = line.text; return true;
        case Section::Author: source.author = line.text; return true;
        case Section::Copyright: source.copyright = line.text; return true;
        default: return ReadLine(section, line, source, error);
    }
}

bool ReadSections(const std::vector<Line>& lines, Source& source, PuzzleTextError& error) {
    std::array<bool, sectionWords.size()> seen = {};
    Section current = Section::None;
    for (Line line : lines) {
        const Section begun = current == Section::Notes ? Section::None : TakeSectionWord(line);
        if (begun == Section::None) {
            if (!ReadLine(current, line, source, error)) {
                return false;
            }
            continue;
        }
        const auto index = static_cast<std::size_t>(begun);
        if (seen[index]) {
            return Fail(error, line.number, "a second section " + Quote(sectionWords[index]));
        }
        seen[index] = true;
        if (!BeginSection(begun, line, source, error)) {
            return false;
        }
        const bool oneLine = begun < Section::Grid;
        current = oneLine ? Section::None : begun;
    }
    while (source.notes.ends_with("\r\n")) {
        source.notes.resize(source.notes.size() - 2);
    }
    return true;
}

}  // namespace

bool Fail(PuzzleTextError& error, int line, std::string reason) {
    error = {line, std::move(reason)};
    return false;
}

bool ReadSource(std::string_view text, Source& source, PuzzleTextError& error) {
    std::vector<Line> lines;
    if (!SplitLines(text, lines, error) || !ReadSections(lines, source, error)) {
        return false;
    }
    source.lastLine = lines.empty() ? 1 : lines.back().number;
    return true;
}

}  // namespace puzzle_text
