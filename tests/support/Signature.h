/// @file
/// States the types of operations, their results and constness included.
#pragma once

namespace TestSupport {

/// `static_assert(requires { Has<int(bool) const>(&Class::Operation); })` compiles when the operation, or one of the
/// overloads of that name, has exactly that type.
template <class Signature, class Class>
void Has(Signature Class::*operation);

} // namespace TestSupport
