#pragma once

#include <ImportDame/DiagCommCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// One level of the description of an ECU, with the diagnostic communications of that level.
///
/// A new variant is not imported; naming the variant of the target system into which it goes is what marks it, with all
/// of its diagnostic communications, as imported. Texts passed in are copied; texts handed out are valid until that
/// text changes or the variant dies.
class IMPORTDAME_API VVariant : public VQualified {
public:
    explicit VVariant(VImportDoc& importDoc);

    /// Copies what a copy of a qualified object takes but the imported flag, and the locked flag. The copy is not
    /// imported, names no other variant and has no diagnostic communications.
    VVariant(const VVariant& other);
    ~VVariant() override;

    /// Sets the variant's own flag, then that of every diagnostic communication that it holds now.
    void IsImported(bool isImported) override;

    /// The variant's own flag.
    bool IsImported() override;

    virtual void Accept(VVariantVisitor& visitor) = 0;

    /// Whether the variant is imported and every diagnostic communication is completely imported.
    virtual bool IsImportedCompletly();

    /// Whether the variant is locked in the target system; the library stores it only.
    virtual bool GetVariantIsLockedInTarget() const;
    virtual void SetVariantIsLockedInTarget(bool isLocked);

    VDiagCommCollection& DiagCommCollection() { return m_diagCommCollection; }

    /// The variant of the target system into which this one goes; empty when unset.
    const wchar_t* GetTargetVariantQualifier() const { return m_targetVariantQualifier.Get(); }

    /// Also an empty text marks the variant as imported. Requires: not null (error code 102042).
    void SetTargetVariantQualifier(const wchar_t* targetVariantQualifier);

    /// Marks the variant as not imported.
    void UnsetTargetVariantQualifier();

    /// The variant from which this one references data; empty when unset.
    const wchar_t* GetReferenceFromVariantQualifier() const { return m_referenceFromVariantQualifier.Get(); }

    /// Requires: not null (error code 102043).
    void SetReferenceFromVariantQualifier(const wchar_t* qualifierOfVariantToReferenceFrom);
    void UnsetReferenceFromVariantQualifier();

    /// Whether the reference-from variant qualifier is not empty.
    bool HasReferenceFromVariantSpecified() const { return !m_referenceFromVariantQualifier.IsEmpty(); }

private:
    detail::Text m_targetVariantQualifier;
    detail::Text m_referenceFromVariantQualifier;
    bool m_variantIsLockedInTarget = false;
    VDiagCommCollection m_diagCommCollection;
};

} // namespace ImportDame
