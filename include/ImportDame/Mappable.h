#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ServiceMapping.h>

#include <memory>

namespace ImportDame {

/// Gives an object exactly one service mapping, which lives as long as the object.
class IMPORTDAME_API VMappable {
public:
    /// With a default mapping.
    VMappable();

    /// With a copy of the other object's mapping.
    VMappable(const VMappable& other);

    /// Replaces the mapping by a copy of the other object's: references to the old one become invalid.
    VMappable& operator=(const VMappable& other);
    virtual ~VMappable();

    VServiceMapping& ServiceMapping();

private:
    std::unique_ptr<VServiceMapping> m_serviceMapping; ///< Never null.
};

} // namespace ImportDame
