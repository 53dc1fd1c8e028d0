#include "layers/LayerSet.h"

#include "report/Words.h"

#include <algorithm>
#include <string>

namespace OdxImport {

namespace {

/// Of two parents' objects of one name, the one from the higher rank counts. What a layer takes from shared data it
/// names on purpose, so shared data rank highest; otherwise the more special layer does.
int RankOf(LayerKind kind) {
    return kind == LayerKind::EcuSharedData ? 100 : static_cast<int>(kind);
}

} // namespace

const ObjectTable& LayerSet::Effective(Layer& layer, Category category) {
    // Parents first, without recursion; there are no circles any more.
    const auto index = static_cast<std::size_t>(category);
    std::vector<Layer*> open{&layer};
    while (!open.empty()) {
        Layer& at = *open.back();
        const std::size_t before = open.size();
        if (!at.effective[index])
            for (const ParentLink& link : at.parents)
                if (!link.parent->effective[index])
                    open.push_back(link.parent);
        if (open.size() != before)
            continue;
        if (!at.effective[index])
            Merge(at, category);
        open.pop_back();
    }
    return *layer.effective[index];
}

void LayerSet::Merge(Layer& layer, Category category) {
    const auto index = static_cast<std::size_t>(category);
    ObjectTable table;
    for (const auto& entry : layer.own[index].Entries())
        table.Insert(0, entry.name, entry.value);
    std::vector<const ParentLink*> parents;
    parents.reserve(layer.parents.size());
    for (const ParentLink& link : layer.parents)
        parents.push_back(&link);
    std::sort(parents.begin(), parents.end(), [](const ParentLink* a, const ParentLink* b) {
        const int rankOfA = RankOf(a->parent->kind), rankOfB = RankOf(b->parent->kind);
        return rankOfA != rankOfB ? rankOfA > rankOfB : a < b; // of one rank, as the layer names them
    });
    std::unordered_map<std::string_view, LayerKind> inheritedFrom;
    for (const ParentLink* link : parents)
        Inherit(table, *link, category, inheritedFrom, layer);
    layer.effective[index] = std::make_unique<const ObjectTable>(std::move(table));
}

void LayerSet::Inherit(ObjectTable& table, const ParentLink& link, Category category,
                       std::unordered_map<std::string_view, LayerKind>& inheritedFrom, const Layer& layer) {
    const auto index = static_cast<std::size_t>(category);
    const ObjectTable& offered = *link.parent->effective[index];
    const std::set<std::string_view>& excluded = link.notInherited[index];
    for (const std::string_view name : excluded)
        if (offered.Find(0, name) == nullptr)
            m_reporter.Report(
                Rule::NotInheritedUnknown, link.link.Where(),
                Words({"\"", name, "\" is excluded, but \"", link.parent->shortName, "\" has no such object"}));
    for (const auto& entry : offered.Entries()) {
        if (entry.isRepeated || excluded.contains(entry.name))
            continue;
        const LayerObject* known = table.Find(0, entry.name);
        if (known == nullptr) {
            table.Insert(0, entry.name, entry.value);
            inheritedFrom.emplace(entry.name, link.parent->kind);
            continue;
        }
        const auto before = inheritedFrom.find(entry.name);
        if (before != inheritedFrom.end() && before->second == link.parent->kind &&
            !(known->element == entry.value.element))
            m_reporter.Report(Rule::InheritanceAmbiguous, link.link.Where(),
                              Words({"\"", layer.shortName, "\" inherits \"", entry.name, "\" from \"",
                                     known->origin->shortName, "\" and from \"", link.parent->shortName, "\""}));
    }
}

Element LayerSet::FindByName(Layer& layer, Category category, std::string_view name) {
    const LayerObject* found = Effective(layer, category).Find(0, name);
    return found == nullptr ? Element() : found->element;
}

} // namespace OdxImport
