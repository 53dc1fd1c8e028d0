#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/OwningList.h>

namespace ImportDame {

/// The attributes of one object, in the order in which they were added. Owns them: an attribute lives until it is
/// removed or the collection is cleared or dies.
class IMPORTDAME_API VAttributeCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::ListPosition<VAttribute>, VAttribute&>;

    explicit VAttributeCollection(VImportDoc& importDoc);

    /// Copies every attribute, in order.
    VAttributeCollection(const VAttributeCollection& other);

    /// Copies every attribute, in order, for another document.
    VAttributeCollection(const VAttributeCollection& other, VImportDoc& importDoc);
    ~VAttributeCollection() override;

    /// Creates an attribute of the collection's document at the end.
    VAttribute& AddNewAttribute();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VQualified& attribute);

    /// The first attribute with exactly this qualifier, or the end.
    iterator Find(const wchar_t* qualifier);

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of attributes whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the attributes one by one, the first one first.
    void Clear();

    /// Takes the attribute out and deletes it. Requires: the collection holds it (error code 101049).
    void Remove(VAttribute& attribute);

    /// Takes the attribute out and deletes it. Requires: not the end (error code 101050).
    void Remove(iterator position);

    /// Sets the imported flag of every attribute.
    void SetIsImportedAttributes(bool isImported);

protected:
    /// Takes the attribute out and deletes it. Requires: not the end (error code 101051).
    void _Remove(detail::ListPosition<VAttribute> position);

private:
    detail::OwningList<VAttribute> m_collection;
};

} // namespace ImportDame
