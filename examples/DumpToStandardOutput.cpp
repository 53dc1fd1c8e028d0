#include "ConcreteDumper.h"

#include <KoLogging/Logging.h>

#include <iostream>

using namespace ImportDame;

namespace {

/// Receives what the library logs.
class StandardOutput : public NArdenaSharedUtil::Logging::VLogSink {
public:
    void Write(NArdenaSharedUtil::Logging::VSeverityLevel, unsigned long, const wchar_t* text) override {
        std::wcout << text << L'\n';
    }
};

/// A packet, and a list whose every entry has a number and a gap.
void Fill(VImportDoc& document) {
    VIdentityDataType& number = document.DataTypeCollection().AddNewIdentityDataType();
    number.SetQualifier(L"Number");
    VPacketDataType& packet = document.DataTypeCollection().AddNewPacketDataType();
    packet.SetQualifier(L"Packet");
    VDataObject& count = packet.InterchangeableCollection().AddNewDataObject();
    count.SetQualifier(L"Count");
    count.SetDataType(&number);
    VStaticIterDataType& list = document.MakeStaticIterDataType();
    document.DataTypeCollection().AppendDataType(list);
    list.SetQualifier(L"List");
    VDataObject& entry = list.InterchangeableCollection().AddNewDataObject();
    entry.SetQualifier(L"Entry");
    entry.SetDataType(&number);
    list.InterchangeableCollection().AddNewGapObject().SetBitLength(4);
    for (VDataType* const dataType : {static_cast<VDataType*>(&document.MakeNumeratorIterDataType()),
                                      static_cast<VDataType*>(&document.MakeEndOfServiceIterDataType()),
                                      static_cast<VDataType*>(&document.MakeEndMarkerIterDataType())})
        document.DataTypeCollection().AppendDataType(*dataType);
}

} // namespace

int main() {
    VImportDoc document;
    Fill(document);
    StandardOutput output;
    auto& logging = NArdenaSharedUtil::Logging::VLogging::GetInstance();
    logging.SetSink(&output);
    ConcreteDumper().Dump(document);
    logging.SetSink(nullptr);
}
