// The program's resources go by numbers.
#pragma once

#include <algorithm>

// Null when there is none of that number.
template <typename Resources>
auto FindById(const Resources& resources, int id) {
    const auto found = std::find_if(resources.begin(), resources.end(),
                                    [id](const auto& each) { return each.id == id; });
    return found == resources.end() ? nullptr : &*found;
}
