/// The types of the operations of this folder. Compiling them is the test.

#include "support/Signature.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/LgAssertException.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/Text.h>

#include <type_traits>

namespace {

using namespace ImportDame;
using TestSupport::Has;

using Text = const wchar_t*;

static_assert(requires {
    Has<VText&(const VText&)>(&VText::operator=);
    Has<bool(const VText&) const>(&VText::operator==);
    Has<bool(const VText&) const>(&VText::operator!=);
    Has<Text() const>(&VText::GetText);
    Has<void(Text)>(&VText::SetText);
    Has<Text() const>(&VText::GetTextId);
    Has<void(Text)>(&VText::SetTextId);
    Has<bool() const>(&VText::HasTextId);
});

static_assert(requires {
    Has<VImportDoc&() const>(&VImportDocChild::ImportDoc);
    Has<void()>(&VImportDocChild::Destroy);
});

static_assert(requires {
    Has<Text() const>(&VQualified::GetQualifier);
    Has<void(Text)>(&VQualified::SetQualifier);
    Has<Text() const>(&VQualified::GetName);
    Has<void(Text)>(&VQualified::SetName);
    Has<Text() const>(&VQualified::GetDescription);
    Has<void(Text)>(&VQualified::SetDescription);
    Has<void(bool)>(&VQualified::IsImported);
    Has<bool()>(&VQualified::IsImported);
    Has<bool(VQualified&)>(&VQualified::CompareContent);
    Has<Text() const>(&VQualified::GetSourceInfo);
    Has<void(Text)>(&VQualified::SetSourceInfo);
    Has<VAttributeCollection&()>(&VQualified::Attributes);
    Has<bool() const>(&VQualified::HasObjectIdentifier);
    Has<Text() const>(&VQualified::GetObjectIdentifier);
    Has<void(Text)>(&VQualified::SetObjectIdentifier);
    Has<VText&()>(&VQualified::Name);
    Has<VText&()>(&VQualified::Description);
    Has<const unsigned int&() const>(&VQualified::UniquenessId);
});

static_assert(requires {
    Has<Text() const>(&VAttribute::GetValue);
    Has<void(Text)>(&VAttribute::SetValue);
});

static_assert(requires {
    Has<VAttribute&()>(&VAttributeCollection::AddNewAttribute);
    Has<VAttributeCollection::iterator()>(&VAttributeCollection::Begin);
    Has<VAttributeCollection::iterator()>(&VAttributeCollection::End);
    Has<VAttributeCollection::iterator()>(&VAttributeCollection::begin);
    Has<VAttributeCollection::iterator()>(&VAttributeCollection::end);
    Has<unsigned long long() const>(&VAttributeCollection::Count);
    Has<bool() const>(&VAttributeCollection::IsEmpty);
    Has<void()>(&VAttributeCollection::Clear);
    Has<void(VAttribute&)>(&VAttributeCollection::Remove);
    Has<void(VAttributeCollection::iterator)>(&VAttributeCollection::Remove);
    Has<unsigned int() const>(&VAttributeCollection::ImportedCount);
    Has<VAttributeCollection::iterator(VQualified&)>(&VAttributeCollection::Find);
    Has<VAttributeCollection::iterator(Text)>(&VAttributeCollection::Find);
    Has<void(bool)>(&VAttributeCollection::SetIsImportedAttributes);
});

static_assert(requires {
    Has<bool() const>(&VImportDoc::IsConstructed);
    Has<Text()>(&VImportDoc::GetLanguage);
    Has<void(Text)>(&VImportDoc::SetLanguage);
    Has<Text()>(&VImportDoc::GetEcuName);
    Has<void(Text)>(&VImportDoc::SetEcuName);
    Has<Text() const>(&VImportDoc::GetKDIVersion);
    Has<void(Text)>(&VImportDoc::SetKDIVersion);
    Has<VDataTypeCollection&()>(&VImportDoc::DataTypeCollection);
    Has<VTroubleCodeCollectionCollection&()>(&VImportDoc::TroubleCodeCollectionCollection);
    Has<VInterchangeableCollection&()>(&VImportDoc::InterchangeableCollection);
    Has<VBaseVariant&()>(&VImportDoc::GetBaseVariant);
    Has<VUnitCollection&()>(&VImportDoc::UnitCollection);
});

static_assert(requires {
    Has<VAttribute&()>(&VImportDoc::MakeAttribute);
    Has<VAttributeCollection&()>(&VImportDoc::MakeAttributeCollection);
    Has<VTroubleCode&()>(&VImportDoc::MakeTroubleCode);
    Has<VTroubleCodeCollection&()>(&VImportDoc::MakeTroubleCodeCollection);
    Has<VFormulaDataType&()>(&VImportDoc::MakeFormulaDataType);
    Has<VIdentityDataType&()>(&VImportDoc::MakeIdentityDataType);
    Has<VLinearDataType&()>(&VImportDoc::MakeLinearDataType);
    Has<VPiecewiseLinearDataType&()>(&VImportDoc::MakePiecewiseLinearDataType);
    Has<VProcedureDataType&()>(&VImportDoc::MakeProcedureDataType);
    Has<VTextTableDataType&()>(&VImportDoc::MakeTextTableDataType);
    Has<VValueTableDataType&()>(&VImportDoc::MakeValueTableDataType);
    Has<VMuxDataType&()>(&VImportDoc::MakeMuxDataType);
    Has<VPacketDataType&()>(&VImportDoc::MakePacketDataType);
    Has<VEndMarkerIterDataType&()>(&VImportDoc::MakeEndMarkerIterDataType);
    Has<VEndOfServiceIterDataType&()>(&VImportDoc::MakeEndOfServiceIterDataType);
    Has<VNumeratorIterDataType&()>(&VImportDoc::MakeNumeratorIterDataType);
    Has<VStaticIterDataType&()>(&VImportDoc::MakeStaticIterDataType);
});

// These two throw nothing either.
static_assert(
    std::is_same_v<decltype(&VLgAssertException::GetExpression), const char* (VLgAssertException::*)() const noexcept>);
static_assert(
    std::is_same_v<decltype(&VLgAssertException::GetErrorCode), int (VLgAssertException::*)() const noexcept>);

} // namespace
