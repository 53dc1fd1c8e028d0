#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Variant.h>

#include <memory>

namespace ImportDame {

/// The variant that every ECU of the description shares. Owns the ECU variants.
class IMPORTDAME_API VBaseVariant : public VVariant {
public:
    explicit VBaseVariant(VImportDoc& importDoc);

    /// Copies what a copy of a variant takes; the copy has no ECU variants.
    VBaseVariant(const VBaseVariant& other);
    ~VBaseVariant() override;

    void Accept(VVariantVisitor& visitor) override;

    VEcuVariantCollection& GetEcuVariantCollection();

private:
    std::unique_ptr<VEcuVariantCollection> m_ecuVariantCollection; ///< Never null.
};

} // namespace ImportDame
