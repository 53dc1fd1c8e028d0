/// @file
/// The set, ordered by address, that owns the elements of a set-based collection.
#pragma once

#include <ImportDame/detail/Memory.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <utility>

namespace ImportDame::detail {

/// Owns its elements in the order of their addresses; they leave it before they die. Operations that may allocate leave
/// the set as it was when they fail.
template <class T>
class OwningSet {
    using Elements = std::set<T*, std::less<>, Allocator<T*>>;

public:
    /// A place of an element; `**position` is the element.
    using Position = typename Elements::const_iterator;
    using Owner = std::unique_ptr<T>;

    OwningSet() = default;
    OwningSet(const OwningSet&) = delete;
    OwningSet& operator=(const OwningSet&) = delete;

    ~OwningSet() { Clear(); }

    [[nodiscard]] Position Begin() const noexcept { return m_elements.begin(); }

    [[nodiscard]] Position End() const noexcept { return m_elements.end(); }

    [[nodiscard]] std::size_t Count() const noexcept { return m_elements.size(); }

    [[nodiscard]] bool IsEmpty() const noexcept { return m_elements.empty(); }

    /// Creates an element from the arguments and inserts it.
    template <class Element = T, class... Arguments>
    Element& InsertNew(Arguments&&... arguments) {
        auto element = std::make_unique<Element>(std::forward<Arguments>(arguments)...);
        m_elements.insert(element.get());
        return *element.release();
    }

    /// Takes an element out. Requires: position denotes an element of this set.
    Owner TakeOut(Position position) noexcept {
        Owner element(*position);
        m_elements.erase(position);
        return element;
    }

    /// Removes the first element until none is left.
    void Clear() noexcept {
        while (!IsEmpty())
            TakeOut(Begin());
    }

    /// The place of that very object, or the end.
    [[nodiscard]] Position Find(const T& element) const noexcept {
        return m_elements.find(const_cast<T*>(&element)); // the key is only compared
    }

    /// Whether both hold the very same objects.
    friend bool operator==(const OwningSet& left, const OwningSet& right) noexcept {
        return left.m_elements == right.m_elements;
    }

private:
    Elements m_elements;
};

} // namespace ImportDame::detail
