#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/NameCache.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// The diagnostic communications of one variant, in the order in which they were added. Owns them: a communication
/// lives until it is removed or the collection is cleared or dies. Adding or removing one invalidates the iterators.
class IMPORTDAME_API VDiagCommCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::OwningArray<VDiagComm>::Position, VDiagComm&>;

    explicit VDiagCommCollection(VImportDoc& importDoc);
    VDiagCommCollection(const VDiagCommCollection&) = delete;
    ~VDiagCommCollection() override;

    /// Creates a service of the collection's document at the end.
    VDiagService& AddNewDiagService();
    VDiagService& AddNewDiagService(const unsigned int& serviceId);

    /// Creates a job of the collection's document at the end.
    VDiagJob& AddNewDiagJob();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of communications, services and jobs alike, whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// The last communication, or null when there is none.
    VDiagComm* GetLastElement() const;

    /// Deletes the communications one by one, the first one first.
    void Clear();

    /// Takes the communication out and deletes it. Requires: the collection holds it (error code 101060).
    void Remove(VDiagComm& diagComm);

    /// Takes the communication out and deletes it. Requires: not the end (error code 101061).
    void Remove(iterator position);

    /// Takes a snapshot of the qualifiers for `GetFromCache`, and has every communication do the same with what it
    /// holds; of equal qualifiers the first communication's counts. It does not follow later changes: after
    /// communications were removed or renamed, it has to be taken again before it is used. When it fails, each cache is
    /// either as it was or complete.
    void InitCache();

    /// The communication that had exactly this qualifier at the last `InitCache`, or null. Logarithmic.
    VDiagComm* GetFromCache(const wchar_t* qualifier) const;

protected:
    /// The very same object, or the end.
    iterator Find(VDiagComm& diagComm);

    /// Takes the communication out and deletes it. Requires: not the end (error code 101062).
    void _Remove(detail::OwningArray<VDiagComm>::Position position);

private:
    detail::OwningArray<VDiagComm> m_collection;
    detail::NameCache<VDiagComm> m_nameCache;
};

} // namespace ImportDame
