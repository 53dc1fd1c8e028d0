#include <ImportDame/ImportDame.h>

#include <iostream>
#include <string>

using namespace ImportDame;

namespace {

/// Writes one line for a data type of any kind.
class DataTypeWriter : public VDataTypeDefaultVisitor {
public:
    void VisitDataType(VDataType& dataType) override {
        VDataTypePropertiesVisitor properties;
        properties.EvaluateProperties(dataType);
        std::wcout << L"data type " << dataType.GetQualifier() << (properties.IsCodedText() ? L", text" : L"") << L'\n';
    }
};

/// Writes a line for every interchangeable; the members of a bit field are indented.
class InterchangeableWriter : public VInterchangeableTraverser {
protected:
    void PreProcessDataObject(VDataObject& dataObject) override {
        const VDataType* const dataType = dataObject.GetDataType();
        Line() << L"data object " << dataObject.GetQualifier() << L" of "
               << (dataType ? dataType->GetQualifier() : L"no type") << L'\n';
    }

    void PreProcessBitField(VBitField& bitField) override {
        Line() << L"bit field " << bitField.GetQualifier() << L'\n';
        m_indentation += L"  ";
    }

    void PostProcessBitField(VBitField&) override { m_indentation.resize(m_indentation.size() - 2); }

    void PreProcessGapObject(VGapObject& gap) override { Line() << L"gap of " << gap.GetBitLength() << L" bits\n"; }

private:
    std::wostream& Line() const { return std::wcout << m_indentation; }

    std::wstring m_indentation;
};

/// Writes a line for every service and job.
class DiagCommWriter : public VDiagCommVisitor {
public:
    void VisitDiagService(VDiagService& service) override {
        std::wcout << L"service " << service.GetQualifier() << L", id " << service.GetServiceId() << L'\n';
    }

    void VisitDiagJob(VDiagJob& job) override { std::wcout << L"job " << job.GetQualifier() << L'\n'; }
};

void Write(VImportDoc& document) {
    DataTypeWriter dataTypes;
    for (VDataType& dataType : document.DataTypeCollection())
        dataTypes.DispatchDataType(dataType);
    InterchangeableWriter interchangeables;
    interchangeables.TraverseInterchangeableCollection(document.InterchangeableCollection());
    DiagCommWriter diagComms;
    for (VDiagComm& diagComm : document.GetBaseVariant().DiagCommCollection())
        diagComms.DispatchDiagComm(diagComm);
}

/// What an importer would have read.
void Fill(VImportDoc& document) {
    VLinearDataType& speed = document.DataTypeCollection().AddNewLinearDataType();
    speed.SetQualifier(L"Speed");
    VIdentityDataType& label = document.DataTypeCollection().AddNewIdentityDataType();
    label.SetQualifier(L"Label");
    label.CodedProperties().SetEncoding(VProperties::asciiText);
    VInterchangeableCollection& top = document.InterchangeableCollection();
    VDataObject& wheel = top.AddNewDataObject();
    wheel.SetQualifier(L"WheelSpeed");
    wheel.SetDataType(&speed);
    VBitField& flags = top.AddNewBitField();
    flags.SetQualifier(L"Flags");
    flags.InterchangeableCollection().AddNewDataObject().SetQualifier(L"Reserved");
    flags.InterchangeableCollection().AddNewGapObject().SetBitLength(7);
    top.AddNewGapObject().SetBitLength(16);
    document.GetBaseVariant().DiagCommCollection().AddNewDiagService(0x22).SetQualifier(L"ReadData");
    document.GetBaseVariant().DiagCommCollection().AddNewDiagJob().SetQualifier(L"Flash");
}

} // namespace

int main() {
    VImportDoc document;
    Fill(document);
    Write(document);
}
