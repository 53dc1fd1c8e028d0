#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <ImportDame/TroubleCodeCollection.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

#include <algorithm>
#include <cwchar>

namespace ImportDame {

using detail::CheckSite;
using detail::Require;

namespace {

bool HasImported(const VTroubleCodeCollection* collection) {
    return collection->ImportedCount() != 0;
}

} // namespace

VTroubleCodeCollectionCollection::VTroubleCodeCollectionCollection(VImportDoc& importDoc)
    : VImportDocChild(importDoc) {}

VTroubleCodeCollectionCollection::VTroubleCodeCollectionCollection(const VTroubleCodeCollectionCollection& other,
                                                                   VImportDoc& importDoc)
    : VImportDocChild(importDoc) {
    detail::ForEach(other.m_collection, [this](const VTroubleCodeCollection& collection) { AppendCopy(collection); });
}

VTroubleCodeCollectionCollection::~VTroubleCodeCollectionCollection() = default;

VTroubleCodeCollection& VTroubleCodeCollectionCollection::AppendNew() {
    return m_collection.AppendNew(ImportDoc());
}

VTroubleCodeCollection& VTroubleCodeCollectionCollection::AppendCopy(const VTroubleCodeCollection& collection) {
    return m_collection.AppendNew(collection, ImportDoc());
}

void VTroubleCodeCollectionCollection::Append(VTroubleCodeCollection& collection) {
    m_collection.Append(collection);
}

VTroubleCodeCollection& VTroubleCodeCollectionCollection::InsertNew(iterator position) {
    return m_collection.InsertNew(position.Unwrap(), ImportDoc());
}

VTroubleCodeCollection& VTroubleCodeCollectionCollection::InsertCopy(iterator position,
                                                                     const VTroubleCodeCollection& collection) {
    return m_collection.InsertNew(position.Unwrap(), collection, ImportDoc());
}

VTroubleCodeCollectionCollection::iterator VTroubleCodeCollectionCollection::Find(VTroubleCodeCollection& collection) {
    return iterator(m_collection.Find(collection));
}

VTroubleCodeCollectionCollection::iterator VTroubleCodeCollectionCollection::Find(const wchar_t* sourceName) {
    return iterator(m_collection.FindIf([=](const VTroubleCodeCollection& collection) {
        return std::wcscmp(collection.GetSourceName(), sourceName) == 0;
    }));
}

VTroubleCodeCollectionCollection::iterator VTroubleCodeCollectionCollection::FirstImported() {
    return iterator(std::find_if(m_collection.Begin(), m_collection.End(), HasImported));
}

VTroubleCodeCollectionCollection::iterator
VTroubleCodeCollectionCollection::NextImported(VTroubleCodeCollection& collection) {
    const auto position = m_collection.Find(collection);
    if (position == m_collection.End())
        return End();
    return iterator(std::find_if(position + 1, m_collection.End(), HasImported));
}

VTroubleCodeCollection& VTroubleCodeCollectionCollection::operator[](unsigned int i) const {
    Require(i < m_collection.Count(), CheckSite::TroubleCodeCollectionCollectionAt);
    return m_collection[i];
}

unsigned int VTroubleCodeCollectionCollection::GetIndex(VTroubleCodeCollection& collection) const {
    const auto position = m_collection.Find(collection);
    Require(position != m_collection.End(), CheckSite::TroubleCodeCollectionCollectionGetIndex);
    return static_cast<unsigned int>(position - m_collection.Begin());
}

unsigned int VTroubleCodeCollectionCollection::ImportedCount() const {
    return static_cast<unsigned int>(std::count_if(m_collection.Begin(), m_collection.End(), HasImported));
}

unsigned int VTroubleCodeCollectionCollection::ImportedTroubleCodesCount() const {
    unsigned int count = 0;
    detail::ForEach(m_collection, [&](const VTroubleCodeCollection& each) { count += each.ImportedCount(); });
    return count;
}

unsigned long long VTroubleCodeCollectionCollection::TroubleCodesCount() const {
    unsigned long long count = 0;
    detail::ForEach(m_collection, [&](const VTroubleCodeCollection& each) { count += each.Count(); });
    return count;
}

void VTroubleCodeCollectionCollection::Clear() {
    m_collection.Clear();
}

void VTroubleCodeCollectionCollection::Remove(VTroubleCodeCollection& collection) {
    const auto position = m_collection.Find(collection);
    Require(position != m_collection.End(), CheckSite::TroubleCodeCollectionCollectionRemove);
    _Remove(position);
}

void VTroubleCodeCollectionCollection::Remove(iterator position) {
    Require(position != End(), CheckSite::TroubleCodeCollectionCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VTroubleCodeCollectionCollection::SetIsImportedTroubleCodes(bool isImported) {
    detail::ForEach(m_collection, [=](VTroubleCodeCollection& each) { each.SetIsImportedTroubleCodes(isImported); });
}

void VTroubleCodeCollectionCollection::_Insert(detail::OwningArray<VTroubleCodeCollection>::Position position,
                                               VTroubleCodeCollection& collection) {
    m_collection.Insert(position, collection);
}

void VTroubleCodeCollectionCollection::_Remove(detail::OwningArray<VTroubleCodeCollection>::Position position) {
    Require(position != m_collection.End(), CheckSite::TroubleCodeCollectionCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
