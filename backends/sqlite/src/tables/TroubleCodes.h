#ifndef SQLITEBACKEND_TROUBLECODES_H
#define SQLITEBACKEND_TROUBLECODES_H

#include "store/Insert.h"
#include "tables/Attributes.h"

#include <ImportDame/Fwd.h>

#include <cstdint>
#include <functional>

namespace SqliteBackend {

/// The trouble-code collections with their record templates, codes and records.
class TroubleCodes {
public:
    static const char* const schema;

    TroubleCodes(Connection& connection, Tally& tally, Attributes& attributes);

    /// `written` is called after each code.
    void Write(ImportDame::VTroubleCodeCollectionCollection& collections, const std::function<void()>& written);

private:
    std::int64_t WriteCollection(ImportDame::VTroubleCodeCollection& collection);
    void WriteTemplate(std::int64_t collectionRow, const ImportDame::VRecordTemplateMapping& mapping);
    void WriteCode(std::int64_t collectionRow, std::int64_t position, ImportDame::VTroubleCode& code);
    void WriteRecord(std::int64_t codeRow, ImportDame::VRecordItemCollection& record);

    Attributes& m_attributes;
    Insert m_collections;
    Insert m_templateItems;
    Insert m_codes;
    Insert m_recordItems;
};

} // namespace SqliteBackend

#endif
