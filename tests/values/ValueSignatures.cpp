/// The types of the operations of this folder. Compiling them is the test.

#include "support/Signature.h"

#include <ImportDame/AdditionalFile.h>
#include <ImportDame/AdditionalFileCollection.h>
#include <ImportDame/Conversion.h>
#include <ImportDame/File.h>
#include <ImportDame/Function.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/Range.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>
#include <ImportDame/Value.h>
#include <ImportDame/ValueTableRow.h>
#include <ImportDame/ValueTableRowCollection.h>
#include <ImportDame/ValueUtil.h>

#include <type_traits>

namespace {

using namespace ImportDame;
using TestSupport::Has;

using Text = const wchar_t*;

static_assert(requires {
    Has<VValue&(const VValue&)>(&VValue::operator=);
    Has<void(Text)>(&VValue::Set);
    Has<Text()>(&VValue::Get);
    Has<void(double)>(&VValue::SetAsDouble);
    Has<double() const>(&VValue::GetAsDouble);
    Has<void(Text)>(&VValue::AddFieldElement);
    Has<void(Text)>(&VValue::SetTextField);
    Has<void(Text)>(&VValue::SetNonTextField);
    Has<void()>(&VValue::ClearField);
    Has<bool() const>(&VValue::IsField);
    Has<bool()>(&VValue::IsFieldEmpty);
    Has<unsigned long long()>(&VValue::GetFieldSize);
    Has<Text(unsigned int) const>(&VValue::GetElement);
    Has<void(bool)>(&VValue::IsPhysical);
    Has<bool()>(&VValue::IsPhysical);
    Has<bool(const VValue&) const>(&VValue::operator==);
    Has<bool(const VValue&) const>(&VValue::operator!=);
    Has<bool(const VValue&) const>(&VValue::operator>=);
    Has<bool(const VValue&) const>(&VValue::operator<=);
});

static_assert(requires {
    Has<VRange&(const VRange&)>(&VRange::operator=);
    Has<void(const VValue&)>(&VRange::SetStartValue);
    Has<void(VValue &&) noexcept>(&VRange::SetStartValue);
    Has<void()>(&VRange::UnsetStartValue);
    Has<bool() const>(&VRange::HasStartValue);
    Has<VValue()>(&VRange::GetStartValue);
    Has<void(const VValue&)>(&VRange::SetEndValue);
    Has<void(VValue &&) noexcept>(&VRange::SetEndValue);
    Has<void()>(&VRange::UnsetEndValue);
    Has<bool() const>(&VRange::HasEndValue);
    Has<VValue()>(&VRange::GetEndValue);
    Has<bool(const VRange&) const>(&VRange::operator==);
    Has<bool(const VRange&) const>(&VRange::operator!=);
});

static_assert(requires {
    Has<void(const VValue&, const VValue&)>(&VInvalidRange::SetRange);
    Has<VInvalidRange::VInvalidity()>(&VInvalidRange::GetInvalidity);
    Has<void(VInvalidRange::VInvalidity)>(&VInvalidRange::SetInvalidity);
    Has<Text()>(&VInvalidRange::GetAssignedText);
    Has<void(Text)>(&VInvalidRange::SetAssignedText);
    Has<VText&()>(&VInvalidRange::AssignedText);
    Has<bool(const VInvalidRange&) const>(&VInvalidRange::operator==);
    Has<bool(const VInvalidRange&) const>(&VInvalidRange::operator!=);
});

static_assert(requires {
    Has<VInvalidRange&()>(&VInvalidRangeCollection::AddNewInvalidRange);
    Has<VDataType&()>(&VInvalidRangeCollection::GetDataType);
    Has<VInvalidRangeCollection::iterator()>(&VInvalidRangeCollection::Begin);
    Has<VInvalidRangeCollection::iterator()>(&VInvalidRangeCollection::End);
    Has<VInvalidRangeCollection::iterator()>(&VInvalidRangeCollection::begin);
    Has<VInvalidRangeCollection::iterator()>(&VInvalidRangeCollection::end);
    Has<unsigned long long() const>(&VInvalidRangeCollection::Count);
    Has<bool() const>(&VInvalidRangeCollection::IsEmpty);
    Has<void()>(&VInvalidRangeCollection::Clear);
    Has<void(VInvalidRange&)>(&VInvalidRangeCollection::Remove);
});

static_assert(requires {
    Has<Text() const>(&VUnit::GetDisplayName);
    Has<void(Text)>(&VUnit::SetDisplayName);
});

static_assert(requires {
    Has<VUnit&()>(&VUnitCollection::AddNewUnit);
    Has<VUnitCollection::iterator()>(&VUnitCollection::Begin);
    Has<VUnitCollection::iterator()>(&VUnitCollection::End);
    Has<VUnitCollection::iterator()>(&VUnitCollection::begin);
    Has<VUnitCollection::iterator()>(&VUnitCollection::end);
    Has<unsigned long long() const>(&VUnitCollection::Count);
    Has<bool() const>(&VUnitCollection::IsEmpty);
    Has<void()>(&VUnitCollection::Clear);
    Has<void(VUnit&)>(&VUnitCollection::Remove);
    Has<unsigned int() const>(&VUnitCollection::ImportedCount);
});

static_assert(requires {
    Has<VValue()>(&VConversion::GetCompuInverseValue);
    Has<bool() const>(&VConversion::HasCompuInverseValue);
    Has<void(const VValue&)>(&VConversion::SetCompuInverseValue);
});

static_assert(requires {
    Has<double()>(&VLinearConversion::GetFactorNumerator);
    Has<void(double)>(&VLinearConversion::SetFactorNumerator);
    Has<unsigned int()>(&VLinearConversion::GetFactorDenominator);
    Has<void(unsigned int)>(&VLinearConversion::SetFactorDenominator);
    Has<double()>(&VLinearConversion::GetOffset);
    Has<void(double)>(&VLinearConversion::SetOffset);
    Has<VRange&()>(&VLinearConversion::GetRange);
    Has<double()>(&VLinearConversion::GetStartValue);
    Has<void(double)>(&VLinearConversion::SetStartValue);
    Has<double()>(&VLinearConversion::GetEndValue);
    Has<void(double)>(&VLinearConversion::SetEndValue);
    Has<bool()>(&VLinearConversion::HasStartValue);
    Has<bool()>(&VLinearConversion::HasEndValue);
    Has<bool(const VLinearConversion&) const>(&VLinearConversion::operator==);
    Has<bool(const VLinearConversion&) const>(&VLinearConversion::operator!=);
});

static_assert(requires {
    Has<VRange&()>(&VTextTableRow::GetRange);
    Has<VValue()>(&VTextTableRow::GetStartValue);
    Has<void(VValue&)>(&VTextTableRow::SetStartValue);
    Has<VValue()>(&VTextTableRow::GetEndValue);
    Has<void(VValue&)>(&VTextTableRow::SetEndValue);
    Has<Text()>(&VTextTableRow::GetMappedValue);
    Has<void(Text)>(&VTextTableRow::SetMappedValue);
    Has<VText&()>(&VTextTableRow::MappedValue);
    Has<Text()>(&VTextTableRow::GetAdditionalInfo);
    Has<void(Text)>(&VTextTableRow::SetAdditionalInfo);
    Has<VText&()>(&VTextTableRow::AdditionalInfo);
    Has<bool(const VTextTableRow&) const>(&VTextTableRow::operator==);
    Has<bool(const VTextTableRow&) const>(&VTextTableRow::operator!=);
});

static_assert(requires {
    Has<double() const>(&VValueTableRow::GetCodedValue);
    Has<void(double)>(&VValueTableRow::SetCodedValue);
    Has<double() const>(&VValueTableRow::GetMappedValue);
    Has<void(double)>(&VValueTableRow::SetMappedValue);
    Has<bool(const VValueTableRow&) const>(&VValueTableRow::operator==);
    Has<bool(const VValueTableRow&) const>(&VValueTableRow::operator!=);
});

static_assert(requires {
    Has<VFile&(const VFile&)>(&VFile::operator=);
    Has<Text()>(&VFile::GetPath);
    Has<void(Text)>(&VFile::SetPath);
});

static_assert(requires { Has<VAdditionalFile&(const VAdditionalFile&)>(&VAdditionalFile::operator=); });

static_assert(requires {
    Has<Text() const>(&VFunction::GetVersion);
    Has<void(Text)>(&VFunction::SetVersion);
    Has<Text() const>(&VFunction::GetEntryPoint);
    Has<void(Text)>(&VFunction::SetEntryPoint);
    Has<Text() const>(&VFunction::GetSyntax);
    Has<void(Text)>(&VFunction::SetSyntax);
    Has<Text() const>(&VFunction::GetEncryption);
    Has<void(Text)>(&VFunction::SetEncryption);
    Has<VFile&()>(&VFunction::SourceFile);
    Has<VAdditionalFileCollection&()>(&VFunction::AdditionalFileCollection);
});

static_assert(requires {
    Has<VLinearConversion&()>(&VLinearConversionCollection::AddNewLinearConversion);
    Has<VLinearConversionCollection::iterator()>(&VLinearConversionCollection::Begin);
    Has<VLinearConversionCollection::iterator()>(&VLinearConversionCollection::End);
    Has<VLinearConversionCollection::iterator()>(&VLinearConversionCollection::begin);
    Has<VLinearConversionCollection::iterator()>(&VLinearConversionCollection::end);
    Has<unsigned long long() const>(&VLinearConversionCollection::Count);
    Has<bool() const>(&VLinearConversionCollection::IsEmpty);
    Has<void()>(&VLinearConversionCollection::Clear);
    Has<void(VLinearConversion&)>(&VLinearConversionCollection::Remove);
    Has<bool(const VLinearConversionCollection&) const>(&VLinearConversionCollection::operator==);
    Has<bool(const VLinearConversionCollection&) const>(&VLinearConversionCollection::operator!=);
});

static_assert(requires {
    Has<VTextTableRow&()>(&VTextTableRowCollection::AddNewTextTableRow);
    Has<VText&()>(&VTextTableRowCollection::DefaultValue);
    Has<VTextTableRowCollection::iterator()>(&VTextTableRowCollection::Begin);
    Has<VTextTableRowCollection::iterator()>(&VTextTableRowCollection::End);
    Has<VTextTableRowCollection::iterator()>(&VTextTableRowCollection::begin);
    Has<VTextTableRowCollection::iterator()>(&VTextTableRowCollection::end);
    Has<unsigned long long() const>(&VTextTableRowCollection::Count);
    Has<bool() const>(&VTextTableRowCollection::IsEmpty);
    Has<void()>(&VTextTableRowCollection::Clear);
    Has<void(VTextTableRow&)>(&VTextTableRowCollection::Remove);
    Has<bool(const VTextTableRowCollection&) const>(&VTextTableRowCollection::operator==);
    Has<bool(const VTextTableRowCollection&) const>(&VTextTableRowCollection::operator!=);
});

static_assert(requires {
    Has<VValueTableRow&()>(&VValueTableRowCollection::AddNewValueTableRow);
    Has<VValueTableRowCollection::iterator()>(&VValueTableRowCollection::Begin);
    Has<VValueTableRowCollection::iterator()>(&VValueTableRowCollection::End);
    Has<VValueTableRowCollection::iterator()>(&VValueTableRowCollection::begin);
    Has<VValueTableRowCollection::iterator()>(&VValueTableRowCollection::end);
    Has<unsigned long long() const>(&VValueTableRowCollection::Count);
    Has<bool() const>(&VValueTableRowCollection::IsEmpty);
    Has<void()>(&VValueTableRowCollection::Clear);
    Has<void(VValueTableRow&)>(&VValueTableRowCollection::Remove);
    Has<bool(const VValueTableRowCollection&) const>(&VValueTableRowCollection::operator==);
    Has<bool(const VValueTableRowCollection&) const>(&VValueTableRowCollection::operator!=);
});

static_assert(requires {
    Has<VFunction&()>(&VFunctionCollection::AddNewFunction);
    Has<VFunctionCollection::iterator()>(&VFunctionCollection::Begin);
    Has<VFunctionCollection::iterator()>(&VFunctionCollection::End);
    Has<VFunctionCollection::iterator()>(&VFunctionCollection::begin);
    Has<VFunctionCollection::iterator()>(&VFunctionCollection::end);
    Has<unsigned long long() const>(&VFunctionCollection::Count);
    Has<bool() const>(&VFunctionCollection::IsEmpty);
    Has<void()>(&VFunctionCollection::Clear);
    Has<void(VFunction&)>(&VFunctionCollection::Remove);
    Has<bool(const VFunctionCollection&) const>(&VFunctionCollection::operator==);
    Has<bool(const VFunctionCollection&) const>(&VFunctionCollection::operator!=);
});

static_assert(requires {
    Has<VAdditionalFile&()>(&VAdditionalFileCollection::AddNewAdditionalFile);
    Has<VAdditionalFileCollection::iterator()>(&VAdditionalFileCollection::Begin);
    Has<VAdditionalFileCollection::iterator()>(&VAdditionalFileCollection::End);
    Has<VAdditionalFileCollection::iterator()>(&VAdditionalFileCollection::begin);
    Has<VAdditionalFileCollection::iterator()>(&VAdditionalFileCollection::end);
    Has<unsigned long long() const>(&VAdditionalFileCollection::Count);
    Has<bool() const>(&VAdditionalFileCollection::IsEmpty);
    Has<void()>(&VAdditionalFileCollection::Clear);
    Has<void(VAdditionalFile&)>(&VAdditionalFileCollection::Remove);
    Has<bool(const VAdditionalFileCollection&) const>(&VAdditionalFileCollection::operator==);
    Has<bool(const VAdditionalFileCollection&) const>(&VAdditionalFileCollection::operator!=);
});

static_assert(std::is_same_v<decltype(&::NValueUtil::StrToDbl), double (*)(Text, unsigned int, bool*)>);

} // namespace
