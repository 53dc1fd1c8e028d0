#ifndef SQLITEBACKEND_REFERENCES_H
#define SQLITEBACKEND_REFERENCES_H

#include "store/Insert.h"

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace SqliteBackend {

/// The rows of objects that others refer to by address. An address that is not known is never followed.
template <class Object>
class References {
public:
    explicit References(Tally& tally) : m_tally(tally) {}

    void Add(const Object& object, std::int64_t row) { m_rows.emplace(&object, row); }

    /// No row for null, and none for an object that the document does not own, which is counted.
    std::optional<std::int64_t> RowOf(const Object* object) const {
        if (!object)
            return std::nullopt;
        const auto found = m_rows.find(object);
        if (found != m_rows.end())
            return found->second;
        ++m_tally.unknownReferences;
        return std::nullopt;
    }

private:
    Tally& m_tally;
    std::unordered_map<const Object*, std::int64_t> m_rows;
};

} // namespace SqliteBackend

#endif
