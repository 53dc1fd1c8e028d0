/// @file
/// The questions that several collections answer in the same way, whatever container they use.
#pragma once

#include <cwchar>

namespace ImportDame::detail {

/// Calls the operation with every element, in the container's order.
template <class Container, class Operation>
void ForEach(const Container& container, Operation operation) {
    for (auto position = container.Begin(); position != container.End(); ++position)
        operation(**position);
}

/// The very same object, given as one of its bases.
template <class Container, class Base>
typename Container::Position FindSame(const Container& container, const Base& object) {
    return container.FindIf([&](const Base& element) { return &element == &object; });
}

/// The first element with exactly this qualifier.
template <class Container>
typename Container::Position FindQualifier(const Container& container, const wchar_t* qualifier) {
    return container.FindIf([=](const auto& element) { return std::wcscmp(element.GetQualifier(), qualifier) == 0; });
}

template <class Container>
unsigned int CountImported(const Container& container) {
    unsigned int count = 0;
    ForEach(container, [&](auto& element) { count += element.IsImported() ? 1 : 0; });
    return count;
}

template <class Container>
void SetImported(const Container& container, bool isImported) {
    ForEach(container, [=](auto& element) { element.IsImported(isImported); });
}

} // namespace ImportDame::detail
