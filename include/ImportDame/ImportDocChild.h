#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/Memory.h>

#include <cstddef>

namespace ImportDame {

/// An object that belongs to one import document for its whole life.
class IMPORTDAME_API VImportDocChild {
public:
    /// The document is borrowed and has to outlive every use of `ImportDoc`.
    explicit VImportDocChild(VImportDoc& importDoc);

    /// A copy belongs to the same document.
    VImportDocChild(const VImportDocChild& other);
    VImportDocChild& operator=(const VImportDocChild&) = delete;
    virtual ~VImportDocChild();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    VImportDoc& ImportDoc() const { return m_importDoc; }

    /// Deletes the object. Requires: it was created on the heap and no collection holds it.
    void Destroy();

private:
    VImportDoc& m_importDoc;
};

} // namespace ImportDame
