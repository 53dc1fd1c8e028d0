#include <ImportDame/TroubleCode.h>

#include <ImportDame/RecordItem.h>

#include "core/Require.h"
#include "troublecodes/RecordGrowth.h"

#include <memory>

namespace ImportDame {

using detail::CheckSite;
using detail::Require;

const unsigned int VTroubleCode::siDefaultCode = 0;
const bool VTroubleCode::sbDefaultValueIsImported = true;
const std::wstring VTroubleCode::ssDefaultErrorText;

VTroubleCode::VTroubleCode(VImportDoc& importDoc)
    : VImportDocChild(importDoc), m_code(siDefaultCode), m_errorText(ssDefaultErrorText.c_str()),
      m_isImported(sbDefaultValueIsImported), m_attributes(importDoc) {}

VTroubleCode::VTroubleCode(VImportDoc& importDoc, int code, const wchar_t* errorText, bool isImported)
    : VImportDocChild(importDoc), m_code(static_cast<unsigned int>(code)), m_errorText(errorText),
      m_isImported(isImported), m_attributes(importDoc) {}

VTroubleCode::VTroubleCode(const VTroubleCode& other) : VTroubleCode(other, other.ImportDoc()) {}

VTroubleCode::VTroubleCode(const VTroubleCode& other, VImportDoc& importDoc)
    : VImportDocChild(importDoc), m_code(other.m_code), m_errorText(other.m_errorText),
      m_isImported(other.m_isImported), m_recordItemCollection(other.m_recordItemCollection),
      m_attributes(other.m_attributes, importDoc), m_objectIdentifier(other.m_objectIdentifier) {}

VTroubleCode::~VTroubleCode() = default;

VAttributeCollection& VTroubleCode::Attributes() {
    return m_attributes;
}

VRecordItemCollection& VTroubleCode::RecordItemCollection() {
    return m_recordItemCollection;
}

void VTroubleCode::SetCode(unsigned int code) {
    m_code = code;
}

unsigned int VTroubleCode::GetBitLen() const {
    auto number = static_cast<int>(m_code);
    if (number == 0)
        return 1;
    unsigned int length = 0;
    for (; number > 0; number >>= 1)
        ++length;
    return length;
}

void VTroubleCode::SetErrorText(const wchar_t* errorText) {
    m_errorText.SetText(errorText);
}

void VTroubleCode::SetObjectIdentifier(const wchar_t* objectIdentifier) {
    m_objectIdentifier.Set(objectIdentifier);
}

void VTroubleCode::IsImported(bool isImported) {
    m_isImported = isImported;
}

void VTroubleCode::ClearRecord() {
    m_recordItemCollection.Clear();
}

void VTroubleCode::AppendItem(const wchar_t* text) {
    AppendItem(VText(text));
}

void VTroubleCode::AppendItem(VText text) {
    auto item = std::make_unique<VRecordItem>();
    item->Text() = text;
    m_recordItemCollection.AppendRecordItem(*item);
    item.release(); // the record's from now on
}

void VTroubleCode::InsertItem(unsigned int iNum, VText text) {
    detail::RecordGrowth growth(m_recordItemCollection);
    growth.FillUpTo(1ULL + iNum);
    OverwriteItem(iNum, text);
    growth.Keep();
}

void VTroubleCode::InsertItem(unsigned int iNum, const wchar_t* text) {
    InsertItem(iNum, VText(text));
}

void VTroubleCode::InsertEnumRecordItem(unsigned int iNum, const wchar_t* text, unsigned short enumIndex) {
    InsertItem(iNum, text);
    VRecordItem* const item = m_recordItemCollection.ItemAt(iNum);
    Require(item != nullptr, CheckSite::TroubleCodeInsertEnumRecordItem);
    item->SetEnumIndex(enumIndex);
}

void VTroubleCode::OverwriteItem(unsigned int iNum, VText text) {
    Require(iNum < m_recordItemCollection.Count(), CheckSite::TroubleCodeOverwriteItemIndex);
    VRecordItem* const item = m_recordItemCollection.ItemAt(iNum);
    Require(item != nullptr, CheckSite::TroubleCodeOverwriteItemLookup);
    item->Text() = text;
}

void VTroubleCode::OverwriteItem(unsigned int iNum, const wchar_t* text) {
    Require(iNum < m_recordItemCollection.Count(), CheckSite::TroubleCodeOverwriteItemCharactersIndex);
    VRecordItem* const item = m_recordItemCollection.ItemAt(iNum);
    Require(item != nullptr, CheckSite::TroubleCodeOverwriteItemCharactersLookup);
    item->Text() = VText(text);
}

VText& VTroubleCode::Item(unsigned int iNum) {
    VRecordItem* const item = m_recordItemCollection.ItemAt(iNum);
    Require(item != nullptr, CheckSite::TroubleCodeItem);
    return item->Text();
}

const wchar_t* VTroubleCode::GetItem(unsigned int iNum) const {
    VRecordItem* const item = m_recordItemCollection.ItemAt(iNum);
    Require(item != nullptr, CheckSite::TroubleCodeGetItem);
    return item->Text().GetText();
}

} // namespace ImportDame
