#include "layers/LayerSet.h"

#include <algorithm>
#include <string>

namespace OdxImport {

namespace {

struct Exclusion {
    Category category;
    const char* list;
    const char* item;
    const char* name;
};

constexpr std::array<Exclusion, categoryCount> exclusions{
    {{Category::DiagComm, "NOT-INHERITED-DIAG-COMMS", "NOT-INHERITED-DIAG-COMM", "DIAG-COMM-SNREF"},
     {Category::DataObject, "NOT-INHERITED-DOPS", "NOT-INHERITED-DOP", "DOP-BASE-SNREF"},
     {Category::Table, "NOT-INHERITED-TABLES", "NOT-INHERITED-TABLE", "TABLE-SNREF"},
     {Category::GlobalNegResponse, "NOT-INHERITED-GLOBAL-NEG-RESPONSES", "NOT-INHERITED-GLOBAL-NEG-RESPONSE",
      "GLOBAL-NEG-RESPONSE-SNREF"}}};

void ReadExclusions(ParentLink& link) {
    for (const Exclusion& exclusion : exclusions)
        for (const Element item : Children(link.link.Child(exclusion.list), exclusion.item))
            link.notInherited[static_cast<std::size_t>(exclusion.category)].insert(
                item.Child(exclusion.name).Attribute("SHORT-NAME"));
}

} // namespace

void LayerSet::ConnectParents(Layer& layer) {
    for (const Element link : Children(layer.element.Child("PARENT-REFS"), "PARENT-REF")) {
        const Element target = m_links.Follow(link, Rule::ParentMissing);
        if (!target)
            continue;
        const auto parent = m_byElement.find(target.Identity());
        if (parent == m_byElement.end()) {
            m_reporter.Report(Rule::LinkWrongKind, link.Where(),
                              "the parent is a " + std::string(target.Tag()) + ", no layer");
            link.Refuse(deadLink);
            continue;
        }
        if (!MayInherit(layer, *parent->second, link))
            continue;
        layer.parents.push_back({parent->second, link, {}});
        ReadExclusions(layer.parents.back());
    }
}

bool LayerSet::MayInherit(const Layer& layer, const Layer& parent, Element link) const {
    // Protocols refine each other in practice; everything else follows the order of the kinds.
    if (parent.kind < layer.kind || (layer.kind == LayerKind::Protocol && parent.kind == LayerKind::Protocol))
        return true;
    m_reporter.Report(Rule::ParentNotAllowed, link.Where(),
                      std::string(layer.element.Tag()) + " \"" + std::string(layer.shortName) +
                          "\" cannot inherit from " + std::string(parent.element.Tag()) + " \"" +
                          std::string(parent.shortName) + "\"");
    link.Refuse(deadLink);
    return false;
}

void LayerSet::ConnectImports(Layer& layer) {
    for (const Element link : Children(layer.element.Child("IMPORT-REFS"), "IMPORT-REF")) {
        const Element target = m_links.Follow(link, Rule::ParentMissing);
        if (!target)
            continue;
        if (!target.Is("ECU-SHARED-DATA"))
            m_reporter.Report(Rule::ImportNotShared, link.Where(),
                              "the import leads to a " + std::string(target.Tag()));
        m_links.Import(layer.element, target);
    }
}

void LayerSet::CutCircles() {
    enum class Colour { New, Open, Done };

    struct Step {
        Layer* layer;
        std::size_t next;
    };

    std::unordered_map<const Layer*, Colour> colours;
    for (const auto& start : m_layers) {
        std::vector<Step> path;
        if (colours[start.get()] == Colour::New)
            path.push_back({start.get(), 0});
        while (!path.empty()) {
            Step& step = path.back();
            Colour& own = colours[step.layer];
            own = Colour::Open;
            if (step.next == step.layer->parents.size()) {
                own = Colour::Done;
                path.pop_back();
                continue;
            }
            Layer* parent = step.layer->parents[step.next].parent;
            const Colour colour = colours[parent];
            if (colour == Colour::Open)
                CutCircle(step.layer->parents, step.next);
            else if (++step.next, colour == Colour::New)
                path.push_back({parent, 0});
        }
    }
}

void LayerSet::CutCircle(std::vector<ParentLink>& parents, std::size_t index) {
    m_reporter.Report(Rule::ParentCycle, parents[index].link.Where(),
                      "this parent link closes a circle at \"" + std::string(parents[index].parent->shortName) + "\"");
    parents[index].link.Refuse("the link closes a circle");
    parents.erase(parents.begin() + static_cast<std::ptrdiff_t>(index));
}

} // namespace OdxImport
