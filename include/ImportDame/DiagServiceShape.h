#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>

namespace ImportDame {

/// One shape of a diagnostic service, told from the others by its sub value, which the library stores only.
class IMPORTDAME_API VDiagServiceShape : public VQualified {
public:
    explicit VDiagServiceShape(VImportDoc& importDoc);

    /// Copies what a copy of a qualified object takes, and the sub value.
    VDiagServiceShape(const VDiagServiceShape& other);
    ~VDiagServiceShape() override;

    /// The value that tells this shape in a request; 0 at first.
    const unsigned int& GetSubValue() const { return m_subValue; }

    void SetSubValue(const unsigned int& subValue);

private:
    unsigned int m_subValue = 0;
};

} // namespace ImportDame
