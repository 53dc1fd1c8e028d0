#include <ImportDame/File.h>

namespace ImportDame {

VFile::VFile() = default;

VFile::VFile(const VFile& other) = default;

VFile& VFile::operator=(const VFile& other) = default;

VFile::~VFile() = default;

void VFile::SetPath(const wchar_t* path) {
    m_path.Set(path);
}

} // namespace ImportDame
