#ifndef SQLITEBACKEND_DATATYPES_H
#define SQLITEBACKEND_DATATYPES_H

#include "store/Insert.h"
#include "tables/Attributes.h"
#include "tables/Conversions.h"
#include "tables/Packets.h"
#include "tables/Properties.h"

#include <ImportDame/DataTypeVisitor.h>
#include <ImportDame/Fwd.h>

#include <cstdint>
#include <functional>

namespace SqliteBackend {

/// The data types: a row for each, and what its kind has beside that.
class DataTypes : private ImportDame::VDataTypeVisitor {
public:
    static const char* const schema;

    DataTypes(Connection& connection, Tally& tally, Attributes& attributes, Properties& properties,
              Conversions& conversions, Packets& packets);

    /// `written` is called after each data type.
    void Write(ImportDame::VDataTypeCollection& collection, const std::function<void()>& written);

private:
    void VisitIdentityDataType(ImportDame::VIdentityDataType& dataType) override;
    void VisitTextTableDataType(ImportDame::VTextTableDataType& dataType) override;
    void VisitLinearDataType(ImportDame::VLinearDataType& dataType) override;
    void VisitPiecewiseLinearDataType(ImportDame::VPiecewiseLinearDataType& dataType) override;
    void VisitValueTableDataType(ImportDame::VValueTableDataType& dataType) override;
    void VisitFormulaDataType(ImportDame::VFormulaDataType& dataType) override;
    void VisitProcedureDataType(ImportDame::VProcedureDataType& dataType) override;
    void VisitPacketDataType(ImportDame::VPacketDataType& dataType) override;
    void VisitMuxDataType(ImportDame::VMuxDataType& dataType) override;
    void VisitStaticIterDataType(ImportDame::VStaticIterDataType& dataType) override;
    void VisitNumeratorIterDataType(ImportDame::VNumeratorIterDataType& dataType) override;
    void VisitEndOfServiceIterDataType(ImportDame::VEndOfServiceIterDataType& dataType) override;
    void VisitEndMarkerIterDataType(ImportDame::VEndMarkerIterDataType& dataType) override;

    /// The row that every kind has.
    std::int64_t WriteRow(const char* kind, ImportDame::VDataType& dataType);
    /// The properties that linear and table kinds have.
    template <class DataType>
    void WriteAtomProperties(std::int64_t row, DataType& dataType);

    Attributes& m_attributes;
    Properties& m_properties;
    Conversions& m_conversions;
    Packets& m_packets;
    Insert m_dataTypes;
};

} // namespace SqliteBackend

#endif
