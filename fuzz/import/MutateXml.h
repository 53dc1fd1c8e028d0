#pragma once

#include <cstddef>

namespace Fuzz {

/// Takes an element out, repeats it elsewhere, or replaces a text or an attribute by another one of the document.
std::size_t MutateXml(unsigned char* data, std::size_t size, std::size_t capacity, unsigned int seed);

} // namespace Fuzz
