#include <ImportDame/AdditionalFile.h>

namespace ImportDame {

VAdditionalFile::VAdditionalFile() = default;

VAdditionalFile::VAdditionalFile(const VAdditionalFile& other) = default;

VAdditionalFile& VAdditionalFile::operator=(const VAdditionalFile& other) = default;

VAdditionalFile::~VAdditionalFile() = default;

} // namespace ImportDame
