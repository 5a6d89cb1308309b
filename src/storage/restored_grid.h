// Letters that came back from a progress record, and whether they are this puzzle's.
#pragma once

// Parses the puzzle that was read. Restored letters whose size or black squares are not the
// puzzle's belong to another one that was saved under the same name: the file's own grid is taken
// instead.
void ParseWithRestoredGrid();
