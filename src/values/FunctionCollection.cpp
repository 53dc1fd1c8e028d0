#include <ImportDame/FunctionCollection.h>

#include <ImportDame/Function.h>

#include "core/Require.h"

namespace ImportDame {

VFunctionCollection::VFunctionCollection() = default;

VFunctionCollection::~VFunctionCollection() = default;

VFunction& VFunctionCollection::AddNewFunction() {
    return m_collection.InsertNew();
}

VFunctionCollection::iterator VFunctionCollection::Begin() {
    return iterator(m_collection.Begin());
}

VFunctionCollection::iterator VFunctionCollection::End() {
    return iterator(m_collection.End());
}

VFunctionCollection::iterator VFunctionCollection::begin() {
    return Begin();
}

VFunctionCollection::iterator VFunctionCollection::end() {
    return End();
}

unsigned long long VFunctionCollection::Count() const {
    return m_collection.Count();
}

bool VFunctionCollection::IsEmpty() const {
    return m_collection.IsEmpty();
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
