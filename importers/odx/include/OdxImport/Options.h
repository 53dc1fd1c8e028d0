#ifndef ODXIMPORT_OPTIONS_H
#define ODXIMPORT_OPTIONS_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace OdxImport {

/// Bounds against hostile input. What exceeds one is skipped and reported.
struct Limits {
    std::uint64_t documentBytes = std::uint64_t{1} << 30;        ///< one document, unpacked
    std::uint64_t totalBytes = std::uint64_t{4} << 30;           ///< all documents, unpacked
    std::uint64_t archiveEntries = 20000;                        ///< entries of one archive
    std::uint64_t compressionRatio = 200;                        ///< unpacked to packed size of one entry
    std::uint64_t compressionFreeBytes = std::uint64_t{1} << 20; ///< entries up to this size may have any ratio
    std::uint64_t inputFiles = 100000;                           ///< files found in folders
    std::uint64_t copies = 1000000; ///< services, trouble codes and rows that variants inherit and links repeat
    std::uint64_t copiedBytes = std::uint64_t{1} << 30; ///< of documents that are read for these
    std::uint64_t inherited = 5000000; ///< entries in the tables of what layers inherit, all layers together
    std::uint32_t nesting = 200;       ///< depth of elements in a document
};

struct ImportOptions {
    std::vector<std::filesystem::path> inputs; ///< PDX archives, ODX documents, folders; together one database
    std::string baseVariant; ///< SHORT-NAME of the base variant to import, UTF-8; empty takes the only one there is
    std::string language;    ///< stored as the document's language, UTF-8; empty takes the one the input names
    Limits limits;
};

} // namespace OdxImport

#endif
