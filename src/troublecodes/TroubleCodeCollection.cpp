#include <ImportDame/TroubleCodeCollection.h>

#include <ImportDame/TroubleCode.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"
#include "troublecodes/RecordGrowth.h"

#include <deque>

namespace ImportDame {

using detail::CheckSite;
using detail::Require;

VTroubleCodeCollection::VTroubleCodeCollection(VImportDoc& importDoc)
    : VImportDocChild(importDoc), m_recordTemplateMapping(std::make_unique<VRecordTemplateMapping>()) {}

VTroubleCodeCollection::VTroubleCodeCollection(const VTroubleCodeCollection& other, VImportDoc& importDoc)
    : VMappable(other), VImportDocChild(importDoc),
      m_recordTemplateMapping(std::make_unique<VRecordTemplateMapping>(*other.m_recordTemplateMapping)),
      m_sourceName(other.m_sourceName), m_objectIdentifier(other.m_objectIdentifier) {
    detail::ForEach(other.m_collection, [this](const VTroubleCode& troubleCode) { AppendCopy(troubleCode); });
}

VTroubleCodeCollection::~VTroubleCodeCollection() = default;

VTroubleCode& VTroubleCodeCollection::AppendNew() {
    return m_collection.AppendNew(ImportDoc());
}

VTroubleCode& VTroubleCodeCollection::AppendCopy(const VTroubleCode& troubleCode) {
    return m_collection.AppendNew(troubleCode, ImportDoc());
}

void VTroubleCodeCollection::Append(VTroubleCode& troubleCode) {
    m_collection.Append(troubleCode);
}

VTroubleCode& VTroubleCodeCollection::InsertNew(iterator position) {
    return m_collection.InsertNew(position.Unwrap(), ImportDoc());
}

VTroubleCode& VTroubleCodeCollection::InsertCopy(iterator position, const VTroubleCode& troubleCode) {
    return m_collection.InsertNew(position.Unwrap(), troubleCode, ImportDoc());
}

VTroubleCodeCollection::iterator VTroubleCodeCollection::Find(VTroubleCode& troubleCode) {
    return iterator(m_collection.Find(troubleCode));
}

VTroubleCodeCollection::iterator VTroubleCodeCollection::Find(unsigned int code) {
    return iterator(
        m_collection.FindIf([=](const VTroubleCode& troubleCode) { return troubleCode.GetCode() == code; }));
}

unsigned int VTroubleCodeCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

void VTroubleCodeCollection::Clear() {
    m_collection.Clear();
}

void VTroubleCodeCollection::Remove(VTroubleCode& troubleCode) {
    const auto position = m_collection.Find(troubleCode);
    Require(position != m_collection.End(), CheckSite::TroubleCodeCollectionRemove);
    _Remove(position);
}

void VTroubleCodeCollection::Remove(iterator position) {
    Require(position != End(), CheckSite::TroubleCodeCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VTroubleCodeCollection::SetIsImportedTroubleCodes(bool isImported) {
    detail::SetImported(m_collection, isImported);
}

void VTroubleCodeCollection::CompleteRecords() {
    const auto count = m_recordTemplateMapping->GetNumberOfTemplateItem();
    std::deque<detail::RecordGrowth> growths;
    detail::ForEach(m_collection, [&](VTroubleCode& troubleCode) {
        if (troubleCode.GetNumberOfItem() < count)
            growths.emplace_back(troubleCode.RecordItemCollection()).FillUpTo(count);
    });
    for (auto& growth : growths)
        growth.Keep();
}

void VTroubleCodeCollection::SetSourceName(const wchar_t* sourceName) {
    m_sourceName.Set(sourceName);
}

void VTroubleCodeCollection::SetObjectIdentifier(const wchar_t* objectIdentifier) {
    m_objectIdentifier.Set(objectIdentifier);
}

void VTroubleCodeCollection::SetMaxBitLength(unsigned int maxBitLength) {
    m_maxBitLength = maxBitLength;
    m_hasMaxBitLength = true;
}

void VTroubleCodeCollection::SetFormatIdentifier(VFormatIdentifier formatIdentifier) {
    m_formatIdentifier = formatIdentifier;
    m_hasFormatIdentifier = true;
}

VRecordTemplateMapping& VTroubleCodeCollection::RecordTemplateMapping() {
    return *m_recordTemplateMapping;
}

void VTroubleCodeCollection::_Insert(detail::OwningArray<VTroubleCode>::Position position, VTroubleCode& troubleCode) {
    m_collection.Insert(position, troubleCode);
}

void VTroubleCodeCollection::_Remove(detail::OwningArray<VTroubleCode>::Position position) {
    Require(position != m_collection.End(), CheckSite::TroubleCodeCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
