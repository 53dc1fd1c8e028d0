#pragma once

#include <cstddef>

namespace ImportDame::detail {

/// Calls the operation with every element of an array-based collection that does not change meanwhile. Elements lie
/// apart: those some places ahead are fetched while the ones before them are worked on, which halves the time in a
/// large model.
template <class Collection, class Operation>
void WalkThrough(Collection& collection, Operation operation) {
    constexpr std::ptrdiff_t distance = 8;
    auto end = collection.End();
    auto position = collection.Begin();
    const auto fetch = [&](std::ptrdiff_t ahead) {
        if (end.Unwrap() - position.Unwrap() > ahead)
            __builtin_prefetch(position.Unwrap()[ahead]);
    };
    for (std::ptrdiff_t ahead = 1; ahead < distance; ++ahead)
        fetch(ahead);
    for (; position != end; ++position) {
        fetch(distance);
        operation(*position);
    }
}

} // namespace ImportDame::detail
