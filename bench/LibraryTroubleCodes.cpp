#include "Data.h"
#include "Model.h"

#include <ImportDame/ImportDame.h>

namespace Bench {

namespace {

using namespace ImportDame;

void Fill(VTroubleCode& troubleCode, std::size_t index) {
    const auto& data = Sample<TroubleCodeData<wchar_t>>(index);
    troubleCode.SetCode(CodeOf(index));
    troubleCode.SetErrorText(data.errorText.c_str());
    troubleCode.SetObjectIdentifier(data.objectIdentifier.c_str());
    for (const auto& item : data.items)
        troubleCode.RecordItemCollection().AddNewRecordItem().Text().SetText(item.c_str());
    (*troubleCode.RecordItemCollection().FindByIndex(1)).SetEnumIndex(data.enumIndex);
    VAttribute& attribute = troubleCode.Attributes().AddNewAttribute();
    attribute.SetQualifier(data.attributeQualifier.c_str());
    attribute.SetValue(data.attributeValue.c_str());
}

void Add(Checksum& checksum, VTroubleCode& troubleCode) {
    checksum.Add(std::uint64_t{troubleCode.GetCode()});
    checksum.Add(troubleCode.GetErrorText());
    checksum.Add(troubleCode.GetObjectIdentifier());
    for (VRecordItem& item : troubleCode.RecordItemCollection()) {
        checksum.Add(item.Text().GetText());
        checksum.Add(std::uint64_t{item.GetEnumIndex()});
    }
    for (VAttribute& attribute : troubleCode.Attributes()) {
        checksum.Add(attribute.GetQualifier());
        checksum.Add(attribute.GetValue());
    }
}

class LibraryTroubleCodes : public Model {
public:
    void Build(std::size_t count) override {
        auto& collection = m_document.TroubleCodeCollectionCollection().AppendNew();
        for (std::size_t index = 0; index < count; ++index)
            Fill(collection.AppendNew(), index);
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (VTroubleCode& troubleCode : First())
            Add(checksum, troubleCode);
        return checksum.Value();
    }

    void Copy() override { m_document.TroubleCodeCollectionCollection().AppendCopy(First()); }

    bool FindCode(unsigned int code) override { return First().Find(code) != First().End(); }

    std::size_t ImportedCount() override { return First().ImportedCount(); }

    void RemoveFromFront(std::size_t count) override {
        for (; count > 0; --count)
            First().Remove(First().Begin());
    }

    void Clear() override { First().Clear(); }

private:
    VTroubleCodeCollection& First() { return *m_document.TroubleCodeCollectionCollection().Begin(); }

    VImportDoc m_document;
};

} // namespace

std::unique_ptr<Model> MakeLibraryTroubleCodes() {
    return std::make_unique<LibraryTroubleCodes>();
}

} // namespace Bench
