/// @file
/// States the exact types of operations, and which of them are not for everyone, when the tests are compiled.
#pragma once

#include <type_traits>

namespace TestSupport {

/// Whether the class has the operation with exactly this type: `g_has<VText, const wchar_t*() const, &VText::GetText>`.
/// Of overloads the one with that type is meant; where there is none, this does not compile.
template <class Class, class Type, Type Class::*>
inline constexpr bool g_has = true;

/// Whether anyone may call a collection's `_Remove`.
template <class Collection>
concept HasPublicRemovalAt = requires(Collection collection) {
    collection._Remove(collection.Begin().Unwrap());
};

} // namespace TestSupport
