#pragma once

#include <ImportDame/DiagComm.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// A diagnostic job: a communication that is a program of its own.
class IMPORTDAME_API VDiagJob : public VDiagComm {
public:
    explicit VDiagJob(VImportDoc& importDoc);
    VDiagJob(const VDiagJob& other);
    ~VDiagJob() override;

    void Accept(VDiagCommVisitor& visitor) override;
};

} // namespace ImportDame
