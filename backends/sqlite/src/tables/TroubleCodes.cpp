#include "tables/TroubleCodes.h"

#include <ImportDame/ItemMapping.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/RecordItemCollection.h>
#include <ImportDame/RecordTemplateMapping.h>
#include <ImportDame/ServiceMapping.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <optional>
#include <utility>

namespace SqliteBackend {

const char* const TroubleCodes::schema = R"(
CREATE TABLE trouble_code_collection(
    id                    INTEGER PRIMARY KEY,
    source_name           TEXT NOT NULL,
    object_identifier     TEXT,
    max_bit_length        INTEGER,
    format_identifier     INTEGER,
    mapped_variant        TEXT NOT NULL,
    mapped_class          TEXT NOT NULL,
    mapped_instance       TEXT NOT NULL,
    mapped_service        TEXT NOT NULL,
    mapped_primitive      TEXT NOT NULL,
    mapped_bit_position   INTEGER NOT NULL,
    fault_memory_type     INTEGER
);
CREATE TABLE record_template_item(
    trouble_code_collection_id INTEGER NOT NULL REFERENCES trouble_code_collection(id),
    position                   INTEGER NOT NULL,
    content                    TEXT NOT NULL,
    mapping_type               INTEGER NOT NULL,
    mapped_position            INTEGER NOT NULL,
    is_automatically_forced    INTEGER NOT NULL,
    PRIMARY KEY(trouble_code_collection_id, position)
) WITHOUT ROWID;
CREATE TABLE trouble_code(
    id                         INTEGER PRIMARY KEY,
    trouble_code_collection_id INTEGER NOT NULL REFERENCES trouble_code_collection(id),
    position                   INTEGER NOT NULL,
    code                       INTEGER NOT NULL,
    error_text                 TEXT NOT NULL,
    error_text_text_id         TEXT,
    object_identifier          TEXT,
    is_imported                INTEGER NOT NULL
);
CREATE TABLE record_item(
    trouble_code_id INTEGER NOT NULL REFERENCES trouble_code(id),
    position        INTEGER NOT NULL,
    text            TEXT NOT NULL,
    text_text_id    TEXT,
    enum_index      INTEGER,
    PRIMARY KEY(trouble_code_id, position)
) WITHOUT ROWID;
)";

namespace {

/// The object identifier of something that is not a qualified object.
template <class Owner>
const wchar_t* ObjectIdentifierOf(const Owner& owner) {
    return owner.HasObjectIdentifier() ? owner.GetObjectIdentifier() : nullptr;
}

} // namespace

TroubleCodes::TroubleCodes(Connection& connection, Tally& tally, Attributes& attributes)
    : m_attributes(attributes), m_collections(connection, tally, "trouble_code_collection"),
      m_templateItems(connection, tally, "record_template_item"), m_codes(connection, tally, "trouble_code"),
      m_recordItems(connection, tally, "record_item") {}

void TroubleCodes::Write(ImportDame::VTroubleCodeCollectionCollection& collections,
                         const std::function<void()>& written) {
    for (ImportDame::VTroubleCodeCollection& collection : collections) {
        const std::int64_t row = WriteCollection(collection);
        WriteTemplate(row, collection.RecordTemplateMapping());
        std::int64_t position = 0;
        for (ImportDame::VTroubleCode& code : collection) {
            WriteCode(row, position++, code);
            written();
        }
    }
}

std::int64_t TroubleCodes::WriteCollection(ImportDame::VTroubleCodeCollection& collection) {
    using Format = ImportDame::VTroubleCodeCollection::VFormatIdentifier;
    using Memory = ImportDame::VServiceMapping::FaultMemoryType;
    std::optional<unsigned int> maxBitLength;
    if (collection.HasMaxBitLength())
        maxBitLength = collection.GetMaxBitLength();
    std::optional<Format> format;
    if (collection.HasFormatIdentifier())
        format = collection.GetFormatIdentifier();
    ImportDame::VServiceMapping& mapping = collection.ServiceMapping();
    std::optional<Memory> memory;
    if (mapping.IsDtcPool())
        memory = mapping.GetDtcPoolType();
    const std::int64_t row = m_collections.NextRow();
    m_collections.Row(row, collection.GetSourceName(), ObjectIdentifierOf(collection), maxBitLength, format,
                      mapping.GetVariant(), mapping.GetClass(), mapping.GetInstance(), mapping.GetService(),
                      mapping.GetPrimitive(), mapping.GetBitPosition(), memory);
    return row;
}

void TroubleCodes::WriteTemplate(std::int64_t collectionRow, const ImportDame::VRecordTemplateMapping& mapping) {
    const auto size = static_cast<unsigned int>(mapping.GetNumberOfTemplateItem());
    for (unsigned int position = 0; position < size; ++position) {
        const ImportDame::VItemMapping& item = mapping.GetItemMapping(position);
        m_templateItems.Row(collectionRow, position, item.GetContent(), item.GetItemMappingType(), item.GetIndex(),
                            item.IsAutomaticallyForcedMapping());
    }
}

void TroubleCodes::WriteCode(std::int64_t collectionRow, std::int64_t position, ImportDame::VTroubleCode& code) {
    const std::int64_t row = m_codes.NextRow();
    const bool isImported = std::as_const(code).IsImported();
    m_codes.Row(row, collectionRow, position, code.GetCode(), code.ErrorText(), ObjectIdentifierOf(code), isImported);
    WriteRecord(row, code.RecordItemCollection());
    m_attributes.Write(AttributeOwner::TroubleCode, row, code.Attributes());
}

void TroubleCodes::WriteRecord(std::int64_t codeRow, ImportDame::VRecordItemCollection& record) {
    std::int64_t position = 0;
    for (ImportDame::VRecordItem& item : record) {
        std::optional<unsigned short> enumIndex;
        if (item.IsEnumRecordItem())
            enumIndex = item.GetEnumIndex();
        m_recordItems.Row(codeRow, position++, item.Text(), enumIndex);
    }
}

} // namespace SqliteBackend
