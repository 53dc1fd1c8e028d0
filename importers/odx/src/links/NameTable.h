#ifndef ODXIMPORT_LINKS_NAMETABLE_H
#define ODXIMPORT_LINKS_NAMETABLE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace OdxImport {

/// Values by name within a scope. Grows only; names are borrowed and must outlive the table. Pointers to values hold
/// until the next insertion.
template <class Value>
class NameTable {
public:
    struct Entry {
        std::string_view name;
        std::uint32_t scope;
        std::uint32_t next; ///< in the chain of one bucket, from 1; 0 ends it
        bool isRepeated;    ///< an earlier entry has the name; this one is not found by it
        Value value;
    };

    Value* Find(std::uint32_t scope, std::string_view name) {
        return const_cast<Value*>(static_cast<const NameTable*>(this)->Find(scope, name));
    }

    const Value* Find(std::uint32_t scope, std::string_view name) const {
        if (m_buckets.empty())
            return nullptr;
        for (std::uint32_t at = m_buckets[BucketOf(scope, name)]; at != 0; at = m_entries[at - 1].next)
            if (m_entries[at - 1].scope == scope && m_entries[at - 1].name == name)
                return &m_entries[at - 1].value;
        return nullptr;
    }

    /// A name that is there already keeps leading to its first value; the new one is in `Entries` only.
    void Insert(std::uint32_t scope, std::string_view name, Value value) {
        const bool isRepeated = Find(scope, name) != nullptr;
        if (m_entries.size() >= m_buckets.size())
            Grow();
        m_entries.push_back({name, scope, 0, isRepeated, std::move(value)});
        Chain(m_entries.size());
    }

    /// In the order of insertion.
    const std::vector<Entry>& Entries() const { return m_entries; }

private:
    std::size_t BucketOf(std::uint32_t scope, std::string_view name) const {
        return (std::hash<std::string_view>()(name) ^ scope * 0x9E3779B97F4A7C15u) & (m_buckets.size() - 1);
    }

    void Chain(std::size_t number) {
        Entry& entry = m_entries[number - 1];
        if (entry.isRepeated)
            return;
        std::uint32_t& bucket = m_buckets[BucketOf(entry.scope, entry.name)];
        entry.next = bucket;
        bucket = static_cast<std::uint32_t>(number);
    }

    void Grow() {
        std::vector<std::uint32_t>(m_buckets.empty() ? 16 : m_buckets.size() * 2).swap(m_buckets);
        for (std::size_t number = 1; number <= m_entries.size(); ++number)
            Chain(number);
    }

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_buckets; ///< a power of two of them
};

} // namespace OdxImport

#endif
