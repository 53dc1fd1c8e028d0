#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// Tells the kinds of diagnostic communications apart: `VDiagComm::Accept` calls the operation of its own kind.
class IMPORTDAME_API VDiagCommVisitor {
public:
    VDiagCommVisitor() = default;
    VDiagCommVisitor(const VDiagCommVisitor&) = default;
    VDiagCommVisitor& operator=(const VDiagCommVisitor&) = default;
    virtual ~VDiagCommVisitor() = 0;

    virtual void VisitDiagService(VDiagService& service) = 0;
    virtual void VisitDiagJob(VDiagJob& job) = 0;

    /// Lets the diagnostic communication call the visit operation of its kind.
    virtual void DispatchDiagComm(VDiagComm& diagComm);
};

} // namespace ImportDame
