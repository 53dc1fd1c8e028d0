/// @file
/// The set, ordered by address, that owns the elements of a set-based collection.
#pragma once

#include <ImportDame/detail/OwningArray.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
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

    T* operator*() const noexcept { return m_element; }

    SetPosition& operator++() noexcept {
        *this = SetPosition(*m_elements, PlaceOf(*m_elements, m_element) + 1);
        return *this;
    }

    bool operator==(const SetPosition&) const noexcept = default;

private:
    friend class OwningSet<T>;

    using Elements = OwningArray<T>;
    using Place = typename Elements::Position;

    SetPosition(const Elements& elements, Place place) noexcept {
        if (place != elements.End()) {
            m_elements = &elements;
            m_element = *place;
        }
    }

    /// Where this element is, or would be.
    static Place PlaceOf(const Elements& elements, const T* element) noexcept {
        return std::lower_bound(elements.Begin(), elements.End(), element, std::less<>());
    }

    const Elements* m_elements = nullptr; ///< Null at the end.
    T* m_element = nullptr;
};

/// Owns its elements in the order of their addresses; they leave it before they die. Operations that may allocate leave
/// the set as it was when they fail. An array of them: sets have few elements, and those that came one after another
/// mostly lie in that order, or in the opposite one, and are then added in constant time.
template <class T>
class OwningSet {
public:
    using Position = SetPosition<T>;
    using Owner = typename OwningArray<T>::Owner;

    [[nodiscard]] Position Begin() const noexcept { return Position(m_elements, m_elements.Begin()); }

    [[nodiscard]] Position End() const noexcept { return Position(); }

    [[nodiscard]] std::size_t Count() const noexcept { return m_elements.Count(); }

    [[nodiscard]] bool IsEmpty() const noexcept { return m_elements.IsEmpty(); }

    /// Creates an element from the arguments and inserts it.
    template <class Element = T, class... Arguments>
    Element& InsertNew(Arguments&&... arguments) {
        auto element = std::make_unique<Element>(std::forward<Arguments>(arguments)...);
        m_elements.Insert(Position::PlaceOf(m_elements, element.get()), *element);
        return *element.release();
    }

    /// Takes an element out. Requires: position denotes an element of this set.
    Owner TakeOut(Position position) noexcept {
        return m_elements.TakeOut(Position::PlaceOf(m_elements, position.m_element));
    }

    /// Removes the first element until none is left.
    void Clear() noexcept { m_elements.Clear(); }

    /// The place of that very object, or the end.
    [[nodiscard]] Position Find(const T& element) const noexcept {
        const auto place = Position::PlaceOf(m_elements, &element);
        if (place == m_elements.End() || *place != &element)
            return End();
        return Position(m_elements, place);
    }

    /// Whether both hold the very same objects.
    friend bool operator==(const OwningSet& left, const OwningSet& right) noexcept {
        return left.m_elements == right.m_elements;
    }

private:
    OwningArray<T> m_elements;
};

} // namespace ImportDame::detail
