#include <ImportDame/Interchangeable.h>

namespace ImportDame {

VInterchangeable::VInterchangeable(VImportDoc& importDoc) : VQualified(importDoc) {}

VInterchangeable::~VInterchangeable() = default;

} // namespace ImportDame
