#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/OwningList.h>

namespace ImportDame {

/// The ECU variants of a base variant, in the order in which they were added. Owns them: a variant lives until it is
/// removed or the collection is cleared or dies.
class IMPORTDAME_API VEcuVariantCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::ListPosition<VEcuVariant>, VEcuVariant&>;

    explicit VEcuVariantCollection(VImportDoc& importDoc);

    /// Copies every ECU variant, in order, with the losses of such a copy.
    VEcuVariantCollection(const VEcuVariantCollection& other);
    ~VEcuVariantCollection() override;

    /// Creates an ECU variant of the collection's document at the end.
    VEcuVariant& AddNewEcuVariant();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VEcuVariant& ecuVariant);

    /// The first ECU variant with exactly this qualifier, or the end.
    iterator Find(const wchar_t* qualifier);

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the ECU variants one by one, the first one first.
    void Clear();

    /// Takes the ECU variant out and deletes it. Requires: the collection holds it (error code 101065).
    void Remove(VEcuVariant& ecuVariant);

    /// Takes the ECU variant out and deletes it. Requires: not the end (error code 101070).
    void Remove(iterator position);

protected:
    /// Takes the ECU variant out and deletes it. Requires: not the end (error code 101071).
    void _Remove(detail::ListPosition<VEcuVariant> position);

private:
    detail::OwningList<VEcuVariant> m_collection;
};

} // namespace ImportDame
