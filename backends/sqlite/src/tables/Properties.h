#ifndef SQLITEBACKEND_PROPERTIES_H
#define SQLITEBACKEND_PROPERTIES_H

#include "store/Insert.h"

#include <ImportDame/Fwd.h>

#include <cstdint>

namespace SqliteBackend {

/// How the values of scalar data types are coded and shown.
class Properties {
public:
    static const char* const schema;

    Properties(Connection& connection, Tally& tally);

    void Write(std::int64_t dataTypeRow, ImportDame::VCodedProperties& coded);
    void Write(std::int64_t dataTypeRow, ImportDame::VCodedAtomProperties& coded);
    void Write(std::int64_t dataTypeRow, ImportDame::VPhysicalProperties& physical);
    void Write(std::int64_t dataTypeRow, ImportDame::VPhysicalAtomProperties& physical);
    void Write(std::int64_t dataTypeRow, ImportDame::VPhysicalDisplayProperties& display);

private:
    Insert m_coded;
    Insert m_physical;
    Insert m_display;
};

} // namespace SqliteBackend

#endif
