#include "oom/scenario/Description.h"

#include "oom/scenario/World.h"

#include <algorithm>
#include <vector>

using namespace ImportDame;

namespace Scenario {

void Description::Add(std::wstring_view text) {
    m_text += text;
    m_text += L'|';
}

void Description::Add(unsigned long long number) {
    Add(std::to_wstring(number));
}

void Description::Add(double number) {
    Add(std::to_wstring(number));
}

void Description::Add(const VText& text) {
    Add(text.GetText());
    Add(text.HasTextId() ? text.GetTextId() : L"none");
}

void Description::Add(VValue& value) {
    Add(value.IsPhysical());
    if (!value.IsField())
        return Add(value.Get());
    Add(value.GetFieldSize());
    for (unsigned int i = 0; i < value.GetFieldSize(); ++i)
        Add(value.GetElement(i));
}

void Description::Add(VRange& range) {
    if (range.HasStartValue()) {
        VValue start = range.GetStartValue();
        Add(start);
    }
    if (range.HasEndValue()) {
        VValue end = range.GetEndValue();
        Add(end);
    }
}

void Description::Add(VQualified& object) {
    Add(object.GetQualifier());
    Add(object.Name());
    Add(object.Description());
    Add(object.IsImported());
    Add(object.GetSourceInfo());
    Add(object.GetObjectIdentifier());
    Add(object.Attributes());
}

void Description::Add(VAttributeCollection& attributes) {
    Add(attributes.Count());
    for (VAttribute& attribute : attributes) {
        Add(static_cast<VQualified&>(attribute));
        Add(attribute.GetValue());
    }
}

/// In the order of their descriptions: that of the set is the one of the addresses.
template <class Collection, class AddElement>
void Description::AddSet(Collection& collection, AddElement addElement) {
    std::vector<std::wstring> descriptions;
    for (auto& element : collection) {
        Description description;
        addElement(description, element);
        descriptions.push_back(description.m_text);
    }
    std::sort(descriptions.begin(), descriptions.end());
    Add(collection.Count());
    for (const std::wstring& description : descriptions)
        Add(description);
}

void Description::Add(VDataType& dataType) {
    Add(static_cast<VQualified&>(dataType));
    Add(dataType.GetMayBeModified());
    AddSet(dataType.InvalidRangeCollection(), [](Description& description, VInvalidRange& range) {
        description.Add(static_cast<VRange&>(range));
        description.Add(static_cast<unsigned long long>(range.GetInvalidity()));
        description.Add(range.AssignedText());
    });
}

void Description::Add(VLinearConversion& conversion) {
    Add(conversion.GetFactorNumerator());
    Add(static_cast<unsigned long long>(conversion.GetFactorDenominator()));
    Add(conversion.GetOffset());
    Add(conversion.GetRange());
    AddInverse(conversion);
}

void Description::AddInverse(VConversion& conversion) {
    Add(conversion.HasCompuInverseValue());
    if (conversion.HasCompuInverseValue()) {
        VValue inverse = conversion.GetCompuInverseValue();
        Add(inverse);
    }
}

void Description::Add(VLinearConversionCollection& conversions) {
    AddSet(conversions, [](Description& description, VLinearConversion& each) { description.Add(each); });
}

void Description::Add(VFunctionCollection& functions) {
    AddSet(functions, [](Description& description, VFunction& function) {
        for (const wchar_t* text : {function.GetVersion(), function.GetEntryPoint(), function.GetSyntax(),
                                    function.GetEncryption(), function.SourceFile().GetPath()})
            description.Add(text);
        description.AddSet(function.AdditionalFileCollection(),
                           [](Description& files, VAdditionalFile& file) { files.Add(file.GetPath()); });
    });
}

void Description::Add(VTextTableRowCollection& rows) {
    Add(rows.DefaultValue());
    Add(rows.Count());
    for (VTextTableRow& row : rows) {
        Add(row.MappedValue());
        Add(row.AdditionalInfo());
        Add(row.GetRange());
        AddInverse(row);
    }
}

void Description::Add(VValueTableRowCollection& rows) {
    Add(rows.Count());
    for (VValueTableRow& row : rows) {
        Add(row.GetCodedValue());
        Add(row.GetMappedValue());
    }
}

void Description::Add(VServiceMapping& mapping) {
    for (const wchar_t* text : {mapping.GetVariant(), mapping.GetClass(), mapping.GetInstance(), mapping.GetService(),
                                mapping.GetPrimitive()})
        Add(text);
    Add(static_cast<double>(mapping.GetBitPosition()));
    Add(mapping.IsDtcPool() ? static_cast<unsigned long long>(mapping.GetDtcPoolType()) : 99);
}

void Description::Add(VRecordTemplateMapping& mapping) {
    Add(mapping.GetNumberOfTemplateItem());
    for (unsigned int i = 0; i < mapping.GetNumberOfTemplateItem(); ++i)
        Add(mapping.GetItemMapping(i).GetContent());
}

void Description::Add(VTroubleCode& code) {
    Add(static_cast<unsigned long long>(code.GetCode()));
    Add(code.ErrorText());
    Add(code.IsImported());
    Add(code.GetObjectIdentifier());
    Add(code.Attributes());
    Add(code.GetNumberOfItem());
    for (VRecordItem& item : code.RecordItemCollection()) {
        Add(item.Text());
        Add(item.IsEnumRecordItem());
        Add(static_cast<unsigned long long>(item.GetEnumIndex()));
    }
}

void Description::Add(VTroubleCodeCollection& codes) {
    Add(codes.GetSourceName());
    Add(codes.GetObjectIdentifier());
    Add(codes.ServiceMapping());
    Add(codes.RecordTemplateMapping());
    Add(codes.Count());
    for (VTroubleCode& code : codes)
        Add(code);
}

} // namespace Scenario
