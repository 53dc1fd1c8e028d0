#include <ImportDame/DataTypeCollection.h>

#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VDataTypeCollection::VDataTypeCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VDataTypeCollection::~VDataTypeCollection() = default;

VFormulaDataType& VDataTypeCollection::AddNewFormulaDataType() {
    return m_collection.AppendNew<VFormulaDataType>(*this);
}

VIdentityDataType& VDataTypeCollection::AddNewIdentityDataType() {
    return m_collection.AppendNew<VIdentityDataType>(*this);
}

VLinearDataType& VDataTypeCollection::AddNewLinearDataType() {
    return m_collection.AppendNew<VLinearDataType>(*this);
}

VMuxDataType& VDataTypeCollection::AddNewMuxDataType() {
    return m_collection.AppendNew<VMuxDataType>(*this);
}

VPacketDataType& VDataTypeCollection::AddNewPacketDataType() {
    return m_collection.AppendNew<VPacketDataType>(*this);
}

VPiecewiseLinearDataType& VDataTypeCollection::AddNewPiecewiseLinearDataType() {
    return m_collection.AppendNew<VPiecewiseLinearDataType>(*this);
}

VProcedureDataType& VDataTypeCollection::AddNewProcedureDataType() {
    return m_collection.AppendNew<VProcedureDataType>(*this);
}

VTextTableDataType& VDataTypeCollection::AddNewTextTableDataType() {
    return m_collection.AppendNew<VTextTableDataType>(*this);
}

VValueTableDataType& VDataTypeCollection::AddNewValueTableDataType() {
    return m_collection.AppendNew<VValueTableDataType>(*this);
}

void VDataTypeCollection::AppendDataType(VDataType& dataType) {
    _Insert(m_collection.End(), dataType);
}

void VDataTypeCollection::AppendFormulaDataType(VFormulaDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendIdentityDataType(VIdentityDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendLinearDataType(VLinearDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendPacketDataType(VPacketDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendProcedureDataType(VProcedureDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendTextTableDataType(VTextTableDataType& dataType) {
    AppendDataType(dataType);
}

void VDataTypeCollection::AppendValueTableDataType(VValueTableDataType& dataType) {
    AppendDataType(dataType);
}

VDataTypeCollection::iterator VDataTypeCollection::Find(VDataType& dataType) {
    return iterator(m_collection.Find(dataType));
}

VDataTypeCollection::iterator VDataTypeCollection::Find(VQualified& dataType) {
    return iterator(detail::FindSame(m_collection, dataType));
}

unsigned int VDataTypeCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

void VDataTypeCollection::Clear() {
    m_collection.Clear();
}

void VDataTypeCollection::Remove(VDataType& dataType) {
    const auto position = m_collection.Find(dataType);
    detail::Require(position != m_collection.End(), detail::CheckSite::DataTypeCollectionRemove);
    _Remove(position);
}

void VDataTypeCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::DataTypeCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VDataTypeCollection::SetIsImportedDataTypes(bool isImported, VDataType::VReasonForIsImported reason) {
    detail::ForEach(m_collection, [=](VDataType& dataType) {
        dataType.IsImported(isImported);
        dataType.ReasonForIsImported(reason);
    });
}

void VDataTypeCollection::_Insert(detail::OwningArray<VDataType>::Position position, VDataType& dataType) {
    m_collection.Insert(position, dataType);
}

void VDataTypeCollection::_Remove(detail::OwningArray<VDataType>::Position position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::DataTypeCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
