#pragma once

#include <ImportDame/BaseDataObject.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableCollection.h>

namespace ImportDame {

/// A member that groups further members. May be nested to any depth.
class IMPORTDAME_API VBitField : public VBaseDataObject {
public:
    explicit VBitField(VImportDoc& importDoc);
    ~VBitField() override;

    void Accept(VInterchangeableVisitor& visitor) override;

    /// The members inside the bit field.
    VInterchangeableCollection& InterchangeableCollection() { return m_interchangeableCollection; }

private:
    VInterchangeableCollection m_interchangeableCollection;
};

} // namespace ImportDame
