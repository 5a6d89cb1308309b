#include "play/settings.h"

#include <algorithm>
#include <iterator>

const BoardSize& ChosenSize() {
    const BoardSize* chosen =
        std::find_if(std::begin(boardSizes), std::end(boardSizes),
                     [](const BoardSize& size) { return Magnification.*size.flag == 1; });
    return chosen == std::end(boardSizes) ? *std::prev(chosen) : *chosen;
}

void ChooseSize(const BoardSize& size) {
    for (const BoardSize& other : boardSizes) {
        Magnification.*other.flag = &other == &size ? 1 : 0;
    }
}
