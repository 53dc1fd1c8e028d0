#ifndef SQLITEBACKEND_CONTENTS_H
#define SQLITEBACKEND_CONTENTS_H

#include "store/Insert.h"
#include "tables/Attributes.h"
#include "tables/References.h"
#include "tables/Values.h"

#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/InterchangeableVisitor.h>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace SqliteBackend {

/// What holds a content, in the order of the table's columns; the document's own content has none.
enum class ContentOwner : std::size_t { Packet, DefaultCaseOf, MuxCase, Count_, Document = Count_ };

/// The interchangeables of packets, cases and the document, each content in depth-first order.
class Contents : private ImportDame::VInterchangeableVisitor {
public:
    static const char* const schema;

    Contents(Connection& connection, Tally& tally, Attributes& attributes, Values& values,
             const References<ImportDame::VDataType>& dataTypes);

    void Write(ContentOwner owner, std::int64_t ownerRow, ImportDame::VInterchangeableCollection& collection);

    /// Writes the references from data objects to their selectors. To be called when all contents are written.
    void WriteSelectors();

private:
    using Iterator = ImportDame::VInterchangeableCollection::iterator;

    /// A collection that is being written: the content itself, or what is in a bit field.
    struct Level {
        std::optional<std::int64_t> bitFieldRow;
        std::int64_t position;
        Iterator next;
        Iterator end;
    };

    void VisitDataObject(ImportDame::VDataObject& dataObject) override;
    void VisitBitField(ImportDame::VBitField& bitField) override;
    void VisitGapObject(ImportDame::VGapObject& gapObject) override;

    template <class... Values>
    std::int64_t WriteRow(const char* kind, ImportDame::VInterchangeable& interchangeable, Values... values);

    /// Of the data objects that others refer to; 0 for those that the document does not own.
    std::unordered_map<const ImportDame::VDataObject*, std::int64_t> RowsOfSelectors() const;

    Connection& m_connection;
    Tally& m_tally;
    Attributes& m_attributes;
    Values& m_values;
    const References<ImportDame::VDataType>& m_dataTypes;
    Insert m_interchangeables;
    Rows<static_cast<std::size_t>(ContentOwner::Count_)> m_owners;
    std::vector<Level> m_levels; // bit fields nest to any depth, so not on the call stack
    std::vector<std::pair<const ImportDame::VDataObject*, std::int64_t>> m_dataObjects;
    std::vector<std::pair<std::int64_t, const ImportDame::VDataObject*>> m_selectors; // row and what it refers to
};

} // namespace SqliteBackend

#endif
