#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>

namespace ImportDame {

/// One member of the ordered content of a packet-like structure.
class IMPORTDAME_API VInterchangeable : public VQualified {
public:
    VInterchangeable(const VInterchangeable&) = delete;
    ~VInterchangeable() override;

    /// Calls the one visit operation of the member's kind; descends into nothing.
    virtual void Accept(VInterchangeableVisitor& visitor) = 0;

protected:
    explicit VInterchangeable(VImportDoc& importDoc);
};

} // namespace ImportDame
