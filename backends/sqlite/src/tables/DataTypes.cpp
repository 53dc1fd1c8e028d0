#include "tables/DataTypes.h"

#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

namespace SqliteBackend {

const char* const DataTypes::schema = R"(
CREATE TABLE data_type(
    id                     INTEGER PRIMARY KEY,
    kind                   TEXT NOT NULL CHECK(kind IN ('identity', 'text table', 'linear', 'piecewise linear',
                               'value table', 'formula', 'procedure', 'packet', 'mux', 'static repetition',
                               'numerator repetition', 'end of service repetition', 'end marker repetition')),
    @qualified,
    may_be_modified        INTEGER NOT NULL,
    source_layer           INTEGER NOT NULL,
    reason_for_is_imported INTEGER NOT NULL
);
)";

DataTypes::DataTypes(Connection& connection, Tally& tally, Attributes& attributes, Properties& properties,
                     Conversions& conversions, Packets& packets)
    : m_attributes(attributes), m_properties(properties), m_conversions(conversions), m_packets(packets),
      m_dataTypes(connection, tally, "data_type") {}

void DataTypes::Write(ImportDame::VDataTypeCollection& collection, const std::function<void()>& written) {
    for (ImportDame::VDataType& dataType : collection) {
        DispatchDataType(dataType);
        written();
    }
}

std::int64_t DataTypes::WriteRow(const char* kind, ImportDame::VDataType& dataType) {
    const std::int64_t row = m_dataTypes.NextRow();
    m_dataTypes.Row(row, kind, dataType, dataType.GetMayBeModified(), dataType.GetSourceLayerInfo(),
                    dataType.ReasonForIsImported());
    m_attributes.Write(AttributeOwner::DataType, row, dataType.Attributes());
    m_conversions.Write(row, dataType.InvalidRangeCollection());
    return row;
}

template <class DataType>
void DataTypes::WriteAtomProperties(std::int64_t row, DataType& dataType) {
    m_properties.Write(row, dataType.CodedAtomProperties());
    m_properties.Write(row, dataType.PhysicalAtomProperties());
    m_properties.Write(row, dataType.PhysicalDisplayProperties());
}

void DataTypes::VisitIdentityDataType(ImportDame::VIdentityDataType& dataType) {
    const std::int64_t row = WriteRow("identity", dataType);
    m_properties.Write(row, dataType.CodedProperties());
    m_properties.Write(row, dataType.PhysicalDisplayProperties());
}

void DataTypes::VisitTextTableDataType(ImportDame::VTextTableDataType& dataType) {
    const std::int64_t row = WriteRow("text table", dataType);
    m_properties.Write(row, dataType.CodedProperties());
    m_conversions.Write(row, dataType.TextTableRowCollection());
}

void DataTypes::VisitLinearDataType(ImportDame::VLinearDataType& dataType) {
    const std::int64_t row = WriteRow("linear", dataType);
    WriteAtomProperties(row, dataType);
    m_conversions.Write(row, 0, dataType.LinearConversion());
}

void DataTypes::VisitPiecewiseLinearDataType(ImportDame::VPiecewiseLinearDataType& dataType) {
    const std::int64_t row = WriteRow("piecewise linear", dataType);
    WriteAtomProperties(row, dataType);
    m_conversions.Write(row, dataType.LinearConversionCollection());
}

void DataTypes::VisitValueTableDataType(ImportDame::VValueTableDataType& dataType) {
    const std::int64_t row = WriteRow("value table", dataType);
    WriteAtomProperties(row, dataType);
    m_conversions.Write(row, dataType.IsInterpolated(), dataType.ValueTableRowCollection());
}

void DataTypes::VisitFormulaDataType(ImportDame::VFormulaDataType& dataType) {
    const std::int64_t row = WriteRow("formula", dataType);
    m_properties.Write(row, dataType.CodedAtomProperties());
    m_properties.Write(row, dataType.PhysicalAtomProperties());
    m_conversions.Write(dataType, row);
}

void DataTypes::VisitProcedureDataType(ImportDame::VProcedureDataType& dataType) {
    const std::int64_t row = WriteRow("procedure", dataType);
    m_properties.Write(row, dataType.CodedProperties());
    m_properties.Write(row, dataType.PhysicalProperties());
    m_conversions.Write(row, "coded to physical", dataType.CodedToPhysFunctionCollection());
    m_conversions.Write(row, "physical to coded", dataType.PhysToCodedFunctionCollection());
}

void DataTypes::VisitPacketDataType(ImportDame::VPacketDataType& dataType) {
    m_packets.Write(WriteRow("packet", dataType), dataType);
}

void DataTypes::VisitMuxDataType(ImportDame::VMuxDataType& dataType) {
    m_packets.Write(WriteRow("mux", dataType), dataType);
}

void DataTypes::VisitStaticIterDataType(ImportDame::VStaticIterDataType& dataType) {
    m_packets.Write(WriteRow("static repetition", dataType), dataType);
}

void DataTypes::VisitNumeratorIterDataType(ImportDame::VNumeratorIterDataType& dataType) {
    m_packets.Write(WriteRow("numerator repetition", dataType), dataType);
}

void DataTypes::VisitEndOfServiceIterDataType(ImportDame::VEndOfServiceIterDataType& dataType) {
    m_packets.Write(WriteRow("end of service repetition", dataType), dataType);
}

void DataTypes::VisitEndMarkerIterDataType(ImportDame::VEndMarkerIterDataType& dataType) {
    m_packets.Write(WriteRow("end marker repetition", dataType), dataType);
}

} // namespace SqliteBackend
