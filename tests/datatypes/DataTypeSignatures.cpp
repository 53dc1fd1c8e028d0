// What the tests of behaviour cannot tell of the operations of the data types and interchangeables: the exact types of
// results, and who may call.
#include "support/Signature.h"

#include <ImportDame/ImportDame.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::Has;

namespace {

template <class Collection>
concept RemovesAtInPublic = requires(Collection collection) {
    collection._Remove(collection.Begin().Unwrap());
};

static_assert(requires {
    Has<VDataTypeCollection&()>(&VDataType::DataTypeCollection);
    Has<VInvalidRangeCollection&()>(&VDataType::InvalidRangeCollection);
    Has<const bool&() const>(&VDataType::GetMayBeModified);
    Has<void(const bool&)>(&VDataType::SetMayBeModified);
    Has<const VDataType::VSourceLayerInfo&() const>(&VDataType::GetSourceLayerInfo);
    Has<void(const VDataType::VSourceLayerInfo&)>(&VDataType::SetSourceLayerInfo);
    Has<VDataType::VReasonForIsImported()>(&VDataType::ReasonForIsImported);
    Has<void(VDataType::VReasonForIsImported)>(&VDataType::ReasonForIsImported);
    Has<bool()>(&VDataType::IsCodedAtom);
    Has<bool()>(&VDataType::IsCodedText);
    Has<bool()>(&VDataType::IsPhysicalAtom);
    Has<bool()>(&VDataType::IsPhysicalText);
    Has<void(VDataTypeVisitor&)>(&VDataType::Accept);
});

using DataTypes = VDataTypeCollection;
static_assert(requires {
    Has<VFormulaDataType&()>(&DataTypes::AddNewFormulaDataType);
    Has<VMuxDataType&()>(&DataTypes::AddNewMuxDataType);
    Has<void(VDataType&)>(&DataTypes::AppendDataType);
    Has<void(VTextTableDataType&)>(&DataTypes::AppendTextTableDataType);
    Has<DataTypes::iterator(VDataType&)>(&DataTypes::Find);
    Has<DataTypes::iterator(VQualified&)>(&DataTypes::Find);
    Has<unsigned long long() const>(&DataTypes::Count);
    Has<unsigned int() const>(&DataTypes::ImportedCount);
    Has<bool() const>(&DataTypes::IsEmpty);
    Has<void(VDataType&)>(&DataTypes::Remove);
    Has<void(DataTypes::iterator)>(&DataTypes::Remove);
});
static_assert(!RemovesAtInPublic<DataTypes>);

template <class Collection>
concept AppendsMuxes = requires(Collection collection, VMuxDataType& mux) {
    collection.AppendMuxDataType(mux);
};

template <class Collection>
concept InsertsInPublic = requires(Collection collection, VDataType& dataType) {
    collection._Insert(collection.Begin().Unwrap(), dataType);
};

struct ExposedDataTypes : DataTypes {
    using DataTypes::_Insert;
    using DataTypes::_Remove;
};

static_assert(!AppendsMuxes<DataTypes> && !InsertsInPublic<DataTypes>);
static_assert(InsertsInPublic<ExposedDataTypes> && RemovesAtInPublic<ExposedDataTypes>);

using Display = VPhysicalDisplayProperties;
static_assert(std::is_same_v<decltype(VCodedAtomProperties::c_neutralBitMask), const unsigned int>);
static_assert(requires {
    Has<VProperties::VEncoding() const>(&VCodedAtomProperties::GetEncoding);
    Has<unsigned int() const>(&VCodedAtomProperties::GetBitMask);
    Has<VFieldProperties::VSizeInfo() const>(&VFieldProperties::GetSizeInfo);
    Has<unsigned int() const>(&VFieldProperties::GetMaxLength);
    Has<VProperties::VQuantity() const>(&VCodedProperties::GetQuantity);
    Has<VCodedAtomProperties&()>(&VCodedProperties::CodedAtomProperties);
    Has<VFieldProperties&()>(&VCodedProperties::CodedFieldProperties);
    Has<const wchar_t*() const>(&Display::GetUnit);
    Has<void(const wchar_t*)>(&Display::SetUnit);
    Has<bool() const>(&Display::IsSigned);
    Has<void(const bool&)>(&Display::SetSigned);
    Has<Display&()>(&VPhysicalAtomProperties::PhysicalDisplayProperties);
    Has<VPhysicalAtomProperties&()>(&VPhysicalProperties::PhysicalAtomProperties);
    Has<VFieldProperties&()>(&VPhysicalProperties::PhysicalFieldProperties);
});

static_assert(requires {
    Has<bool()>(&VValueTableDataType::IsInterpolated);
    Has<void(bool)>(&VValueTableDataType::IsInterpolated);
    Has<const wchar_t*()>(&VFormulaDataType::GetCodedToPhysFormula);
    Has<const wchar_t*()>(&VFormulaDataType::GetPhysToCodedFormula);
    Has<bool()>(&VFormulaDataType::HasPhysToCodedFormula);
});

static_assert(requires {
    Has<bool() const>(&VBasePacketDataType::NeedsSelector);
    Has<bool()>(&VPacketDataType::HasDid);
    Has<unsigned int()>(&VPacketDataType::GetDid);
    Has<void(unsigned int)>(&VPacketDataType::SetDid);
    Has<bool() const>(&VPacketDataType::GetShowContentsOnlyForTester);
    Has<VDataType&()>(&VMuxDataType::GetSelectorDataType);
    Has<const unsigned int&() const>(&VMuxDataType::GetMuxStartBitPosition);
    Has<const unsigned int&() const>(&VMuxDataType::GetSelectorStartBitPosition);
});
using Numerator = VNumeratorIterDataType;
static_assert(requires {
    Has<VDataType&()>(&Numerator::GetSelectorDataType);
    Has<const unsigned int&() const>(&Numerator::GetContentStartBitPosition);
    Has<const unsigned int&() const>(&Numerator::GetSelectorStartBitPosition);
    Has<const unsigned int&() const>(&Numerator::GetOffset);
    Has<const unsigned int&() const>(&VStaticIterDataType::GetNumOfItems);
    Has<VValue&()>(&VEndMarkerIterDataType::TerminationValue);
    Has<VDataType&()>(&VEndMarkerIterDataType::GetTerminationDataType);
});
using EndOfService = VEndOfServiceIterDataType;
static_assert(requires {
    Has<const unsigned int&() const>(&EndOfService::GetMinNumberOfItems);
    Has<const unsigned int&() const>(&EndOfService::GetMaxNumberOfItems);
    Has<VCase&()>(&VCaseCollection::AddNewCase);
    Has<void(VCase&)>(&VCaseCollection::Remove);
});

static_assert(requires {
    Has<VDataType*()>(&VBaseDataObject::GetDataType);
    Has<void(VDataType*)>(&VBaseDataObject::SetDataType);
    Has<VBaseDataObject::VSemantics()>(&VBaseDataObject::GetSemantics);
    Has<bool()>(&VDataObject::HasDefaultValue);
    Has<VValue()>(&VDataObject::GetDefaultValue);
    Has<void(const VValue&)>(&VDataObject::SetDefaultValue);
    Has<void(VValue &&) noexcept>(&VDataObject::SetDefaultValue);
    Has<bool()>(&VDataObject::HasConstValue);
    Has<VValue()>(&VDataObject::GetConstValue);
    Has<void(const VValue&)>(&VDataObject::SetConstValue);
    Has<void(VValue &&) noexcept>(&VDataObject::SetConstValue);
    Has<bool() const>(&VDataObject::HasSelectorDataObject);
    Has<VDataObject&()>(&VDataObject::GetSelectorDataObject);
    Has<unsigned int()>(&VGapObject::GetBitLength);
});
using Members = VInterchangeableCollection;
static_assert(requires {
    Has<VInterchangeable*()>(&Members::GetLastElement);
    Has<Members::iterator(VInterchangeable&)>(&Members::Find);
    Has<Members::iterator(VQualified&)>(&Members::Find);
    Has<unsigned int() const>(&Members::ImportedCount);
    Has<void(bool)>(&Members::SetIsImportedInterchangeables);
});
static_assert(!RemovesAtInPublic<Members>);

} // namespace
