// compile_puzzle [--bundled] INPUT.txt OUTPUT.puz
//
// With --bundled, more is asked of the puzzle: well_made.h.
//
// Exit status 0 when the output was written; 1 when it was not and the old output, if any, is as
// it was; 2 when the command line is wrong.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "tools/puzzle_text.h"

namespace {

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    // A folder opens well, and fails only when it is read.
    if (!file || std::filesystem::is_directory(path)) {
        return std::nullopt;
    }
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) {
        return std::nullopt;
    }
    return text;
}

bool WriteBytes(const std::string& path, const std::vector<unsigned char>& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();  // a full disk may show only here
    return !file.fail();
}

// A build that is stopped midway must not find half a puzzle and call it up to date.
bool ReplaceFile(const std::string& path, const std::vector<unsigned char>& bytes) {
    const std::string temporary = path + ".tmp";
    std::error_code problem;
    if (WriteBytes(temporary, bytes)) {
        std::filesystem::rename(temporary, path, problem);
        if (!problem) {
            return true;
        }
    }
    std::filesystem::remove(temporary, problem);
    return false;
}

int CompileFile(const std::string& input, const std::string& output, Standard standard) {
    const std::optional<std::string> text = ReadWholeFile(input);
    if (!text) {
        std::cerr << input << ": cannot be read\n";
        return 1;
    }
    PuzzleTextError error;
    const std::optional<std::vector<unsigned char>> bytes = CompilePuzzle(*text, error, standard);
    if (!bytes) {
        std::cerr << input << ':' << error.line << ": " << error.reason << '\n';
        return 1;
    }
    std::error_code ignored;
    if (std::filesystem::equivalent(input, output, ignored)) {
        std::cerr << output << ": is the puzzle's own text, and is not written over\n";
        return 1;
    }
    if (!ReplaceFile(output, *bytes)) {
        std::cerr << output << ": cannot be written\n";
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    std::vector<std::string> files(arguments + 1, arguments + argumentCount);
    const bool bundled = !files.empty() && files[0] == "--bundled";
    if (bundled) {
        files.erase(files.begin());
    }
    if (files.size() != 2) {
        std::cerr << "usage: compile_puzzle [--bundled] INPUT.txt OUTPUT.puz\n";
        return 2;
    }
    return CompileFile(files[0], files[1], bundled ? Standard::Bundled : Standard::Any);
}
