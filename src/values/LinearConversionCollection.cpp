#include <ImportDame/LinearConversionCollection.h>

#include <ImportDame/LinearConversion.h>

#include "core/Require.h"

namespace ImportDame {

VLinearConversionCollection::VLinearConversionCollection() = default;

VLinearConversionCollection::~VLinearConversionCollection() = default;

VLinearConversion& VLinearConversionCollection::AddNewLinearConversion() {
    return m_collection.InsertNew();
}

VLinearConversionCollection::iterator VLinearConversionCollection::Begin() {
    return iterator(m_collection.Begin());
}

VLinearConversionCollection::iterator VLinearConversionCollection::End() {
    return iterator(m_collection.End());
}

VLinearConversionCollection::iterator VLinearConversionCollection::begin() {
    return Begin();
}

VLinearConversionCollection::iterator VLinearConversionCollection::end() {
    return End();
}

unsigned long long VLinearConversionCollection::Count() const {
    return m_collection.Count();
}

bool VLinearConversionCollection::IsEmpty() const {
    return m_collection.IsEmpty();
}

void VLinearConversionCollection::Clear() {
    m_collection.Clear();
}

void VLinearConversionCollection::Remove(VLinearConversion& conversion) {
    const auto position = m_collection.Find(conversion);
    detail::Require(position != m_collection.End(), detail::CheckSite::LinearConversionCollectionRemove);
    m_collection.TakeOut(position).release(); // the caller's from now on
}

bool VLinearConversionCollection::operator==(const VLinearConversionCollection& other) const {
    return m_collection == other.m_collection;
}

bool VLinearConversionCollection::operator!=(const VLinearConversionCollection& other) const {
    return !(*this == other);
}

} // namespace ImportDame
