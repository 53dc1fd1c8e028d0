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

const EffectiveObjects& LayerSet::Effective(Layer& layer, Category category) {
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
    EffectiveObjects objects;
    for (const auto& entry : layer.own[index].Entries())
        objects.Near().Insert(0, entry.name, entry.value);
    std::vector<const ParentLink*> parents;
    parents.reserve(layer.parents.size());
    for (const ParentLink& link : layer.parents)
        parents.push_back(&link);
    std::sort(parents.begin(), parents.end(), [](const ParentLink* a, const ParentLink* b) {
        const int rankOfA = RankOf(a->parent->kind), rankOfB = RankOf(b->parent->kind);
        return rankOfA != rankOfB ? rankOfA > rankOfB : a < b; // of one rank, as the layer names them
    });
    std::unordered_map<std::string_view, LayerKind> inheritedFrom;
    for (const ParentLink* link : parents) {
        ReportUnknownExclusions(*link, category);
        if (link->parent->kind == LayerKind::BaseVariant && !objects.Borrows())
            objects.Borrow(link->parent->effective[index]->Near(), link->notInherited[index]);
        else
            Inherit(objects, *link, category, inheritedFrom, layer);
    }
    layer.effective[index] = std::make_unique<const EffectiveObjects>(std::move(objects));
}

void LayerSet::ReportUnknownExclusions(const ParentLink& link, Category category) const {
    const auto index = static_cast<std::size_t>(category);
    const EffectiveObjects& offered = *link.parent->effective[index];
    for (const std::string_view name : link.notInherited[index])
        if (offered.Find(name) == nullptr)
            m_reporter.Report(
                Rule::NotInheritedUnknown, link.link.Where(),
                Words({"\"", name, "\" is excluded, but \"", link.parent->shortName, "\" has no such object"}));
}

void LayerSet::Inherit(EffectiveObjects& objects, const ParentLink& link, Category category,
                       std::unordered_map<std::string_view, LayerKind>& inheritedFrom, const Layer& layer) {
    const auto index = static_cast<std::size_t>(category);
    const std::set<std::string_view>& excluded = link.notInherited[index];
    link.parent->effective[index]->ForEach([&](const ObjectTable::Entry& entry) {
        if (entry.isRepeated || excluded.contains(entry.name))
            return true;
        const LayerObject* known = objects.Find(entry.name);
        if (known == nullptr) {
            objects.Near().Insert(0, entry.name, entry.value);
            inheritedFrom.emplace(entry.name, link.parent->kind);
            return MayInheritMore(layer);
        }
        const auto before = inheritedFrom.find(entry.name);
        const bool isOfEqualRank = before != inheritedFrom.end() ? before->second == link.parent->kind
                                                                 : link.parent->kind == LayerKind::BaseVariant &&
                                                                       layer.own[index].Find(0, entry.name) == nullptr;
        if (isOfEqualRank && !(known->element == entry.value.element))
            m_reporter.Report(Rule::InheritanceAmbiguous, link.link.Where(),
                              Words({"\"", layer.shortName, "\" inherits \"", entry.name, "\" from \"",
                                     known->origin->shortName, "\" and from \"", link.parent->shortName, "\""}));
        return true;
    });
}

bool LayerSet::MayInheritMore(const Layer& layer) {
    if (++m_inherited < m_mostInherited)
        return true;
    if (m_inherited == m_mostInherited)
        m_reporter.Report(Rule::ObjectsTooMany, layer.element.Where(),
                          "from here on layers do not inherit what fills more tables");
    return false;
}

bool LayerSet::IsAsItsBase(Layer& layer) {
    for (const Category category : {Category::DataObject, Category::Table, Category::GlobalNegResponse})
        if (!Effective(layer, category).IsAsInBase())
            return false;
    return true;
}

Element LayerSet::FindByName(Layer& layer, Category category, std::string_view name) {
    const LayerObject* found = Effective(layer, category).Find(name);
    return found == nullptr ? Element() : found->element;
}

} // namespace OdxImport
