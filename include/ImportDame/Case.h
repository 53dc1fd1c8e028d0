#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/Range.h>

namespace ImportDame {

/// One content of a multiplexer and the selector values for which it applies.
class IMPORTDAME_API VCase : public VQualified {
public:
    explicit VCase(VImportDoc& importDoc);
    VCase(const VCase&) = delete;
    ~VCase() override;

    /// The selector values.
    VRange& Range() { return m_range; }

    /// The content.
    VInterchangeableCollection& InterchangeableCollection() { return m_interchangeableCollection; }

private:
    VRange m_range;
    VInterchangeableCollection m_interchangeableCollection;
};

} // namespace ImportDame
