// A record of progress, written with a pencil.
#pragma once

#include "platform/types.h"
#include "support/boards.h"

struct PlainSettings {
    int size = 0;  // 0 small, 1 medium, 2 large
    bool autoSkip = false;
    bool numbers = false;
    COLORREF letterCells = RGB(255, 255, 255);
    COLORREF squares = RGB(0, 0, 0);
    bool operator==(const PlainSettings&) const = default;
};

// A record as somebody would write it with a pencil: every field at its place, zeros elsewhere.
inline std::string PlainRecord(const std::string& path, const BoardRows& letters,
                               const PlainSettings& settings) {
    std::string record = path + '\0' + std::to_string(letters.size());
    record.resize(path.size() + 4);
    record += std::to_string(letters[0].size());
    record.resize(path.size() + 7);
    record += Joined(letters);
    for (int number : {settings.size, settings.autoSkip ? 1 : 0, settings.numbers ? 1 : 0}) {
        record += '\0' + std::to_string(number);
    }
    record += '\0';
    for (COLORREF color : {settings.letterCells, settings.squares}) {
        for (int part : {GetRValue(color), GetGValue(color), GetBValue(color)}) {
            const std::size_t slot = record.size();
            record += std::to_string(part);
            record.resize(slot + 4);
        }
    }
    record.resize(4096);
    return record;
}
