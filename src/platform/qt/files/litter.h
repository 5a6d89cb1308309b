// What a kill leaves behind: the temporary file that was to take the place of another.
#pragma once

// Removes it from the game's folders and the documents when nobody can be writing it any more.
void RemoveLitter();
