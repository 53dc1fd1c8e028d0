#ifndef CONSOLEIMPORT_SUMMARY_H
#define CONSOLEIMPORT_SUMMARY_H

#include "Console.h"

#include <OdxImport/Importer.h>
#include <SqliteBackend/WriteDatabase.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace ConsoleImport {

struct Summary {
    const OdxImport::ImportResult& result;
    const OdxImport::DiagnosticCollector& diagnostics;
    const OdxImport::Ledger& ledger;
    const SqliteBackend::WriteResult& database;
    const std::string& databaseFile; ///< printable
    std::chrono::milliseconds duration;
};

void PrintSummary(Console& console, const Summary& summary);

/// "12,345"
std::string Grouped(std::uint64_t number);

/// "1 error", "2 errors"
std::string Counted(std::uint64_t number, const char* what);

/// Adds blanks up to the width; texts are UTF-8 and one column a character.
std::string PadRight(std::string text, std::size_t width);
std::string PadLeft(const std::string& text, std::size_t width);

/// The size in a unit for people, "1.2 MB".
std::string SizeText(std::uint64_t bytes);

} // namespace ConsoleImport

#endif
