#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// The name of a file that an external procedure consists of. The library does not open it.
class IMPORTDAME_API VFile {
public:
    /// With an empty path.
    VFile();
    VFile(const VFile& other);
    VFile& operator=(const VFile& other);
    virtual ~VFile();

    /// Valid until the path changes or the object dies.
    const wchar_t* GetPath();

    /// Requires: path is not null.
    void SetPath(const wchar_t* path);

private:
    detail::Text m_path;
};

} // namespace ImportDame
