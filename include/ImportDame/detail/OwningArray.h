/// @file
/// The dynamic array that owns the elements of an array-based collection.
#pragma once

#include <ImportDame/detail/Memory.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace ImportDame::detail {

/// Owns its elements in the order in which they came. One pointer in size; its storage starts with the first element.
///
/// Elements leave the array before they die, and `Clear` and the destructor let them die in order. Taking out the first
/// element costs constant time, so that clearing is linear; so does, on average, adding one at either end. Operations
/// that may allocate leave the array as it was when they fail. `Delete` destroys an element.
template <class T, class Delete = std::default_delete<T>>
class OwningArray {
public:
    /// A place of an element; `**position` is the element. Null in an array that never held one.
    using Position = T* const*;
    using Owner = std::unique_ptr<T, Delete>;

    OwningArray() noexcept = default;
    OwningArray(const OwningArray&) = delete;
    OwningArray& operator=(const OwningArray&) = delete;

    ~OwningArray() {
        Clear();
        FreeStorage(m_storage);
    }

    [[nodiscard]] Position Begin() const noexcept { return Slots(); }

    [[nodiscard]] Position End() const noexcept { return m_storage ? Slots() + m_storage->count : nullptr; }

    [[nodiscard]] std::size_t Count() const noexcept { return m_storage ? m_storage->count : 0; }

    [[nodiscard]] bool IsEmpty() const noexcept { return Count() == 0; }

    /// Requires: index < Count().
    [[nodiscard]] T& operator[](std::size_t index) const noexcept { return *Slots()[index]; }

    /// The last element, or null when there is none.
    [[nodiscard]] T* Last() const noexcept { return IsEmpty() ? nullptr : *(End() - 1); }

    /// Creates an element from the arguments and appends it.
    template <class Element = T, class... Arguments>
    Element& AppendNew(Arguments&&... arguments) {
        return InsertNew<Element>(End(), std::forward<Arguments>(arguments)...);
    }

    /// Creates an element from the arguments and inserts it before the position.
    template <class Element = T, class... Arguments>
    Element& InsertNew(Position position, Arguments&&... arguments) {
        auto element = std::make_unique<Element>(std::forward<Arguments>(arguments)...);
        Insert(position, *element);
        return *element.release();
    }

    /// Takes over an element at the end. When that fails, the element stays the caller's.
    void Append(T& element) { Insert(End(), element); }

    /// Takes over an element before the position. When that fails, the element stays the caller's. Moves the elements
    /// before the position or those behind it, whichever are fewer.
    void Insert(Position position, T& element) {
        const std::size_t index = IndexOf(position);
        const bool isInFront = index < Count() / 2;
        if (!HasRoom(isInFront))
            MakeRoom(isInFront);
        T** slots = Slots();
        if (isInFront) {
            std::copy(slots, slots + index, slots - 1);
            --m_storage->front;
            --slots;
        } else {
            std::copy_backward(slots + index, slots + m_storage->count, slots + m_storage->count + 1);
        }
        slots[index] = &element;
        ++m_storage->count;
    }

    /// Takes an element out; the following ones move up. Requires: position denotes an element.
    Owner TakeOut(Position position) noexcept {
        const std::size_t index = IndexOf(position);
        T** const slots = Slots();
        Owner element(slots[index]);
        if (index == 0)
            ++m_storage->front;
        else
            std::copy(slots + index + 1, slots + m_storage->count, slots + index);
        if (--m_storage->count == 0)
            m_storage->front = 0;
        return element;
    }

    /// Puts another element in the place of the first and hands that one out. Requires: not empty.
    T* ExchangeFirst(T* element) noexcept { return std::exchange(*Slots(), element); }

    /// Removes the first element until none is left, also those that a dying element adds.
    void Clear() noexcept {
        while (!IsEmpty())
            TakeOut(Begin());
    }

    /// The first element for which the predicate holds, or the end.
    template <class Predicate>
    [[nodiscard]] Position FindIf(Predicate predicate) const {
        return std::find_if(Begin(), End(), [&](T* element) { return predicate(*element); });
    }

    /// The place of that very object, or the end.
    [[nodiscard]] Position Find(const T& element) const noexcept { return std::find(Begin(), End(), &element); }

    /// Whether both hold the very same objects in the same order.
    friend bool operator==(const OwningArray& left, const OwningArray& right) noexcept {
        return std::equal(left.Begin(), left.End(), right.Begin(), right.End());
    }

private:
    struct alignas(T*) Storage {
        std::uint32_t capacity;
        std::uint32_t front; ///< Slots before the first element.
        std::uint32_t count;
    };

    static std::size_t StorageSize(std::size_t capacity) noexcept { return sizeof(Storage) + capacity * sizeof(T*); }

    static void FreeStorage(Storage* storage) noexcept {
        if (storage)
            Free(storage, StorageSize(storage->capacity));
    }

    static T** SlotsOf(Storage* storage) noexcept { return reinterpret_cast<T**>(storage + 1); }

    [[nodiscard]] T** Slots() const noexcept { return m_storage ? SlotsOf(m_storage) + m_storage->front : nullptr; }

    [[nodiscard]] std::size_t IndexOf(Position position) const noexcept {
        return m_storage ? static_cast<std::size_t>(position - Slots()) : 0;
    }

    /// Whether there is a free slot before the first element, or behind the last one.
    [[nodiscard]] bool HasRoom(bool inFront) const noexcept {
        return m_storage &&
               (inFront ? m_storage->front > 0 : m_storage->front + m_storage->count < m_storage->capacity);
    }

    /// Makes free slots on that side: by moving all elements where more than half of the storage is free on the other
    /// one, else by growth.
    void MakeRoom(bool inFront) {
        const std::size_t count = Count();
        const auto frontIn = [=](std::size_t capacity) {
            return static_cast<std::uint32_t>(inFront ? capacity - count : 0);
        };
        if (m_storage && m_storage->capacity - count > count) {
            const std::uint32_t front = frontIn(m_storage->capacity);
            std::copy(Begin(), End(), SlotsOf(m_storage) + front);
            m_storage->front = front;
            return;
        }
        const std::size_t capacity = std::max<std::size_t>(2, count + count / 2 + 1);
        if (capacity > std::numeric_limits<std::uint32_t>::max())
            throw std::bad_array_new_length(); // unreachable: takes an array of 32 GB
        auto* const larger = ::new (Allocate(StorageSize(capacity)))
            Storage{static_cast<std::uint32_t>(capacity), frontIn(capacity), static_cast<std::uint32_t>(count)};
        std::copy(Begin(), End(), SlotsOf(larger) + larger->front);
        FreeStorage(std::exchange(m_storage, larger));
    }

    Storage* m_storage = nullptr;
};

} // namespace ImportDame::detail
