#ifndef CONSOLEIMPORT_RECORD_H
#define CONSOLEIMPORT_RECORD_H

#include "Arguments.h"

#include <OdxImport/Importer.h>
#include <SqliteBackend/ImportRecord.h>

#include <cstdint>

namespace ConsoleImport {

/// What the database is to keep of how the document came about.
SqliteBackend::ImportRecord MakeRecord(const Arguments& arguments, const OdxImport::ImportResult& result,
                                       const OdxImport::DiagnosticCollector& diagnostics,
                                       const OdxImport::Ledger& ledger, std::int64_t time);

/// SOURCE_DATE_EPOCH where it is set, else the clock, in seconds since 1970. Throws std::invalid_argument for a value
/// that is no such number.
std::int64_t TimeOfImport();

} // namespace ConsoleImport

#endif
