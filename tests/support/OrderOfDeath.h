/// @file
/// Observes the order in which objects die that cannot tell of it themselves.
#pragma once

#include "support/AllocationControl.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace TestSupport {

namespace Internal {

/// What `OrderOfDeath` watches; one at a time.
struct Watch {
    const std::vector<const void*>* objects;
    std::vector<std::size_t> order;
};

inline Watch* g_watch = nullptr;

inline void NoteDeath(const void* block) noexcept {
    const auto& objects = *g_watch->objects;
    const auto found = std::find(objects.begin(), objects.end(), block);
    if (found != objects.end() && g_watch->order.size() < g_watch->order.capacity())
        g_watch->order.push_back(static_cast<std::size_t>(found - objects.begin()));
}

} // namespace Internal

/// Runs the operation and answers which of the objects died in it, as indices, in the order in which the memory of the
/// objects was freed: that is the last thing that happens to an object. Each has to be a block of its own that the
/// library allocated.
template <class Operation>
std::vector<std::size_t> OrderOfDeath(const std::vector<const void*>& objects, Operation operation) {
    Internal::Watch watch{&objects, {}};
    watch.order.reserve(2 * objects.size()); // room for objects that seem to die twice; the observer must not allocate
    Internal::g_watch = &watch;
    ObserveFrees(&Internal::NoteDeath);
    operation();
    ObserveFrees(nullptr);
    return watch.order;
}

/// Runs the operation and looks around when the block is freed in it; answers what the look saw, or nothing when the
/// block lives on. The block has to be one that the library allocated; the look must neither allocate nor free.
template <class Operation, class Look>
auto SeenAtDeath(const void* block, Operation operation, Look look) {
    struct Sight {
        const void* block;
        Look look;
        std::optional<decltype(look())> seen;
    };

    static Sight* sight = nullptr;
    Sight current{block, look, std::nullopt};
    sight = &current;
    ObserveFrees([](const void* freed) noexcept {
        if (freed == sight->block)
            sight->seen = sight->look();
    });
    operation();
    ObserveFrees(nullptr);
    return current.seen;
}

} // namespace TestSupport
