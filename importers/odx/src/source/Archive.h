#ifndef ODXIMPORT_SOURCE_ARCHIVE_H
#define ODXIMPORT_SOURCE_ARCHIVE_H

#include "OdxImport/Options.h"
#include "report/Reporter.h"
#include "source/Bytes.h"

#include <functional>
#include <string>
#include <string_view>

namespace OdxImport {

/// How many bytes may still be unpacked before the inputs as a whole are too large.
struct Budget {
    std::uint64_t bytes;
};

/// Takes one document; `name` is "archive!entry".
using EntryTaker = std::function<void(std::string name, Bytes&& bytes)>;

bool LooksLikeArchive(std::string_view bytes);

/// Unpacks the ODX documents of the archive into memory, in the order of their names. Names are shown, never used as
/// paths.
void ReadArchive(const std::string& name, std::string_view archive, const Limits& limits, Budget& budget,
                 const Reporter& reporter, const EntryTaker& take);

} // namespace OdxImport

#endif
