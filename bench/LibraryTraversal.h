#pragma once

#include <ImportDame/Fwd.h>

#include <cstddef>

namespace Bench {

/// The number of data types and of interchangeables, nested ones included, that a traverser of the library meets.
std::size_t CountByTraverser(ImportDame::VImportDoc& document);

/// Dumps a document into a log that drops every record.
void DumpToNowhere(ImportDame::VImportDoc& document);

} // namespace Bench
