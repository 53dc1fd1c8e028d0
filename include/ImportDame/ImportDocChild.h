#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

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

    VImportDoc& ImportDoc() const;

    /// Deletes the object. Requires: it was created on the heap and no collection holds it.
    void Destroy();

private:
    VImportDoc& m_importDoc;
};

} // namespace ImportDame
