#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Variant.h>

namespace ImportDame {

/// The variant of one particular ECU.
class IMPORTDAME_API VEcuVariant : public VVariant {
public:
    explicit VEcuVariant(VImportDoc& importDoc);

    /// Copies what a copy of a variant takes.
    VEcuVariant(const VEcuVariant& other);
    ~VEcuVariant() override;

    void Accept(VVariantVisitor& visitor) override;
};

} // namespace ImportDame
