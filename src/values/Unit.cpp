#include <ImportDame/Unit.h>

#include "core/Require.h"

namespace ImportDame {

VUnit::VUnit(VImportDoc& importDoc) : VQualified(importDoc) {}

VUnit::VUnit(VImportDoc& importDoc, const wchar_t* displayName) : VQualified(importDoc) {
    SetDisplayName(displayName);
}

VUnit::~VUnit() = default;

void VUnit::SetDisplayName(const wchar_t* displayName) {
    detail::Require(displayName != nullptr, detail::CheckSite::UnitSetDisplayName);
    m_displayName.Set(displayName);
}

} // namespace ImportDame
