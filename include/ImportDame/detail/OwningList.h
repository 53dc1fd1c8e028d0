/// @file
/// The doubly linked list that owns the elements of a list-based collection.
#pragma once

#include <ImportDame/detail/Memory.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace ImportDame::detail {

template <class T>
class OwningList;

/// A place in an `OwningList`; `**position` is the element. Stays valid until its own element is taken out; the end is
/// the same place at all times.
template <class T>
class ListPosition {
public:
    ListPosition() noexcept = default;

    T* operator*() const noexcept { return m_node->element; }

    ListPosition& operator++() noexcept {
        m_node = m_node->next;
        return *this;
    }

    bool operator==(const ListPosition&) const noexcept = default;

private:
    friend class OwningList<T>;

    struct Node {
        static void* operator new(std::size_t size) { return Allocate(size); }

        static void operator delete(void* node, std::size_t size) noexcept { Free(node, size); }

        T* element;
        Node* next;
        Node* previous;    ///< Of the first node: the last one.
        std::size_t count; ///< Of the first node: how many there are.
    };

    explicit ListPosition(Node* node) noexcept : m_node(node) {}

    Node* m_node = nullptr;
};

/// Owns its elements in the order in which they came; they leave it before they die, and `Clear` and the destructor let
/// them die in order. Operations that may allocate leave the list as it was when they fail. One pointer in size, as
/// most lists of a model are empty.
template <class T>
class OwningList {
public:
    using Position = ListPosition<T>;
    using Owner = std::unique_ptr<T>;

    OwningList() noexcept = default;
    OwningList(const OwningList&) = delete;
    OwningList& operator=(const OwningList&) = delete;

    ~OwningList() {
        if (m_first)
            Clear();
    }

    [[nodiscard]] Position Begin() const noexcept { return Position(m_first); }

    [[nodiscard]] Position End() const noexcept { return Position(); }

    [[nodiscard]] std::size_t Count() const noexcept { return m_first ? m_first->count : 0; }

    [[nodiscard]] bool IsEmpty() const noexcept { return !m_first; }

    /// Creates an element from the arguments and appends it.
    template <class Element = T, class... Arguments>
    Element& AppendNew(Arguments&&... arguments) {
        auto element = std::make_unique<Element>(std::forward<Arguments>(arguments)...);
        Append(*element);
        return *element.release();
    }

    /// Takes over an element at the end. When that fails, the element stays the caller's.
    void Append(T& element) {
        auto* const node = new Node{&element, nullptr, nullptr, 0}; // owned by the list from the next lines on
        if (m_first) {
            node->previous = std::exchange(m_first->previous, node);
            node->previous->next = node;
        } else {
            node->previous = m_first = node;
        }
        ++m_first->count;
    }

    /// Takes an element out. Requires: position denotes an element of this list.
    Owner TakeOut(Position position) noexcept {
        const std::unique_ptr<Node> node(position.m_node);
        const std::size_t left = m_first->count - 1;
        if (node->next)
            node->next->previous = node->previous;
        else
            m_first->previous = node->previous;
        if (node.get() == m_first)
            m_first = node->next;
        else
            node->previous->next = node->next;
        if (m_first)
            m_first->count = left;
        return Owner(node->element);
    }

    /// Removes the first element until none is left, also those that a dying element adds.
    void Clear() noexcept {
        while (!IsEmpty())
            TakeOut(Begin());
    }

    /// The first element for which the predicate holds, or the end.
    template <class Predicate>
    [[nodiscard]] Position FindIf(Predicate predicate) const {
        Position position = Begin();
        while (position != End() && !predicate(**position))
            ++position;
        return position;
    }

    /// The place of that very object, or the end.
    [[nodiscard]] Position Find(const T& element) const noexcept {
        return FindIf([&](const T& candidate) { return &candidate == &element; });
    }

private:
    using Node = typename Position::Node;

    Node* m_first = nullptr;
};

} // namespace ImportDame::detail
