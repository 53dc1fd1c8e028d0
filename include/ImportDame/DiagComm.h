#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>

namespace ImportDame {

/// A diagnostic communication of a variant: a service or a job.
class IMPORTDAME_API VDiagComm : public VQualified {
public:
    ~VDiagComm() override;

    virtual void Accept(VDiagCommVisitor& visitor) = 0;

    /// Whether the communication and everything that it holds is imported; here the own flag alone.
    virtual bool IsImportedCompletly();

    /// Rebuilds the name caches of what the communication holds; here nothing.
    virtual void InitCache();

protected:
    explicit VDiagComm(VImportDoc& importDoc);

    /// Copies what a copy of a qualified object takes.
    VDiagComm(const VDiagComm& other);
};

} // namespace ImportDame
