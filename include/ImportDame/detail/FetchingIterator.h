/// @file
/// The iterator with which range-based loops walk the large collections.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace ImportDame::detail {

/// An iterator of an array-based collection that fetches elements into the cache some places before they are reached:
/// elements lie apart, and a large model would be walked at the speed of its memory. Converts to the collection's
/// `iterator`; what is made from one fetches nothing.
///
/// `fetchedSize` is how much of each element is fetched, in bytes from its start.
template <class Iterator, std::size_t fetchedSize>
class FetchingIterator : public Iterator {
public:
    FetchingIterator() = default;

    FetchingIterator(const Iterator& position) : Iterator(position), m_end(this->Unwrap()) {}

    /// Fetches up to the end, which lies in the same collection.
    FetchingIterator(const Iterator& position, Iterator end) : Iterator(position), m_end(end.Unwrap()) {
        for (std::ptrdiff_t ahead = 1; ahead < s_distance; ++ahead)
            Fetch(ahead);
    }

    FetchingIterator& operator++() {
        Fetch(s_distance);
        Iterator::operator++();
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
        if (m_end - this->Unwrap() <= ahead)
            return;
        const void* const element = this->Unwrap()[ahead];
        for (std::size_t offset = 0; offset < fetchedSize; offset += s_cacheLine)
            __builtin_prefetch(static_cast<const char*>(element) + offset);
    }

    Position m_end{};
};

} // namespace ImportDame::detail
