#include "tools/puzzle_text.h"

#include "tools/puzzle_writer.h"
#include "tools/well_made.h"

std::optional<std::vector<unsigned char>> CompilePuzzle(std::string_view text,
                                                        PuzzleTextError& error, Standard standard) {
    puzzle_text::Source source;
    puzzle_text::Grid grid;
    if (!puzzle_text::ReadSource(text, source, error) ||
        !puzzle_text::BuildGrid(source, grid, error) ||
        !puzzle_text::SortClues(grid, source, error) ||
        (standard == Standard::Bundled && !puzzle_text::IsWellMade(grid, source, error))) {
        return std::nullopt;
    }
    return puzzle_text::WritePuzzle(grid, source);
}
