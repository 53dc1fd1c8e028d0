#ifndef ODXIMPORT_LAYERS_LAYERSET_H
#define ODXIMPORT_LAYERS_LAYERSET_H

#include "OdxImport/Options.h"
#include "layers/Layer.h"
#include "links/LinkIndex.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// All layers of the inputs with what they have and inherit.
class LayerSet {
public:
    LayerSet(LinkIndex& links, const Reporter& reporter) : m_links(links), m_reporter(reporter) {}

    /// Entries in the tables of what layers inherit, all layers together; keeps long chains of layers from filling the
    /// memory.
    void LimitInherited(std::uint64_t most) { m_mostInherited = most; }

    /// Finds the layers of a document.
    void Add(XmlDocument& document);

    /// Connects the layers, once all documents are there: parents, imports. Circles are cut and reported.
    void Connect();

    const std::vector<std::unique_ptr<Layer>>& All() const { return m_layers; }

    std::vector<Layer*> OfKind(LayerKind kind) const;
    /// The layer around the element; null outside of layers.
    Layer* Around(Element element) const;

    /// What the layer has in a category, own objects first, then the inherited ones that nothing overrides.
    const EffectiveObjects& Effective(Layer& layer, Category category);
    /// An ECU variant that has the data objects, tables and global responses of its base variant and no others.
    bool IsAsItsBase(Layer& layer);
    /// The object that a link by name means in the layer; none is not reported.
    Element FindByName(Layer& layer, Category category, std::string_view name);

    /// The base variant that an ECU variant inherits from; null without one.
    static Layer* BaseVariantOf(const Layer& ecuVariant);

    /// Settles the account of a PARENT-REF with what is read of it.
    static void TakeParentLink(Element link);

private:
    void ReportNamesake(const Layer& layer);
    void AddOwn(Layer& layer);
    void AddOwn(Layer& layer, Category category, Element object);
    void ConnectParents(Layer& layer);
    void ConnectImports(Layer& layer);
    bool MayInherit(const Layer& layer, const Layer& parent, Element link) const;
    void ReportOtherBase(const Layer& layer, const Layer& parent, Element link) const;
    void CutCircles();
    void CutCircle(ParentLink& link);
    void Merge(Layer& layer, Category category);
    void ReportUnknownExclusions(const ParentLink& link, Category category) const;
    void Inherit(EffectiveObjects& objects, const ParentLink& link, Category category,
                 std::unordered_map<std::string_view, LayerKind>& inheritedFrom, const Layer& layer);
    bool MayInheritMore(const Layer& layer);

    LinkIndex& m_links;
    const Reporter& m_reporter;
    std::vector<std::unique_ptr<Layer>> m_layers;
    std::unordered_map<const void*, Layer*> m_byElement;
    std::unordered_map<std::string_view, const Layer*> m_byName; ///< the first one of each
    std::uint64_t m_inherited = 0; ///< entries of all tables that are not of the layer itself
    std::uint64_t m_mostInherited = Limits().inherited;
};

} // namespace OdxImport

#endif
