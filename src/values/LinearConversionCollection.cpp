#include <ImportDame/LinearConversionCollection.h>

#include <ImportDame/LinearConversion.h>

#include "core/Require.h"

namespace ImportDame {

VLinearConversionCollection::VLinearConversionCollection() = default;

VLinearConversionCollection::~VLinearConversionCollection() = default;

VLinearConversion& VLinearConversionCollection::AddNewLinearConversion() {
    return m_collection.InsertNew();
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
