#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstddef>

namespace ImportDame {

/// The name of a file that an external procedure consists of. The library does not open it.
class IMPORTDAME_API VFile {
public:
    /// With an empty path.
    VFile();
    VFile(const VFile& other);
    VFile& operator=(const VFile& other);
    virtual ~VFile();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Valid until the path changes or the object dies.
    const wchar_t* GetPath() { return m_path.Get(); }

    /// Requires: path is not null.
    void SetPath(const wchar_t* path);

private:
    detail::Text m_path;
};

} // namespace ImportDame
