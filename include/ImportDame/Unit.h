#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// A physical unit.
class IMPORTDAME_API VUnit : public VQualified {
public:
    /// With an empty display name.
    explicit VUnit(VImportDoc& importDoc);

    /// Requires: displayName is not null (error code 102033).
    VUnit(VImportDoc& importDoc, const wchar_t* displayName);
    VUnit(const VUnit&) = delete;
    ~VUnit() override;

    /// As shown beside a number, for example "km/h"; valid until it changes or the unit dies.
    const wchar_t* GetDisplayName() const { return m_displayName.Get(); }

    /// Requires: displayName is not null (error code 102033).
    void SetDisplayName(const wchar_t* displayName);

private:
    detail::Text m_displayName;
};

} // namespace ImportDame
