#include "mapping/Workspace.h"

#include "report/Words.h"
#include "text/Utf8.h"

#include <algorithm>

namespace OdxImport {

namespace {

bool Contains(Kinds kinds, std::string_view tag) {
    return std::find(kinds.begin(), kinds.end(), tag) != kinds.end();
}

} // namespace

Workspace::Workspace(ImportDame::VImportDoc& document, LinkIndex& links, LayerSet& layers, const Reporter& reporter,
                     Layer& baseVariant, const Limits& limits)
    : m_document(document), m_links(links), m_layers(layers), m_reporter(reporter), m_baseVariant(baseVariant),
      m_views(layers, links, [this](Element element) -> Layer& { return HomeOf(element); }), m_copies(limits.copies),
      m_copiedBytes(limits.copiedBytes) {
    AddParts(baseVariant, m_ofBaseVariant);
    AddParts(baseVariant, m_parts);
    for (Layer* variant : layers.OfKind(LayerKind::EcuVariant)) {
        const Layer* base = LayerSet::BaseVariantOf(*variant);
        if (base == nullptr)
            ReportAt(variant->element, Rule::VariantWithoutBase,
                     Words({"\"", variant->shortName, "\" has no base variant and is not imported"}));
        if (base != &baseVariant)
            continue;
        m_ecuVariants.push_back(variant);
        AddParts(*variant, m_parts);
    }
    for (const auto& layer : layers.All())
        if (IsPart(*layer))
            m_views.Watch(*layer);
}

void Workspace::AddParts(Layer& layer, std::unordered_set<const Layer*>& parts) {
    std::vector<const Layer*> open{&layer};
    while (!open.empty()) {
        const Layer* at = open.back();
        open.pop_back();
        if (!parts.insert(at).second)
            continue;
        for (const ParentLink& link : at->parents)
            open.push_back(link.parent);
    }
}

bool Workspace::MayCopy(Element element, std::uint64_t objects, std::uint64_t bytes) {
    if (objects <= m_copies && bytes <= m_copiedBytes && !m_isCopyRefused) {
        m_copies -= objects;
        m_copiedBytes -= bytes;
        return true;
    }
    if (!m_isCopyRefused)
        ReportAlwaysAt(element, Rule::ObjectsTooMany,
                       "from here on nothing is repeated that variants inherit and links take over");
    m_isCopyRefused = true;
    return false;
}

Element Workspace::Follow(Element link, Kinds kinds) const {
    if (!link || link.IsTaken())
        return Look(link, kinds);
    const Element target = m_links.Follow(link.Taken());
    return target && IsRightKind(link, target, kinds) ? target : Element();
}

Element Workspace::Look(Element link, Kinds kinds) const {
    const Element target = link ? m_links.Peek(link) : Element();
    return target && Contains(kinds, target.Tag()) ? target : Element();
}

bool Workspace::IsRightKind(Element link, Element target, Kinds kinds) const {
    if (Contains(kinds, target.Tag()))
        return true;
    const std::string needed = kinds.size() == 1 ? Words({", not to a ", kinds.front()}) : "";
    ReportAt(link, Rule::LinkWrongKind, Words({link.Tag(), " leads to a ", target.Tag(), needed}));
    if (!m_isRepeating)
        link.Refuse(deadLink);
    return false;
}

void Workspace::LookAs(Layer* variant, bool isRepeating) {
    m_view = variant;
    m_isRepeating = isRepeating;
}

Layer* Workspace::ViewOf(Element object) {
    return m_view != nullptr && !m_isCopyRefused && m_views.Differs(object, *m_view) ? m_view : nullptr;
}

Layer& Workspace::ContextOf(Element element) const {
    Layer& home = HomeOf(element);
    return m_view != nullptr && home.kind != LayerKind::EcuVariant ? *m_view : home;
}

Layer& Workspace::HomeOf(Element element) const {
    Layer* around = m_layers.Around(element);
    return around == nullptr || m_ofBaseVariant.contains(around) ? m_baseVariant : *around;
}

const std::wstring& Workspace::SourceOf(Element element) {
    const Layer* layer = m_layers.Around(element);
    const void* key = layer != nullptr ? static_cast<const void*>(layer) : &element.Document();
    std::wstring& source = m_sources[key];
    if (source.empty())
        source = Widen(layer == nullptr ? element.Document().Name()
                                        : Words({layer->element.Tag(), " ", Shortened(layer->shortName, longestName)}));
    return source;
}

} // namespace OdxImport
