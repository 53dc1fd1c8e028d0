#pragma once

#include <ImportDame/ImportDame.h>

/// A dumper that can be used as it is: it writes the four repetition kinds as well, each with its members.
class ConcreteDumper : public ImportDame::VDumper {
public:
    void VisitStaticIterDataType(ImportDame::VStaticIterDataType& dataType) override;
    void VisitNumeratorIterDataType(ImportDame::VNumeratorIterDataType& dataType) override;
    void VisitEndOfServiceIterDataType(ImportDame::VEndOfServiceIterDataType& dataType) override;
    void VisitEndMarkerIterDataType(ImportDame::VEndMarkerIterDataType& dataType) override;

private:
    void WriteRepetition(const wchar_t* kind, ImportDame::VBasePacketDataType& dataType);
};
