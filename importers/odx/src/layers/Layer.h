#ifndef ODXIMPORT_LAYERS_LAYER_H
#define ODXIMPORT_LAYERS_LAYER_H

#include "links/NameTable.h"
#include "xml/Element.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace OdxImport {

/// In the order of inheritance: a layer inherits from layers of lower kinds, and all of them from shared data.
enum class LayerKind : std::uint8_t { EcuSharedData, Protocol, FunctionalGroup, BaseVariant, EcuVariant };

std::optional<LayerKind> LayerKindOf(std::string_view tag);

/// What is inherited by SHORT-NAME, each kind with names of its own.
enum class Category : std::uint8_t { DiagComm, DataObject, Table, GlobalNegResponse };
inline constexpr std::size_t categoryCount = 4;

struct Layer;

struct ParentLink {
    Layer* parent = nullptr;
    Element link;
    std::array<std::set<std::string_view>, categoryCount> notInherited;
};

/// An object that a layer has: its own or an inherited one.
struct LayerObject {
    Element element;
    Layer* origin = nullptr; ///< the layer that defines it
};

using ObjectTable = NameTable<LayerObject>; ///< one scope, 0

struct Layer {
    LayerKind kind = LayerKind::Protocol;
    Element element;
    std::string_view shortName;
    std::vector<ParentLink> parents;
    std::array<ObjectTable, categoryCount> own;
    std::array<std::unique_ptr<const ObjectTable>, categoryCount> effective; ///< made on demand by Inheritance
};

} // namespace OdxImport

#endif
