#pragma once

#include <cstddef>

namespace ImportDame::detail {

/// Calls the operation with every element of an array-based collection that does not change meanwhile. Elements lie
/// apart: one some places ahead is fetched while those before it are worked on, which halves the time in a large model.
template <class Collection, class Operation>
void WalkThrough(Collection& collection, Operation operation) {
    constexpr std::ptrdiff_t distance = 8;
    auto end = collection.End();
    for (auto position = collection.Begin(); position != end; ++position) {
        if (end.Unwrap() - position.Unwrap() > distance)
            __builtin_prefetch(position.Unwrap()[distance]);
        operation(*position);
    }
}

} // namespace ImportDame::detail
