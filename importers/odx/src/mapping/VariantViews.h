#ifndef ODXIMPORT_MAPPING_VARIANTVIEWS_H
#define ODXIMPORT_MAPPING_VARIANTVIEWS_H

#include "layers/LayerSet.h"
#include "links/LinkIndex.h"
#include "links/NameTable.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace OdxImport {

/// An object as a layer sees it; without a layer, as the layer sees it that has it.
struct Sight {
    const void* object;
    const Layer* view;

    bool operator==(const Sight&) const = default;
};

struct SightHash {
    std::size_t operator()(const Sight& sight) const {
        return std::hash<const void*>()(sight.object) ^ (std::hash<const void*>()(sight.view) << 1);
    }
};

/// Which objects a variant sees otherwise than the layer that has them: those with a link by name that leads to
/// something else there, or to nothing, and whatever has such objects in it.
class VariantViews {
public:
    /// The context of an element, the layer that its names are looked up in unless a variant looks.
    using ContextOf = std::function<Layer&(Element)>;

    VariantViews(LayerSet& layers, const LinkIndex& links, ContextOf contextOf)
        : m_layers(layers), m_links(links), m_contextOf(std::move(contextOf)) {}

    /// The layers that variants and their base have their objects from.
    void Watch(const Layer& layer) { m_watched.push_back(&layer); }

    bool Differs(Element object, Layer& variant);

private:
    struct NameLink {
        Element link;
        const void* owner; ///< the object that has the link
        const Layer* layer;
    };

    using Objects = std::unordered_set<const void*>;

    using Names = std::vector<std::pair<Category, std::string_view>>;
    using NameLinks = NameTable<std::vector<NameLink>>; ///< by category and name

    void FindNameLinks();
    void FindUsers();
    void AddUser(Element target, const void* user);
    void Consider(Layer& variant, Category category, std::string_view name, Objects& seeds);
    void ConsiderLinksBeside(Layer& variant, Objects& seeds);
    Objects Seeds(Layer& variant);
    const Objects& DifferentFor(Layer& variant);

    LayerSet& m_layers;
    const LinkIndex& m_links;
    ContextOf m_contextOf;
    std::vector<const Layer*> m_watched;
    NameLinks m_nameLinks;
    std::unordered_map<const Layer*, Names> m_beside; ///< names in the links of layers that only variants inherit from
    std::unordered_map<const void*, std::vector<const void*>> m_users; ///< of an object: the objects that link to it
    std::unordered_map<const Layer*, Objects> m_different;
    bool m_hasNameLinks = false;
    bool m_hasUsers = false;
};

} // namespace OdxImport

#endif
