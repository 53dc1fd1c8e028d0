/// The types of the operations of this folder. Compiling them is the test.

#include "support/Signature.h"

#include <ImportDame/ItemMapping.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/RecordItemCollection.h>
#include <ImportDame/RecordTemplateMapping.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <set>
#include <string>

namespace {

using namespace ImportDame;
using TestSupport::Has;

using Text = const wchar_t*;

static_assert(requires {
    Has<VRecordItem&(const VRecordItem&)>(&VRecordItem::operator=);
    Has<VText&()>(&VRecordItem::Text);
    Has<bool() const>(&VRecordItem::IsEnumRecordItem);
    Has<unsigned short() const>(&VRecordItem::GetEnumIndex);
    Has<void(unsigned short)>(&VRecordItem::SetEnumIndex);
    Has<VRecordItem&() const>(&VRecordItem::Clone);
});

static_assert(requires {
    Has<VRecordItemCollection&(const VRecordItemCollection&)>(&VRecordItemCollection::operator=);
    Has<VRecordItem&()>(&VRecordItemCollection::AddNewRecordItem);
    Has<void(VRecordItem&)>(&VRecordItemCollection::AppendRecordItem);
    Has<VRecordItemCollection::iterator(unsigned int)>(&VRecordItemCollection::FindByIndex);
    Has<VRecordItemCollection::iterator()>(&VRecordItemCollection::Begin);
    Has<VRecordItemCollection::iterator()>(&VRecordItemCollection::End);
    Has<VRecordItemCollection::iterator()>(&VRecordItemCollection::begin);
    Has<VRecordItemCollection::iterator()>(&VRecordItemCollection::end);
    Has<unsigned long long() const>(&VRecordItemCollection::Count);
    Has<bool() const>(&VRecordItemCollection::IsEmpty);
    Has<void()>(&VRecordItemCollection::Clear);
    Has<void(VRecordItem&)>(&VRecordItemCollection::Remove);
    Has<void(VRecordItemCollection::iterator)>(&VRecordItemCollection::Remove);
    Has<VRecordItemCollection::iterator(VRecordItem&)>(&VRecordItemCollection::Find);
});

static_assert(requires {
    Has<VItemMapping&(const VItemMapping&)>(&VItemMapping::operator=);
    Has<Text() const>(&VItemMapping::GetContent);
    Has<void(Text)>(&VItemMapping::SetContent);
    Has<unsigned int() const>(&VItemMapping::GetIndex);
    Has<void(unsigned int)>(&VItemMapping::SetIndex);
    Has<const VItemMapping::VItemMappingType&() const>(&VItemMapping::GetItemMappingType);
    Has<void(const VItemMapping::VItemMappingType&)>(&VItemMapping::SetItemMappingType);
    Has<const bool&() const>(&VItemMapping::IsAutomaticallyForcedMapping);
});

static_assert(requires {
    Has<VRecordTemplateMapping&(const VRecordTemplateMapping&)>(&VRecordTemplateMapping::operator=);
    Has<void(VItemMapping&)>(&VRecordTemplateMapping::Append);
    Has<void()>(&VRecordTemplateMapping::Clear);
    Has<unsigned long long() const>(&VRecordTemplateMapping::GetNumberOfTemplateItem);
    Has<const VItemMapping&(unsigned int) const>(&VRecordTemplateMapping::GetItemMapping);
    Has<void(unsigned int, VItemMapping&)>(&VRecordTemplateMapping::OverwriteItemMapping);
    Has<int(Text) const>(&VRecordTemplateMapping::GetMappedIndex);
    Has<bool(Text) const>(&VRecordTemplateMapping::HasTemplateItem);
    Has<bool(std::set<std::wstring>) const>(&VRecordTemplateMapping::IsRecordTemplateMappingOK);
});

static_assert(requires {
    Has<VAttributeCollection&()>(&VTroubleCode::Attributes);
    Has<VRecordItemCollection&()>(&VTroubleCode::RecordItemCollection);
    Has<unsigned int() const>(&VTroubleCode::GetCode);
    Has<void(unsigned int)>(&VTroubleCode::SetCode);
    Has<unsigned int() const>(&VTroubleCode::GetBitLen);
    Has<VText&()>(&VTroubleCode::ErrorText);
    Has<Text() const>(&VTroubleCode::GetErrorText);
    Has<void(Text)>(&VTroubleCode::SetErrorText);
    Has<Text() const>(&VTroubleCode::GetObjectIdentifier);
    Has<void(Text)>(&VTroubleCode::SetObjectIdentifier);
    Has<bool() const>(&VTroubleCode::HasObjectIdentifier);
    Has<bool() const>(&VTroubleCode::IsImported);
    Has<void(bool)>(&VTroubleCode::IsImported);
    Has<void()>(&VTroubleCode::ClearRecord);
    Has<unsigned long long() const>(&VTroubleCode::GetNumberOfItem);
    Has<void(Text)>(&VTroubleCode::AppendItem);
    Has<void(VText)>(&VTroubleCode::AppendItem);
    Has<void(unsigned int, VText)>(&VTroubleCode::InsertItem);
    Has<void(unsigned int, Text)>(&VTroubleCode::InsertItem);
    Has<void(unsigned int, Text, unsigned short)>(&VTroubleCode::InsertEnumRecordItem);
    Has<void(unsigned int, VText)>(&VTroubleCode::OverwriteItem);
    Has<void(unsigned int, Text)>(&VTroubleCode::OverwriteItem);
    Has<VText&(unsigned int)>(&VTroubleCode::Item);
    Has<Text(unsigned int) const>(&VTroubleCode::GetItem);
});

static_assert(requires {
    Has<VTroubleCode&()>(&VTroubleCodeCollection::AppendNew);
    Has<VTroubleCode&(const VTroubleCode&)>(&VTroubleCodeCollection::AppendCopy);
    Has<void(VTroubleCode&)>(&VTroubleCodeCollection::Append);
    Has<VTroubleCode&(VTroubleCodeCollection::iterator)>(&VTroubleCodeCollection::InsertNew);
    Has<VTroubleCode&(VTroubleCodeCollection::iterator, const VTroubleCode&)>(&VTroubleCodeCollection::InsertCopy);
    Has<VTroubleCodeCollection::iterator()>(&VTroubleCodeCollection::Begin);
    Has<VTroubleCodeCollection::iterator()>(&VTroubleCodeCollection::End);
    Has<VTroubleCodeCollection::walk_iterator()>(&VTroubleCodeCollection::begin);
    Has<VTroubleCodeCollection::walk_iterator()>(&VTroubleCodeCollection::end);
    Has<unsigned long long() const>(&VTroubleCodeCollection::Count);
    Has<bool() const>(&VTroubleCodeCollection::IsEmpty);
    Has<void()>(&VTroubleCodeCollection::Clear);
    Has<void(VTroubleCode&)>(&VTroubleCodeCollection::Remove);
    Has<void(VTroubleCodeCollection::iterator)>(&VTroubleCodeCollection::Remove);
    Has<VTroubleCodeCollection::iterator(VTroubleCode&)>(&VTroubleCodeCollection::Find);
    Has<unsigned int() const>(&VTroubleCodeCollection::ImportedCount);
    Has<void(bool)>(&VTroubleCodeCollection::SetIsImportedTroubleCodes);
    Has<VTroubleCodeCollection::iterator(unsigned int)>(&VTroubleCodeCollection::Find);
    Has<void()>(&VTroubleCodeCollection::CompleteRecords);
    Has<Text() const>(&VTroubleCodeCollection::GetSourceName);
    Has<void(Text)>(&VTroubleCodeCollection::SetSourceName);
    Has<Text() const>(&VTroubleCodeCollection::GetObjectIdentifier);
    Has<void(Text)>(&VTroubleCodeCollection::SetObjectIdentifier);
    Has<bool() const>(&VTroubleCodeCollection::HasObjectIdentifier);
    Has<unsigned int() const>(&VTroubleCodeCollection::GetMaxBitLength);
    Has<void(unsigned int)>(&VTroubleCodeCollection::SetMaxBitLength);
    Has<bool() const>(&VTroubleCodeCollection::HasMaxBitLength);
    Has<VTroubleCodeCollection::VFormatIdentifier() const>(&VTroubleCodeCollection::GetFormatIdentifier);
    Has<void(VTroubleCodeCollection::VFormatIdentifier)>(&VTroubleCodeCollection::SetFormatIdentifier);
    Has<bool() const>(&VTroubleCodeCollection::HasFormatIdentifier);
    Has<VRecordTemplateMapping&()>(&VTroubleCodeCollection::RecordTemplateMapping);
});

static_assert(requires {
    Has<VTroubleCodeCollection&()>(&VTroubleCodeCollectionCollection::AppendNew);
    Has<VTroubleCodeCollection&(const VTroubleCodeCollection&)>(&VTroubleCodeCollectionCollection::AppendCopy);
    Has<void(VTroubleCodeCollection&)>(&VTroubleCodeCollectionCollection::Append);
    Has<VTroubleCodeCollection&(VTroubleCodeCollectionCollection::iterator)>(
        &VTroubleCodeCollectionCollection::InsertNew);
    Has<VTroubleCodeCollection&(VTroubleCodeCollectionCollection::iterator, const VTroubleCodeCollection&)>(
        &VTroubleCodeCollectionCollection::InsertCopy);
    Has<VTroubleCodeCollectionCollection::iterator()>(&VTroubleCodeCollectionCollection::Begin);
    Has<VTroubleCodeCollectionCollection::iterator()>(&VTroubleCodeCollectionCollection::End);
    Has<VTroubleCodeCollectionCollection::iterator()>(&VTroubleCodeCollectionCollection::begin);
    Has<VTroubleCodeCollectionCollection::iterator()>(&VTroubleCodeCollectionCollection::end);
    Has<unsigned long long() const>(&VTroubleCodeCollectionCollection::Count);
    Has<bool() const>(&VTroubleCodeCollectionCollection::IsEmpty);
    Has<void()>(&VTroubleCodeCollectionCollection::Clear);
    Has<void(VTroubleCodeCollection&)>(&VTroubleCodeCollectionCollection::Remove);
    Has<void(VTroubleCodeCollectionCollection::iterator)>(&VTroubleCodeCollectionCollection::Remove);
    Has<VTroubleCodeCollectionCollection::iterator(VTroubleCodeCollection&)>(&VTroubleCodeCollectionCollection::Find);
    Has<unsigned int() const>(&VTroubleCodeCollectionCollection::ImportedCount);
    Has<void(bool)>(&VTroubleCodeCollectionCollection::SetIsImportedTroubleCodes);
    Has<VTroubleCodeCollection&(unsigned int) const>(&VTroubleCodeCollectionCollection::operator[]);
    Has<unsigned int(VTroubleCodeCollection&) const>(&VTroubleCodeCollectionCollection::GetIndex);
    Has<VTroubleCodeCollectionCollection::iterator(Text)>(&VTroubleCodeCollectionCollection::Find);
    Has<VTroubleCodeCollectionCollection::iterator()>(&VTroubleCodeCollectionCollection::FirstImported);
    Has<VTroubleCodeCollectionCollection::iterator(VTroubleCodeCollection&)>(
        &VTroubleCodeCollectionCollection::NextImported);
    Has<unsigned int() const>(&VTroubleCodeCollectionCollection::ImportedTroubleCodesCount);
    Has<unsigned long long() const>(&VTroubleCodeCollectionCollection::TroubleCodesCount);
});

} // namespace
