#ifndef SQLITEBACKEND_PACKETS_H
#define SQLITEBACKEND_PACKETS_H

#include "store/Insert.h"
#include "tables/Attributes.h"
#include "tables/Contents.h"
#include "tables/References.h"
#include "tables/Values.h"

#include <ImportDame/Fwd.h>

#include <cstdint>

namespace SqliteBackend {

/// What packets, multiplexers and repetitions have beside their content, and the contents.
class Packets {
public:
    static const char* const schema;

    Packets(Connection& connection, Tally& tally, Attributes& attributes, Values& values, Contents& contents,
            const References<ImportDame::VDataType>& dataTypes);

    void Write(std::int64_t row, ImportDame::VPacketDataType& dataType);
    void Write(std::int64_t row, ImportDame::VMuxDataType& dataType);
    void Write(std::int64_t row, ImportDame::VStaticIterDataType& dataType);
    void Write(std::int64_t row, ImportDame::VNumeratorIterDataType& dataType);
    void Write(std::int64_t row, ImportDame::VEndMarkerIterDataType& dataType);
    void Write(std::int64_t row, ImportDame::VEndOfServiceIterDataType& dataType);

private:
    void WriteContent(std::int64_t row, ImportDame::VBasePacketDataType& dataType);
    void WriteCases(std::int64_t muxRow, ImportDame::VCaseCollection& cases);

    Attributes& m_attributes;
    Values& m_values;
    Contents& m_contents;
    const References<ImportDame::VDataType>& m_dataTypes;
    Insert m_packets;
    Insert m_muxes;
    Insert m_cases;
    Insert m_static;
    Insert m_numerator;
    Insert m_endMarker;
    Insert m_endOfService;
};

} // namespace SqliteBackend

#endif
