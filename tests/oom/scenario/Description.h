/// @file
/// What the public interface shows of a document, as one text.
#pragma once

#include <ImportDame/ImportDame.h>

#include <string>
#include <string_view>

namespace Scenario {

/// Texts, numbers and objects one behind the other; equal for equal contents.
class Description {
public:
    void Add(std::wstring_view text);

    void Add(const wchar_t* text) { Add(std::wstring_view(text)); }

    void Add(unsigned long long number);
    void Add(double number);

    void Add(bool flag) { Add(flag ? L"yes" : L"no"); }

    void Add(const ImportDame::VText& text);
    void Add(ImportDame::VValue& value);
    void Add(ImportDame::VRange& range);
    void Add(ImportDame::VQualified& object);
    void Add(ImportDame::VAttributeCollection& attributes);
    void Add(ImportDame::VDataType& dataType);
    void Add(ImportDame::VLinearConversion& conversion);
    void Add(ImportDame::VLinearConversionCollection& conversions);
    void Add(ImportDame::VFunctionCollection& functions);
    void Add(ImportDame::VTextTableRowCollection& rows);
    void Add(ImportDame::VValueTableRowCollection& rows);
    void Add(ImportDame::VServiceMapping& mapping);
    void Add(ImportDame::VRecordTemplateMapping& mapping);
    void Add(ImportDame::VTroubleCode& code);
    void Add(ImportDame::VTroubleCodeCollection& codes);

    [[nodiscard]] const std::wstring& Text() const { return m_text; }

private:
    template <class Collection, class AddElement>
    void AddSet(Collection& collection, AddElement addElement);
    void AddInverse(ImportDame::VConversion& conversion);

    std::wstring m_text;
};

} // namespace Scenario
