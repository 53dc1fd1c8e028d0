/// @file
/// The iterator with which range-based loops walk the large collections.
#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>

namespace ImportDame::detail {

/// A forward iterator of an array-based collection that fetches elements into the cache some places before they are
/// reached: elements lie apart, and a large model would be walked at the speed of its memory. Valid as long as the
/// collection's `iterator` at its place is, to which it converts; what is made from such an iterator fetches nothing.
///
/// `fetchedSize` is how much of each element is fetched, in bytes from its start.
template <class Iterator, std::size_t fetchedSize>
class FetchingIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = typename Iterator::value_type;
    using difference_type = typename Iterator::difference_type;
    using pointer = typename Iterator::pointer;
    using reference = typename Iterator::reference;

    FetchingIterator() = default;

    FetchingIterator(const Iterator& place) : m_place(place), m_end(m_place.Unwrap()) {}

    /// Fetches up to the end, which lies in the same collection.
    FetchingIterator(const Iterator& place, Iterator end) : m_place(place), m_end(end.Unwrap()) {
        for (std::ptrdiff_t ahead = 1; ahead < s_distance; ++ahead)
            Fetch(ahead);
    }

    operator const Iterator&() const { return m_place; }

    bool operator==(const FetchingIterator& other) const { return m_place == other.m_place; }

    bool operator==(const Iterator& other) const { return m_place == other; }

    reference operator*() const { return *m_place; }

    pointer operator->() const { return &**this; }

    FetchingIterator& operator++() {
        Fetch(s_distance);
        ++m_place;
        return *this;
    }

    FetchingIterator operator++(int) {
        FetchingIterator before(*this);
        ++*this;
        return before;
    }

private:
    using Position = std::remove_reference_t<decltype(std::declval<Iterator&>().Unwrap())>;

    static constexpr std::ptrdiff_t s_distance = 8;
    static constexpr std::size_t s_cacheLine = 64;

    /// The element so many places ahead, if there is one.
    void Fetch(std::ptrdiff_t ahead) {
        if (m_end - m_place.Unwrap() <= ahead)
            return;
        const void* const element = m_place.Unwrap()[ahead];
        for (std::size_t offset = 0; offset < fetchedSize; offset += s_cacheLine)
            __builtin_prefetch(static_cast<const char*>(element) + offset);
    }

    Iterator m_place;
    Position m_end{};
};

} // namespace ImportDame::detail
