#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Interchangeable.h>

namespace ImportDame {

/// A run of bits that carries nothing.
class IMPORTDAME_API VGapObject : public VInterchangeable {
public:
    explicit VGapObject(VImportDoc& importDoc);
    ~VGapObject() override;

    void Accept(VInterchangeableVisitor& visitor) override;

    /// 0 at first.
    unsigned int GetBitLength() { return m_bitLength; }

    void SetBitLength(unsigned int bitLength);

private:
    unsigned int m_bitLength = 0;
};

} // namespace ImportDame
