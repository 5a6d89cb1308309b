// Boards and the bytes of puzzle files, good and hostile.
#pragma once

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "model/numbering.h"
#include "model/puzzle.h"
#include "model/selection.h"

using BoardRows = std::vector<std::string>;

struct RawPuzzle {
    int width = 0;
    int height = 0;
    std::string grids;               // the solution, then the player's grid
    std::vector<std::string> texts;  // title, author, copyright, clues, notes

    std::string Bytes() const {
        std::string bytes(gridOffset, '\x01');
        bytes[widthOffset] = static_cast<char>(width);
        bytes[heightOffset] = static_cast<char>(height);
        bytes += grids;
        for (const std::string& text : texts) {
            bytes.append(text).push_back('\0');
        }
        return bytes;
    }
};

// Nothing entered yet.
inline BoardRows EmptyBoard(BoardRows rows) {
    for (std::string& row : rows) {
        for (char& cell : row) {
            cell = cell == '.' ? '.' : '-';
        }
    }
    return rows;
}

inline std::string Joined(const BoardRows& rows) {
    return std::accumulate(rows.begin(), rows.end(), std::string());
}

inline RawPuzzle PuzzleOfBoard(const BoardRows& rows, std::vector<std::string> texts) {
    return {static_cast<int>(rows[0].size()), static_cast<int>(rows.size()),
            Joined(rows) + Joined(EmptyBoard(rows)), std::move(texts)};
}

// Rows of different letters, so that a cell taken from the wrong place shows.
inline BoardRows RandomBoard(std::mt19937& random, int width, int height, unsigned blackPercent) {
    BoardRows rows(static_cast<std::size_t>(height),
                   std::string(static_cast<std::size_t>(width), '.'));
    for (std::string& row : rows) {
        for (char& cell : row) {
            cell = random() % 100 < blackPercent ? '.' : static_cast<char>('A' + random() % 26);
        }
    }
    return rows;
}

// The clue of a word by its index; some are longer than any bar.
inline std::string ClueOf(std::size_t word) {
    return "Clue " + std::to_string(word) + std::string(word % 7 == 5 ? 99 : 0, 'W');
}

struct PlainWord {
    int row = 0;
    int col = 0;
    int length = 0;
    int direction = 0;
    std::size_t index = 0;  // in the order of the clues

    bool Contains(int cellRow, int cellCol) const {
        return direction == 0 ? cellRow == row && cellCol >= col && cellCol < col + length
                              : cellCol == col && cellRow >= row && cellRow < row + length;
    }
};

// The slow, obvious way: from every cell with none before it go on to the next black square. In the
// order of their clues: by first cell, across before down.
inline std::vector<PlainWord> WordsOf(const BoardRows& rows) {
    std::vector<PlainWord> words;
    const int height = static_cast<int>(rows.size());
    const int width = static_cast<int>(rows[0].size());
    const auto isLetter = [&](int row, int col) {
        return row >= 0 && row < height && col >= 0 && col < width &&
               rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] != '.';
    };
    for (int i = 0; i < 2 * width * height; ++i) {
        PlainWord word{i / 2 / width, i / 2 % width, 0, i % 2, words.size()};
        const int down = word.direction;
        const int right = 1 - down;
        while (isLetter(word.row + word.length * down, word.col + word.length * right)) {
            ++word.length;
        }
        if (word.length >= 2 && !isLetter(word.row - down, word.col - right)) {
            words.push_back(word);
        }
    }
    return words;
}

// The cell's word in that direction; the cell alone, behind all words, when it has none.
inline PlainWord WordAt(const std::vector<PlainWord>& words, int row, int col, int direction) {
    for (const PlainWord& word : words) {
        if (word.direction == direction && word.Contains(row, col)) {
            return word;
        }
    }
    return {row, col, 1, direction, words.size()};
}
