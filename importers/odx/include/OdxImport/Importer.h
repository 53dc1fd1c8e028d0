#ifndef ODXIMPORT_IMPORTER_H
#define ODXIMPORT_IMPORTER_H

#include "OdxImport/Diagnostics.h"
#include "OdxImport/Ledger.h"
#include "OdxImport/Options.h"
#include "OdxImport/Progress.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ImportDame {
class VImportDoc;
}

namespace OdxImport {

/// One document that was read, for provenance. All texts are UTF-8.
struct InputDocument {
    std::string file;         ///< as in Location::file
    std::uint64_t bytes = 0;  ///< unpacked size
    std::string sha256;       ///< of the unpacked bytes, lower-case hexadecimal
    std::string modelVersion; ///< MODEL-VERSION or, before 2.0.1, VERSION of the root; empty when it has none
    std::string category;     ///< tag of the root's first element, such as "DIAG-LAYER-CONTAINER"
    std::string shortName;    ///< of that element
};

/// One diagnostic layer of the input. All texts are UTF-8.
struct LayerSummary {
    std::string kind; ///< tag, such as "BASE-VARIANT"
    std::string shortName;
    std::string longName;
    std::string file;
    std::string container;            ///< SHORT-NAME of the container around it
    std::vector<std::string> parents; ///< SHORT-NAMEs, as the layer names them
    std::uint64_t services = 0;       ///< own services and jobs, the inherited ones not counted
    std::uint64_t dataObjects = 0;    ///< own simple and complex data objects
    std::uint64_t troubleCodes = 0;   ///< own trouble codes
};

enum class ImportStatus : std::uint8_t {
    Completed,   ///< the document is filled; problems may have been reported all the same
    NeedsChoice, ///< several base variants and none chosen; `baseVariants` has the names
    NotFound,    ///< the chosen base variant is not there, or there is none at all
    NoInput      ///< nothing in the inputs could be read
};

struct ImportResult {
    ImportStatus status = ImportStatus::NoInput;
    std::string baseVariant;               ///< SHORT-NAME of the imported base variant
    std::vector<std::string> baseVariants; ///< SHORT-NAMEs of all base variants, in input order, each once
    std::vector<InputDocument> documents;  ///< in the order they were read
};

/// Reads the inputs and fills `document`, which must be new. Every problem goes to `diagnostics`, the account of every
/// element to `ledger`. Nothing in the input makes it throw: it throws only when memory runs out or when the document
/// refuses an operation (VLgAssertException); the document is then half filled and to be thrown away.
ImportResult Import(const ImportOptions& options, ImportDame::VImportDoc& document, DiagnosticSink& diagnostics,
                    Ledger& ledger, ProgressSink& progress);

struct Listing {
    std::vector<InputDocument> documents;
    std::vector<LayerSummary> layers;
};

/// Reads the inputs and tells what is in them. Only `options.inputs` and `options.limits` count.
Listing List(const ImportOptions& options, DiagnosticSink& diagnostics, ProgressSink& progress);

} // namespace OdxImport

#endif
