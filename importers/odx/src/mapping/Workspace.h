#ifndef ODXIMPORT_MAPPING_WORKSPACE_H
#define ODXIMPORT_MAPPING_WORKSPACE_H

#include "layers/LayerSet.h"
#include "links/Kinds.h"
#include "links/LinkIndex.h"
#include "mapping/VariantViews.h"
#include "report/Reporter.h"
#include "report/Silence.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ImportDame {
class VImportDoc;
}

namespace OdxImport {

/// What all mappers share: the document that is filled, and the layers it is filled from.
class Workspace {
public:
    Workspace(ImportDame::VImportDoc& document, LinkIndex& links, LayerSet& layers, const Reporter& reporter,
              Layer& baseVariant, const Limits& limits);

    ImportDame::VImportDoc& Document() const { return m_document; }

    LinkIndex& Links() const { return m_links; }

    LayerSet& Layers() const { return m_layers; }

    /// Nobody hears of what is read once more for a variant.
    const Reporter& Report() const { return m_isRepeating ? Silence() : m_reporter; }

    Layer& BaseVariant() const { return m_baseVariant; }

    const std::vector<Layer*>& EcuVariants() const { return m_ecuVariants; }

    /// The base variant, its ECU variants and everything they inherit from.
    bool IsPart(const Layer& layer) const { return m_parts.contains(&layer); }

    /// From now on objects are looked at as this variant sees them; null: as the layer that has them does.
    void LookAs(Layer* variant, bool isRepeating = false);

    /// The variant that looks; null: none.
    Layer* View() const { return m_view; }

    /// The variant that looks, when it sees the object otherwise than its own layer does; else null.
    Layer* ViewOf(Element object);

    /// Where names in the element are looked up: in the variant that looks, or else in the layer that has the element.
    /// What the base variant inherits is read as the base variant sees it.
    Layer& ContextOf(Element element) const;

    bool IsRepeating() const { return m_isRepeating; }

    /// "BASE-VARIANT Engine", or the name of the file for what is outside of layers.
    const std::wstring& SourceOf(Element element);

    /// Whether one more copy of what the input says once may be made; the first refusal is reported.
    bool MayCopy(Element element) { return MayCopy(element, 1, element.Length()); }

    /// The same for an element that is copied with what is in it: so many objects, that are read from so many bytes.
    bool MayCopy(Element element, std::uint64_t objects, std::uint64_t bytes);

    /// What the link leads to when that is of one of the kinds, else none. Settles the link. What is wrong with it is
    /// reported the first time only: what variants inherit is read again for each of them.
    Element Follow(Element link, Kinds kinds) const;

    /// The same without settling or reporting anything.
    Element Look(Element link, Kinds kinds) const;

    /// Whether the link's target is of one of the kinds. When not, that is reported and the link refused.
    bool IsRightKind(Element link, Element target, Kinds kinds) const;

    /// Reports at the element; the path and line are the element's.
    void ReportAt(Element element, Rule rule, std::string message) const {
        Report().Report(rule, element.Where(), std::move(message));
    }

    void ReportAt(Element element, Rule rule, std::string message, Outcome outcome) const {
        Report().Report(rule, element.Where(), std::move(message), outcome);
    }

    /// The same, also of what is read once more.
    void ReportAlwaysAt(Element element, Rule rule, std::string message) const {
        m_reporter.Report(rule, element.Where(), std::move(message));
    }

private:
    void AddParts(Layer& layer, std::unordered_set<const Layer*>& parts);
    Layer& HomeOf(Element element) const;

    ImportDame::VImportDoc& m_document;
    LinkIndex& m_links;
    LayerSet& m_layers;
    const Reporter& m_reporter;
    Layer& m_baseVariant;
    VariantViews m_views;
    Layer* m_view = nullptr;
    bool m_isRepeating = false;
    std::uint64_t m_copies;      ///< that may still be made
    std::uint64_t m_copiedBytes; ///< that may still be read for them
    bool m_isCopyRefused = false;
    std::vector<Layer*> m_ecuVariants;
    std::unordered_set<const Layer*> m_ofBaseVariant;
    std::unordered_set<const Layer*> m_parts;
    std::unordered_map<const void*, std::wstring> m_sources; ///< by layer, or by document
};

} // namespace OdxImport

#endif
