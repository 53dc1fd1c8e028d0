#ifndef ODXIMPORT_SOURCE_INPUTS_H
#define ODXIMPORT_SOURCE_INPUTS_H

#include "OdxImport/Options.h"
#include "OdxImport/Progress.h"
#include "report/Reporter.h"
#include "source/Bytes.h"

#include <functional>
#include <string>

namespace OdxImport {

/// One document as it was found, still in its own encoding.
struct SourceDocument {
    std::string name; ///< UTF-8; "archive!entry" for an archive entry
    std::string sha256;
    Bytes bytes;
};

/// Finds all documents of the inputs, folders in the order of their names, and hands them over one by one, each once.
/// False, and nothing is read, where an input does not exist.
bool ReadInputs(const ImportOptions& options, const Reporter& reporter, ProgressSink& progress,
                const std::function<void(SourceDocument&&)>& take);

} // namespace OdxImport

#endif
