/// @file
/// The iterator that every owning collection hands out.
#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>

namespace ImportDame {

/// A position in an owning collection that hands out the element itself, not the pointer to it.
///
/// `It` is the position in the collection's internal container, `Reference` the element type as `T&`. A forward
/// iterator of the standard library. A template of the header alone, so that a walk is compiled into its caller. Valid
/// only while the collection is not changed at or before its position; in a collection that keeps its elements in an
/// array (a `detail::OwningArray` or `detail::InterchangeableArray` in its `iterator`), adding an element anywhere may
/// move them all. Dereferencing or advancing the end, or an iterator without a position, is undefined.
template <class It, class Reference>
class VExternalIterator {
    static_assert(std::is_lvalue_reference_v<Reference>);

public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::remove_cv_t<std::remove_reference_t<Reference>>;
    using difference_type = std::ptrdiff_t;
    using pointer = std::add_pointer_t<Reference>;
    using reference = Reference;

    /// An iterator without a position; equal only to others without one.
    VExternalIterator() = default;

    explicit VExternalIterator(It position) : m_position(position) {}

    VExternalIterator(const VExternalIterator&) = default;
    VExternalIterator& operator=(const VExternalIterator&) = default;
    virtual ~VExternalIterator() = default;

    bool operator==(const VExternalIterator& other) const { return m_position == other.m_position; }

    bool operator!=(const VExternalIterator& other) const { return !(*this == other); }

    Reference operator*() const { return **m_position; }

    pointer operator->() const { return &**this; }

    VExternalIterator& operator++() {
        ++m_position;
        return *this;
    }

    VExternalIterator operator++(int) {
        VExternalIterator before(*this);
        ++m_position;
        return before;
    }

    /// The internal position, for the collection and for classes derived from it.
    It& Unwrap() { return m_position; }

private:
    It m_position{};
};

} // namespace ImportDame
