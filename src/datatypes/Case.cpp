#include <ImportDame/Case.h>

namespace ImportDame {

VCase::VCase(VImportDoc& importDoc) : VQualified(importDoc), m_interchangeableCollection(importDoc) {}

VCase::~VCase() = default;

VRange& VCase::Range() {
    return m_range;
}

VInterchangeableCollection& VCase::InterchangeableCollection() {
    return m_interchangeableCollection;
}

} // namespace ImportDame
