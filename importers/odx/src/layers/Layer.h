#ifndef ODXIMPORT_LAYERS_LAYER_H
#define ODXIMPORT_LAYERS_LAYER_H

#include "links/NameTable.h"
#include "xml/Element.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
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

/// What a layer has in a category: its own objects first, then the inherited ones that nothing overrides. What an ECU
/// variant has of its base variant stays there, so that many variants of a large base do not multiply it.
class EffectiveObjects {
public:
    /// Those that do not stay with the base variant.
    const ObjectTable& Near() const { return m_near; }

    ObjectTable& Near() { return m_near; }

    /// All but those with excluded names follow here in the order of objects.
    void Borrow(const ObjectTable& base, const std::set<std::string_view>& excluded) {
        m_base = &base;
        m_excluded = &excluded;
        m_before = m_near.Entries().size();
    }

    const LayerObject* Find(std::string_view name) const {
        const LayerObject* found = m_near.Find(0, name);
        if (found != nullptr || m_base == nullptr || m_excluded->contains(name))
            return found;
        return m_base->Find(0, name);
    }

    bool Borrows() const { return m_base != nullptr; }

    /// Nothing is added, overridden or excluded.
    bool IsAsInBase() const { return m_base != nullptr && m_near.Entries().empty() && m_excluded->empty(); }

    /// `visit(entry)` says whether to go on. Of objects of one name a layer has itself, all are visited.
    template <class Visit>
    void ForEach(Visit visit) const {
        const auto& near = m_near.Entries();
        const std::size_t before = std::min(m_before, near.size());
        bool isGoingOn = true;
        for (std::size_t i = 0; isGoingOn && i < before; ++i)
            isGoingOn = visit(near[i]);
        if (m_base != nullptr)
            for (std::size_t i = 0; isGoingOn && i < m_base->Entries().size(); ++i)
                if (const ObjectTable::Entry& entry = m_base->Entries()[i]; IsSeen(entry))
                    isGoingOn = visit(entry);
        for (std::size_t i = before; isGoingOn && i < near.size(); ++i)
            isGoingOn = visit(near[i]);
    }

private:
    /// Of an entry of the base.
    bool IsSeen(const ObjectTable::Entry& entry) const {
        return !entry.isRepeated && !m_excluded->contains(entry.name) && m_near.Find(0, entry.name) == nullptr;
    }

    ObjectTable m_near;
    const ObjectTable* m_base = nullptr;
    const std::set<std::string_view>* m_excluded = nullptr;
    std::size_t m_before = std::numeric_limits<std::size_t>::max(); ///< how many of `m_near` come before the base's
};

struct Layer {
    LayerKind kind = LayerKind::Protocol;
    Element element;
    std::string_view shortName;
    std::vector<ParentLink> parents;
    std::array<ObjectTable, categoryCount> own;
    std::array<std::unique_ptr<const EffectiveObjects>, categoryCount> effective; ///< made on demand by Inheritance
};

} // namespace OdxImport

#endif
