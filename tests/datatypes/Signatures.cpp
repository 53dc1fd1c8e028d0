// What the tests of behaviour cannot tell of the operations of the data types and interchangeables: the exact types of
// results, and who may call.
#include "support/Signatures.h"

#include <ImportDame/ImportDame.h>

using namespace ImportDame;
using TestSupport::g_has;
using TestSupport::HasPublicRemovalAt;

namespace {

static_assert(g_has<VDataType, VDataTypeCollection&(), &VDataType::DataTypeCollection>);
static_assert(g_has<VDataType, VInvalidRangeCollection&(), &VDataType::InvalidRangeCollection>);
static_assert(g_has<VDataType, const bool&() const, &VDataType::GetMayBeModified>);
static_assert(g_has<VDataType, void(const bool&), &VDataType::SetMayBeModified>);
static_assert(g_has<VDataType, const VDataType::VSourceLayerInfo&() const, &VDataType::GetSourceLayerInfo>);
static_assert(g_has<VDataType, void(const VDataType::VSourceLayerInfo&), &VDataType::SetSourceLayerInfo>);
static_assert(g_has<VDataType, VDataType::VReasonForIsImported(), &VDataType::ReasonForIsImported>);
static_assert(g_has<VDataType, void(VDataType::VReasonForIsImported), &VDataType::ReasonForIsImported>);
static_assert(g_has<VDataType, bool(), &VDataType::IsCodedAtom>);
static_assert(g_has<VDataType, bool(), &VDataType::IsCodedText>);
static_assert(g_has<VDataType, bool(), &VDataType::IsPhysicalAtom>);
static_assert(g_has<VDataType, bool(), &VDataType::IsPhysicalText>);
static_assert(g_has<VDataType, void(VDataTypeVisitor&), &VDataType::Accept>);

using DataTypes = VDataTypeCollection;
static_assert(g_has<DataTypes, VFormulaDataType&(), &DataTypes::AddNewFormulaDataType>);
static_assert(g_has<DataTypes, VMuxDataType&(), &DataTypes::AddNewMuxDataType>);
static_assert(g_has<DataTypes, void(VDataType&), &DataTypes::AppendDataType>);
static_assert(g_has<DataTypes, void(VTextTableDataType&), &DataTypes::AppendTextTableDataType>);
static_assert(g_has<DataTypes, DataTypes::iterator(VDataType&), &DataTypes::Find>);
static_assert(g_has<DataTypes, DataTypes::iterator(VQualified&), &DataTypes::Find>);
static_assert(g_has<DataTypes, unsigned long long() const, &DataTypes::Count>);
static_assert(g_has<DataTypes, unsigned int() const, &DataTypes::ImportedCount>);
static_assert(g_has<DataTypes, bool() const, &DataTypes::IsEmpty>);
static_assert(g_has<DataTypes, void(VDataType&), &DataTypes::Remove>);
static_assert(g_has<DataTypes, void(DataTypes::iterator), &DataTypes::Remove>);
static_assert(!HasPublicRemovalAt<DataTypes>);

template <class Collection>
concept AppendsMuxes = requires(Collection collection, VMuxDataType& mux) {
    collection.AppendMuxDataType(mux);
};

template <class Collection>
concept InsertsInPublic = requires(Collection collection, VDataType& dataType) {
    collection._Insert(collection.Begin().Unwrap(), dataType);
};

static_assert(!AppendsMuxes<DataTypes> && !InsertsInPublic<DataTypes>);

using Display = VPhysicalDisplayProperties;
static_assert(std::is_same_v<decltype(VCodedAtomProperties::c_neutralBitMask), const unsigned int>);
static_assert(g_has<VCodedAtomProperties, VProperties::VEncoding() const, &VCodedAtomProperties::GetEncoding>);
static_assert(g_has<VCodedAtomProperties, unsigned int() const, &VCodedAtomProperties::GetBitMask>);
static_assert(g_has<VFieldProperties, VFieldProperties::VSizeInfo() const, &VFieldProperties::GetSizeInfo>);
static_assert(g_has<VFieldProperties, unsigned int() const, &VFieldProperties::GetMaxLength>);
static_assert(g_has<VCodedProperties, VProperties::VQuantity() const, &VCodedProperties::GetQuantity>);
static_assert(g_has<VCodedProperties, VCodedAtomProperties&(), &VCodedProperties::CodedAtomProperties>);
static_assert(g_has<VCodedProperties, VFieldProperties&(), &VCodedProperties::CodedFieldProperties>);
static_assert(g_has<Display, const wchar_t*() const, &Display::GetUnit>);
static_assert(g_has<Display, void(const wchar_t*), &Display::SetUnit>);
static_assert(g_has<Display, bool() const, &Display::IsSigned>);
static_assert(g_has<Display, void(const bool&), &Display::SetSigned>);
static_assert(g_has<VPhysicalAtomProperties, Display&(), &VPhysicalAtomProperties::PhysicalDisplayProperties>);
static_assert(g_has<VPhysicalProperties, VPhysicalAtomProperties&(), &VPhysicalProperties::PhysicalAtomProperties>);
static_assert(g_has<VPhysicalProperties, VFieldProperties&(), &VPhysicalProperties::PhysicalFieldProperties>);

static_assert(g_has<VValueTableDataType, bool(), &VValueTableDataType::IsInterpolated>);
static_assert(g_has<VValueTableDataType, void(bool), &VValueTableDataType::IsInterpolated>);
static_assert(g_has<VFormulaDataType, const wchar_t*(), &VFormulaDataType::GetCodedToPhysFormula>);
static_assert(g_has<VFormulaDataType, const wchar_t*(), &VFormulaDataType::GetPhysToCodedFormula>);
static_assert(g_has<VFormulaDataType, bool(), &VFormulaDataType::HasPhysToCodedFormula>);

static_assert(g_has<VBasePacketDataType, bool() const, &VBasePacketDataType::NeedsSelector>);
static_assert(g_has<VPacketDataType, bool(), &VPacketDataType::HasDid>);
static_assert(g_has<VPacketDataType, unsigned int(), &VPacketDataType::GetDid>);
static_assert(g_has<VPacketDataType, void(unsigned int), &VPacketDataType::SetDid>);
static_assert(g_has<VPacketDataType, bool() const, &VPacketDataType::GetShowContentsOnlyForTester>);
static_assert(g_has<VMuxDataType, VDataType&(), &VMuxDataType::GetSelectorDataType>);
static_assert(g_has<VMuxDataType, const unsigned int&() const, &VMuxDataType::GetMuxStartBitPosition>);
static_assert(g_has<VMuxDataType, const unsigned int&() const, &VMuxDataType::GetSelectorStartBitPosition>);
using Numerator = VNumeratorIterDataType;
static_assert(g_has<Numerator, VDataType&(), &Numerator::GetSelectorDataType>);
static_assert(g_has<Numerator, const unsigned int&() const, &Numerator::GetContentStartBitPosition>);
static_assert(g_has<Numerator, const unsigned int&() const, &Numerator::GetSelectorStartBitPosition>);
static_assert(g_has<Numerator, const unsigned int&() const, &Numerator::GetOffset>);
static_assert(g_has<VStaticIterDataType, const unsigned int&() const, &VStaticIterDataType::GetNumOfItems>);
static_assert(g_has<VEndMarkerIterDataType, VValue&(), &VEndMarkerIterDataType::TerminationValue>);
static_assert(g_has<VEndMarkerIterDataType, VDataType&(), &VEndMarkerIterDataType::GetTerminationDataType>);
using EndOfService = VEndOfServiceIterDataType;
static_assert(g_has<EndOfService, const unsigned int&() const, &EndOfService::GetMinNumberOfItems>);
static_assert(g_has<EndOfService, const unsigned int&() const, &EndOfService::GetMaxNumberOfItems>);
static_assert(g_has<VCaseCollection, VCase&(), &VCaseCollection::AddNewCase>);
static_assert(g_has<VCaseCollection, void(VCase&), &VCaseCollection::Remove>);

static_assert(g_has<VBaseDataObject, VDataType*(), &VBaseDataObject::GetDataType>);
static_assert(g_has<VBaseDataObject, void(VDataType*), &VBaseDataObject::SetDataType>);
static_assert(g_has<VBaseDataObject, VBaseDataObject::VSemantics(), &VBaseDataObject::GetSemantics>);
static_assert(g_has<VDataObject, bool(), &VDataObject::HasDefaultValue>);
static_assert(g_has<VDataObject, VValue(), &VDataObject::GetDefaultValue>);
static_assert(g_has<VDataObject, void(const VValue&), &VDataObject::SetDefaultValue>);
static_assert(g_has<VDataObject, bool(), &VDataObject::HasConstValue>);
static_assert(g_has<VDataObject, VValue(), &VDataObject::GetConstValue>);
static_assert(g_has<VDataObject, bool() const, &VDataObject::HasSelectorDataObject>);
static_assert(g_has<VDataObject, VDataObject&(), &VDataObject::GetSelectorDataObject>);
static_assert(g_has<VGapObject, unsigned int(), &VGapObject::GetBitLength>);
using Members = VInterchangeableCollection;
static_assert(g_has<Members, VInterchangeable*(), &Members::GetLastElement>);
static_assert(g_has<Members, Members::iterator(VInterchangeable&), &Members::Find>);
static_assert(g_has<Members, Members::iterator(VQualified&), &Members::Find>);
static_assert(g_has<Members, unsigned int() const, &Members::ImportedCount>);
static_assert(g_has<Members, void(bool), &Members::SetIsImportedInterchangeables>);
static_assert(!HasPublicRemovalAt<Members>);

} // namespace
