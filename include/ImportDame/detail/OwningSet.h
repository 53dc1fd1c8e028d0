/// @file
/// The set, ordered by address, that owns the elements of a set-based collection.
#pragma once

#include <ImportDame/detail/Memory.h>

#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <utility>

namespace ImportDame::detail {

template <class T>
class OwningSet;

/// A place in an `OwningSet`; `**position` is the element. Stays valid until its own element is taken out; the end is
/// the same place at all times.
template <class T>
class SetPosition {
public:
    SetPosition() noexcept = default;

    T* operator*() const noexcept { return *m_place; }

    SetPosition& operator++() noexcept {
        *this = SetPosition(*m_elements, std::next(m_place));
        return *this;
    }

    bool operator==(const SetPosition&) const noexcept = default;

private:
    friend class OwningSet<T>;

    struct Elements : std::set<T*, std::less<>, Allocator<T*>> {
        static void* operator new(std::size_t size) { return Allocate(size); }

        static void operator delete(void* elements, std::size_t size) noexcept { Free(elements, size); }
    };

    using Place = typename Elements::const_iterator;

    SetPosition(const Elements& elements, Place place) noexcept {
        if (place != elements.end()) {
            m_elements = &elements;
            m_place = place;
        }
    }

    const Elements* m_elements = nullptr; ///< Null at the end.
    Place m_place{};
};

/// Owns its elements in the order of their addresses; they leave it before they die. One pointer in size, as most sets
/// of a model are empty. Operations that may allocate leave the set as it was when they fail.
template <class T>
class OwningSet {
public:
    using Position = SetPosition<T>;
    using Owner = std::unique_ptr<T>;

    OwningSet() noexcept = default;
    OwningSet(const OwningSet&) = delete;
    OwningSet& operator=(const OwningSet&) = delete;

    ~OwningSet() { Clear(); }

    [[nodiscard]] Position Begin() const noexcept {
        return m_elements ? Position(*m_elements, m_elements->begin()) : Position();
    }

    [[nodiscard]] Position End() const noexcept { return Position(); }

    [[nodiscard]] std::size_t Count() const noexcept { return m_elements ? m_elements->size() : 0; }

    [[nodiscard]] bool IsEmpty() const noexcept { return Count() == 0; }

    /// Creates an element from the arguments and inserts it.
    template <class Element = T, class... Arguments>
    Element& InsertNew(Arguments&&... arguments) {
        auto element = std::make_unique<Element>(std::forward<Arguments>(arguments)...);
        if (!m_elements)
            m_elements = std::make_unique<Elements>();
        m_elements->insert(element.get());
        return *element.release();
    }

    /// Takes an element out. Requires: position denotes an element of this set.
    Owner TakeOut(Position position) noexcept {
        Owner element(*position);
        m_elements->erase(position.m_place);
        return element;
    }

    /// Removes the first element until none is left.
    void Clear() noexcept {
        while (!IsEmpty())
            TakeOut(Begin());
    }

    /// The place of that very object, or the end.
    [[nodiscard]] Position Find(const T& element) const noexcept {
        return m_elements
                   ? Position(*m_elements, m_elements->find(const_cast<T*>(&element))) // the key is only compared
                   : Position();
    }

    /// Whether both hold the very same objects.
    friend bool operator==(const OwningSet& left, const OwningSet& right) noexcept {
        return left.IsEmpty() ? right.IsEmpty() : right.m_elements && *left.m_elements == *right.m_elements;
    }

private:
    using Elements = typename Position::Elements;

    std::unique_ptr<Elements> m_elements; ///< Null until the first insertion.
};

} // namespace ImportDame::detail
