#ifndef SQLITEBACKEND_ATTRIBUTES_H
#define SQLITEBACKEND_ATTRIBUTES_H

#include "store/Insert.h"

#include <ImportDame/Fwd.h>

#include <cstddef>
#include <cstdint>

namespace SqliteBackend {

/// What an attribute belongs to, in the order of the table's columns.
enum class AttributeOwner : std::size_t {
    DataType,
    Interchangeable,
    MuxCase,
    Unit,
    Variant,
    DiagComm,
    ServiceShape,
    TroubleCode,
    Attribute,
    Count_
};

/// The attributes of all objects, those of attributes included.
class Attributes {
public:
    static const char* const schema;

    Attributes(Connection& connection, Tally& tally);

    void Write(AttributeOwner owner, std::int64_t ownerRow, ImportDame::VAttributeCollection& collection);

private:
    std::int64_t WriteOne(AttributeOwner owner, std::int64_t ownerRow, std::int64_t position,
                          ImportDame::VAttribute& attribute);

    Insert m_attributes;
};

} // namespace SqliteBackend

#endif
