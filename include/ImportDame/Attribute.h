#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// A named value that an importer attaches to an object.
class IMPORTDAME_API VAttribute : public VQualified {
public:
    explicit VAttribute(VImportDoc& importDoc);

    /// Copies what a copy of a qualified object takes, and the value.
    VAttribute(const VAttribute& other);

    /// The same for another document.
    VAttribute(const VAttribute& other, VImportDoc& importDoc);
    ~VAttribute() override;

    /// The empty text at first.
    const wchar_t* GetValue() const { return m_value.Get(); }

    void SetValue(const wchar_t* value);

private:
    detail::Text m_value;
};

} // namespace ImportDame
