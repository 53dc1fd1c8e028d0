/// @file
/// Visitors that note what they were called with.
#pragma once

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeVisitor.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/InterchangeableVisitor.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include <string>
#include <utility>
#include <vector>

namespace TestSupport {

/// The kind whose operation was called, and the object that it was called with.
using Visit = std::pair<std::string, ImportDame::VQualified*>;

class RecordingDataTypeVisitor : public ImportDame::VDataTypeVisitor {
public:
    void VisitIdentityDataType(ImportDame::VIdentityDataType& x) override { visits.emplace_back("Identity", &x); }

    void VisitTextTableDataType(ImportDame::VTextTableDataType& x) override { visits.emplace_back("TextTable", &x); }

    void VisitLinearDataType(ImportDame::VLinearDataType& x) override { visits.emplace_back("Linear", &x); }

    void VisitPiecewiseLinearDataType(ImportDame::VPiecewiseLinearDataType& x) override {
        visits.emplace_back("PiecewiseLinear", &x);
    }

    void VisitValueTableDataType(ImportDame::VValueTableDataType& x) override { visits.emplace_back("ValueTable", &x); }

    void VisitFormulaDataType(ImportDame::VFormulaDataType& x) override { visits.emplace_back("Formula", &x); }

    void VisitProcedureDataType(ImportDame::VProcedureDataType& x) override { visits.emplace_back("Procedure", &x); }

    void VisitPacketDataType(ImportDame::VPacketDataType& x) override { visits.emplace_back("Packet", &x); }

    void VisitMuxDataType(ImportDame::VMuxDataType& x) override { visits.emplace_back("Mux", &x); }

    void VisitStaticIterDataType(ImportDame::VStaticIterDataType& x) override { visits.emplace_back("StaticIter", &x); }

    void VisitNumeratorIterDataType(ImportDame::VNumeratorIterDataType& x) override {
        visits.emplace_back("NumeratorIter", &x);
    }

    void VisitEndOfServiceIterDataType(ImportDame::VEndOfServiceIterDataType& x) override {
        visits.emplace_back("EndOfServiceIter", &x);
    }

    void VisitEndMarkerIterDataType(ImportDame::VEndMarkerIterDataType& x) override {
        visits.emplace_back("EndMarkerIter", &x);
    }

    std::vector<Visit> visits;
};

class RecordingInterchangeableVisitor : public ImportDame::VInterchangeableVisitor {
public:
    void VisitDataObject(ImportDame::VDataObject& x) override { visits.emplace_back("DataObject", &x); }

    void VisitBitField(ImportDame::VBitField& x) override { visits.emplace_back("BitField", &x); }

    void VisitGapObject(ImportDame::VGapObject& x) override { visits.emplace_back("GapObject", &x); }

    std::vector<Visit> visits;
};

} // namespace TestSupport
