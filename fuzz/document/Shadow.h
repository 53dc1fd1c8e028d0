#pragma once

#include "Bytes.h"

#include <memory>
#include <string>
#include <vector>

namespace Fuzz {

/// What one collection of the library should hold, and everything below it.
class Shadow {
public:
    Shadow() = default;
    Shadow(const Shadow&) = delete;
    virtual ~Shadow() = default;

    /// Does one operation to this collection or to one below it, and to the shadow.
    virtual void Step(Bytes& bytes) = 0;

    /// Compares everything from here downwards.
    virtual void ExpectSame() = 0;

    /// The collection was filled with copies of what the other one's holds.
    virtual void NoteCopyOf(const Shadow& source) = 0;

    [[nodiscard]] virtual std::size_t ImportedCount() const = 0;

    /// The imported flag of what holds the collection was set. Only some collections follow.
    virtual void NoteOwnerIsImported(bool) {}

    /// Whether all that follows is imported.
    [[nodiscard]] virtual bool IsImportedThroughout() const { return true; }

    /// What holds the collection built its name cache.
    virtual void NoteCache() {}
};

using Shadows = std::vector<std::unique_ptr<Shadow>>;

/// A short name, so that names are often the same.
inline std::wstring AnyName(Bytes& bytes) {
    const unsigned char byte = bytes.Byte();
    return std::wstring(byte % 3U, static_cast<wchar_t>(L'A' + byte / 3 % 3));
}

} // namespace Fuzz
