#include <ImportDame/FunctionCollection.h>

#include <ImportDame/Function.h>

#include "core/Require.h"

namespace ImportDame {

VFunctionCollection::VFunctionCollection() = default;

VFunctionCollection::~VFunctionCollection() = default;

VFunction& VFunctionCollection::AddNewFunction() {
    return m_collection.InsertNew();
}

void VFunctionCollection::Clear() {
    m_collection.Clear();
}

void VFunctionCollection::Remove(VFunction& function) {
    const auto position = m_collection.Find(function);
    detail::Require(position != m_collection.End(), detail::CheckSite::FunctionCollectionRemove);
    m_collection.TakeOut(position).release(); // the caller's from now on
}

bool VFunctionCollection::operator==(const VFunctionCollection& other) const {
    return m_collection == other.m_collection;
}

bool VFunctionCollection::operator!=(const VFunctionCollection& other) const {
    return !(*this == other);
}

} // namespace ImportDame
