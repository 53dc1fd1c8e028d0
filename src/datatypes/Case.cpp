#include <ImportDame/Case.h>

namespace ImportDame {

VCase::VCase(VImportDoc& importDoc) : VQualified(importDoc), m_interchangeableCollection(importDoc) {}

VCase::~VCase() = default;

} // namespace ImportDame
