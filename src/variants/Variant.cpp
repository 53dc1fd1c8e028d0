#include <ImportDame/Variant.h>

#include <ImportDame/DiagComm.h>

#include "core/Require.h"

namespace ImportDame {

VVariant::VVariant(VImportDoc& importDoc) : VQualified(importDoc), m_diagCommCollection(importDoc) {
    VVariant::IsImported(false);
}

VVariant::VVariant(const VVariant& other)
    : VQualified(other), m_variantIsLockedInTarget(other.m_variantIsLockedInTarget),
      m_diagCommCollection(other.ImportDoc()) {
    VVariant::IsImported(false);
}

VVariant::~VVariant() = default;

void VVariant::IsImported(bool isImported) {
    VQualified::IsImported(isImported);
    for (VDiagComm& diagComm : m_diagCommCollection)
        diagComm.IsImported(isImported);
}

bool VVariant::IsImported() {
    return VQualified::IsImported();
}

bool VVariant::IsImportedCompletly() {
    bool isImported = IsImported();
    for (VDiagComm& diagComm : m_diagCommCollection)
        isImported = diagComm.IsImportedCompletly() && isImported;
    return isImported;
}

bool VVariant::GetVariantIsLockedInTarget() const {
    return m_variantIsLockedInTarget;
}

void VVariant::SetVariantIsLockedInTarget(bool isLocked) {
    m_variantIsLockedInTarget = isLocked;
}

void VVariant::SetTargetVariantQualifier(const wchar_t* targetVariantQualifier) {
    detail::Require(targetVariantQualifier != nullptr, detail::CheckSite::VariantSetTargetVariantQualifier);
    m_targetVariantQualifier.Set(targetVariantQualifier);
    IsImported(true);
}

void VVariant::UnsetTargetVariantQualifier() {
    m_targetVariantQualifier.Clear();
    IsImported(false);
}

void VVariant::SetReferenceFromVariantQualifier(const wchar_t* qualifierOfVariantToReferenceFrom) {
    detail::Require(qualifierOfVariantToReferenceFrom != nullptr,
                    detail::CheckSite::VariantSetReferenceFromVariantQualifier);
    m_referenceFromVariantQualifier.Set(qualifierOfVariantToReferenceFrom);
}

void VVariant::UnsetReferenceFromVariantQualifier() {
    m_referenceFromVariantQualifier.Clear();
}

} // namespace ImportDame
