#include "layers/LayerSet.h"

#include "report/Words.h"

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
            if (const Element name = item.Child(exclusion.name))
                link.notInherited[static_cast<std::size_t>(exclusion.category)].insert(name.Attribute("SHORT-NAME"));
}

} // namespace

void LayerSet::TakeParentLink(Element link) {
    if (link.IsRefused())
        return;
    link.Taken();
    for (const Exclusion& exclusion : exclusions)
        for (const Element item : Children(link.Take(exclusion.list), exclusion.item))
            item.Taken().Take(exclusion.name);
    link.Child("NOT-INHERITED-VARIABLES").LeaveOut(Fate::NotRepresented, "variables have no place in the model");
}

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
        ReportOtherBase(layer, *parent->second, link);
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

void LayerSet::ReportOtherBase(const Layer& layer, const Layer& parent, Element link) const {
    const Layer* base = layer.kind == LayerKind::EcuVariant ? BaseVariantOf(layer) : nullptr;
    if (base != nullptr && base != &parent && parent.kind == LayerKind::BaseVariant)
        m_reporter.Report(Rule::VariantOfSeveralBases, link.Where(),
                          Words({"\"", layer.shortName, "\" belongs to the base variant \"", base->shortName,
                                 "\" and inherits from \"", parent.shortName, "\", too"}));
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
            ParentLink& link = step.layer->parents[step.next++];
            const Colour colour = colours[link.parent];
            if (colour == Colour::Open)
                CutCircle(link);
            else if (colour == Colour::New)
                path.push_back({link.parent, 0});
        }
        // Those that were cut lead nowhere any more.
        std::erase_if(start->parents, [](const ParentLink& link) { return link.parent == nullptr; });
    }
}

void LayerSet::CutCircle(ParentLink& link) {
    m_reporter.Report(Rule::ParentCycle, link.link.Where(),
                      "this parent link closes a circle at \"" + std::string(link.parent->shortName) + "\"");
    link.link.Refuse("the link closes a circle");
    link.parent = nullptr;
}

} // namespace OdxImport
