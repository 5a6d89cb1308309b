// The links that the player keeps, in their file in the program's folder: each link's bytes, in
// UTF-8, and a zero after it.
#pragma once

#include <string>
#include <vector>

constexpr int longestLink = 259;  // characters

// Whether the link can be listed uncut.
bool FitsList(const std::u16string& link);

// Reads at most the first 4096 bytes of the file. False, with the default link alone, when there is
// no file to be read.
bool ReadLinks(std::vector<std::u16string>& links);

// Without any link the file is deleted. Nobody is told of a failure, which leaves the old file.
void WriteLinks(const std::vector<std::u16string>& links);
