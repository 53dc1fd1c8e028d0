/// @file
/// A document with some of everything.
#pragma once

#include <ImportDame/ImportDame.h>

#include <string>

namespace SqliteBackendTests {

/// Fills an empty document with `size` times one of most kinds of elements. Allocates between them, so that the
/// addresses of elements differ in order from one call to the next.
void FillDocument(ImportDame::VImportDoc& document, unsigned int size, const std::wstring& ecuName = L"ECM");

} // namespace SqliteBackendTests
