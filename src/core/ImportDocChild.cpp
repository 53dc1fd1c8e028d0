#include <ImportDame/ImportDocChild.h>

namespace ImportDame {

VImportDocChild::VImportDocChild(VImportDoc& importDoc) : m_importDoc(importDoc) {}

VImportDocChild::VImportDocChild(const VImportDocChild& other) = default;

VImportDocChild::~VImportDocChild() = default;

void VImportDocChild::Destroy() {
    delete this;
}

} // namespace ImportDame
