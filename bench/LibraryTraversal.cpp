#include "LibraryTraversal.h"

#include <ImportDame/ImportDame.h>
#include <KoLogging/Logging.h>

namespace Bench {

namespace {

using namespace ImportDame;
using NArdenaSharedUtil::Logging::VLogging;
using NArdenaSharedUtil::Logging::VLogSink;
using NArdenaSharedUtil::Logging::VSeverityLevel;

class Counter : public VImportDocTraverser {
public:
    [[nodiscard]] std::size_t Count() const { return m_count; }

protected:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}

    void PreProcessIdentityDataType(VIdentityDataType&) override { ++m_count; }

    void PreProcessTextTableDataType(VTextTableDataType&) override { ++m_count; }

    void PreProcessLinearDataType(VLinearDataType&) override { ++m_count; }

    void PreProcessPiecewiseLinearDataType(VPiecewiseLinearDataType&) override { ++m_count; }

    void PreProcessValueTableDataType(VValueTableDataType&) override { ++m_count; }

    void PreProcessFormulaDataType(VFormulaDataType&) override { ++m_count; }

    void PreProcessProcedureDataType(VProcedureDataType&) override { ++m_count; }

    void PreProcessPacketDataType(VPacketDataType&) override { ++m_count; }

    void PreProcessDataObject(VDataObject&) override { ++m_count; }

    void PreProcessBitField(VBitField&) override { ++m_count; }

    void PreProcessGapObject(VGapObject&) override { ++m_count; }

    void DescendPacketDataType(VPacketDataType& packet) override {
        TraverseInterchangeableCollection(packet.InterchangeableCollection());
    }

private:
    std::size_t m_count = 0;
};

class Dumper : public VDumper {
protected:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}
};

class NullSink : public VLogSink {
public:
    void Write(VSeverityLevel, unsigned long, const wchar_t*) override {}
};

} // namespace

std::size_t CountByTraverser(VImportDoc& document) {
    Counter counter;
    counter.Traverse(document);
    return counter.Count();
}

void DumpToNowhere(VImportDoc& document) {
    NullSink sink;
    VLogging::GetInstance().SetSink(&sink);
    Dumper().Dump(document);
    VLogging::GetInstance().SetSink(nullptr);
}

} // namespace Bench
