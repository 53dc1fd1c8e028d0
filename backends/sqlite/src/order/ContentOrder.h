#ifndef SQLITEBACKEND_CONTENTORDER_H
#define SQLITEBACKEND_CONTENTORDER_H

#include <ImportDame/Fwd.h>

#include <vector>

namespace SqliteBackend {

// Collections that the model keeps in the order of addresses, in an order that depends on their content alone. Elements
// that compare equal here have the same rows.

/// By start, then end; absent ends first, numbers by their value, other texts after them.
std::vector<ImportDame::VInvalidRange*> InContentOrder(ImportDame::VInvalidRangeCollection& collection);
std::vector<ImportDame::VLinearConversion*> InContentOrder(ImportDame::VLinearConversionCollection& collection);

/// By entry point, then the other texts.
std::vector<ImportDame::VFunction*> InContentOrder(ImportDame::VFunctionCollection& collection);

/// By path.
std::vector<ImportDame::VAdditionalFile*> InContentOrder(ImportDame::VAdditionalFileCollection& collection);

} // namespace SqliteBackend

#endif
