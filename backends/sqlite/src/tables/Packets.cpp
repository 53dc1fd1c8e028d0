#include "tables/Packets.h"

#include <ImportDame/Case.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/Value.h>

#include <optional>

namespace SqliteBackend {

const char* const Packets::schema = R"(
CREATE TABLE packet(
    data_type_id                  INTEGER PRIMARY KEY REFERENCES data_type(id),
    did                           INTEGER,
    show_contents_only_for_tester INTEGER NOT NULL
);
CREATE TABLE mux(
    data_type_id                INTEGER PRIMARY KEY REFERENCES data_type(id),
    selector_data_type_id       INTEGER REFERENCES data_type(id),
    mux_start_bit_position      INTEGER,
    selector_start_bit_position INTEGER
);
CREATE TABLE mux_case(
    id             INTEGER PRIMARY KEY,
    mux_id         INTEGER NOT NULL REFERENCES mux(data_type_id),
    position       INTEGER NOT NULL,
    @qualified,
    start_value_id INTEGER REFERENCES value(id),
    end_value_id   INTEGER REFERENCES value(id)
);
CREATE TABLE static_repetition(
    data_type_id    INTEGER PRIMARY KEY REFERENCES data_type(id),
    number_of_items INTEGER NOT NULL
);
CREATE TABLE numerator_repetition(
    data_type_id                INTEGER PRIMARY KEY REFERENCES data_type(id),
    selector_data_type_id       INTEGER REFERENCES data_type(id),
    content_start_bit_position  INTEGER,
    selector_start_bit_position INTEGER,
    "offset"                    INTEGER NOT NULL
);
CREATE TABLE end_marker_repetition(
    data_type_id             INTEGER PRIMARY KEY REFERENCES data_type(id),
    termination_value_id     INTEGER NOT NULL REFERENCES value(id),
    termination_data_type_id INTEGER REFERENCES data_type(id)
);
CREATE TABLE end_of_service_repetition(
    data_type_id            INTEGER PRIMARY KEY REFERENCES data_type(id),
    minimum_number_of_items INTEGER NOT NULL,
    maximum_number_of_items INTEGER
);
)";

namespace {

template <class Owner>
const ImportDame::VDataType* SelectorOf(Owner& owner) {
    return owner.HasSelectorDataType() ? &owner.GetSelectorDataType() : nullptr;
}

template <class Owner>
std::optional<unsigned int> SelectorPositionOf(const Owner& owner) {
    if (!owner.HasSelectorStartBitPosition())
        return std::nullopt;
    return owner.GetSelectorStartBitPosition();
}

} // namespace

Packets::Packets(Connection& connection, Tally& tally, Attributes& attributes, Values& values, Contents& contents,
                 const References<ImportDame::VDataType>& dataTypes)
    : m_attributes(attributes), m_values(values), m_contents(contents), m_dataTypes(dataTypes),
      m_packets(connection, tally, "packet"), m_muxes(connection, tally, "mux"), m_cases(connection, tally, "mux_case"),
      m_static(connection, tally, "static_repetition"), m_numerator(connection, tally, "numerator_repetition"),
      m_endMarker(connection, tally, "end_marker_repetition"),
      m_endOfService(connection, tally, "end_of_service_repetition") {}

void Packets::WriteContent(std::int64_t row, ImportDame::VBasePacketDataType& dataType) {
    m_contents.Write(ContentOwner::Packet, row, dataType.InterchangeableCollection());
}

void Packets::Write(std::int64_t row, ImportDame::VPacketDataType& dataType) {
    std::optional<unsigned int> did;
    if (dataType.HasDid())
        did = dataType.GetDid();
    m_packets.Row(row, did, dataType.GetShowContentsOnlyForTester());
    WriteContent(row, dataType);
}

void Packets::Write(std::int64_t row, ImportDame::VMuxDataType& dataType) {
    std::optional<unsigned int> start;
    if (dataType.HasMuxStartBitPosition())
        start = dataType.GetMuxStartBitPosition();
    m_muxes.Row(row, m_dataTypes.RowOf(SelectorOf(dataType)), start, SelectorPositionOf(dataType));
    WriteContent(row, dataType);
    WriteCases(row, dataType.GetCaseCollection());
    m_contents.Write(ContentOwner::DefaultCaseOf, row, dataType.GetDefaultCase());
}

void Packets::WriteCases(std::int64_t muxRow, ImportDame::VCaseCollection& cases) {
    std::int64_t position = 0;
    for (ImportDame::VCase& muxCase : cases) {
        const std::int64_t row = m_cases.NextRow();
        m_cases.Row(row, muxRow, position++, muxCase, m_values.EndsOf(muxCase.Range()));
        m_attributes.Write(AttributeOwner::MuxCase, row, muxCase.Attributes());
        m_contents.Write(ContentOwner::MuxCase, row, muxCase.InterchangeableCollection());
    }
}

void Packets::Write(std::int64_t row, ImportDame::VStaticIterDataType& dataType) {
    m_static.Row(row, dataType.GetNumOfItems());
    WriteContent(row, dataType);
}

void Packets::Write(std::int64_t row, ImportDame::VNumeratorIterDataType& dataType) {
    std::optional<unsigned int> start;
    if (dataType.HasContentStartBitPosition())
        start = dataType.GetContentStartBitPosition();
    m_numerator.Row(row, m_dataTypes.RowOf(SelectorOf(dataType)), start, SelectorPositionOf(dataType),
                    dataType.GetOffset());
    WriteContent(row, dataType);
}

void Packets::Write(std::int64_t row, ImportDame::VEndMarkerIterDataType& dataType) {
    const ImportDame::VDataType* type =
        dataType.HasTerminationDataType() ? &dataType.GetTerminationDataType() : nullptr;
    m_endMarker.Row(row, m_values.RowOf(dataType.TerminationValue()), m_dataTypes.RowOf(type));
    WriteContent(row, dataType);
}

void Packets::Write(std::int64_t row, ImportDame::VEndOfServiceIterDataType& dataType) {
    std::optional<unsigned int> maximum;
    if (dataType.HasMaxNumberOfItems())
        maximum = dataType.GetMaxNumberOfItems();
    m_endOfService.Row(row, dataType.GetMinNumberOfItems(), maximum);
    WriteContent(row, dataType);
}

} // namespace SqliteBackend
