#include "mapping/VariantViews.h"

#include "links/Kinds.h"
#include "xml/Walk.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace OdxImport {

namespace {

constexpr std::array<std::string_view, 5> otherObjects{"TABLE", "REQUEST", "POS-RESPONSE", "NEG-RESPONSE",
                                                       "GLOBAL-NEG-RESPONSE"};

constexpr std::array<std::pair<std::string_view, Category>, 7> nameLinks{
    {{"DOP-SNREF", Category::DataObject},
     {"STRUCTURE-SNREF", Category::DataObject},
     {"BASIC-STRUCTURE-SNREF", Category::DataObject},
     {"DATA-OBJECT-PROP-SNREF", Category::DataObject},
     {"KEY-DOP-SNREF", Category::DataObject},
     {"ENV-DATA-DESC-SNREF", Category::DataObject},
     {"TABLE-SNREF", Category::Table}}};

bool IsObject(std::string_view tag) {
    return std::find(Tags::dataObjects.begin(), Tags::dataObjects.end(), tag) != Tags::dataObjects.end() ||
           std::find(otherObjects.begin(), otherObjects.end(), tag) != otherObjects.end();
}

/// The object that the element is or is in; none outside of objects.
Element ObjectAround(Element element) {
    while (element && !IsObject(element.Tag()))
        element = element.Parent();
    return element;
}

std::optional<Category> CategoryOf(std::string_view tag) {
    for (const auto& [name, category] : nameLinks)
        if (name == tag)
            return category;
    return std::nullopt;
}

} // namespace

bool VariantViews::Differs(Element object, Layer& variant) {
    return DifferentFor(variant).contains(object.Identity());
}

void VariantViews::FindNameLinks() {
    m_hasNameLinks = true;
    for (const Layer* layer : m_watched) {
        const bool isBeside = layer->kind < LayerKind::BaseVariant && &m_contextOf(layer->element) == layer;
        WalkElements(layer->element, [&](Element link, std::uint32_t) {
            if (!link.HasAttribute("SHORT-NAME"))
                return true;
            const std::optional<Category> category = CategoryOf(link.Tag());
            const Element owner = category ? ObjectAround(link) : Element();
            if (!owner)
                return true;
            const auto scope = static_cast<std::uint32_t>(*category);
            const std::string_view name = link.Attribute("SHORT-NAME");
            if (m_nameLinks.Find(scope, name) == nullptr)
                m_nameLinks.Insert(scope, name, {});
            m_nameLinks.Find(scope, name)->push_back({link, owner.Identity(), layer});
            if (isBeside)
                m_beside[layer].emplace_back(*category, name);
            return true;
        });
    }
}

void VariantViews::FindUsers() {
    m_hasUsers = true;
    for (const auto& entry : m_nameLinks.Entries())
        for (const NameLink& at : entry.value)
            AddUser(m_layers.FindByName(m_contextOf(at.link), static_cast<Category>(entry.scope), entry.name),
                    at.owner);
    for (const Layer* layer : m_watched) {
        WalkElements(layer->element, [&](Element element, std::uint32_t) {
            if (element.HasAttribute("ID-REF")) {
                if (const Element owner = ObjectAround(element))
                    AddUser(m_links.Peek(element), owner.Identity());
            } else if (IsObject(element.Tag())) { // where objects stand in each other
                if (const Element outer = ObjectAround(element.Parent()))
                    AddUser(element, outer.Identity());
            }
            return true;
        });
    }
}

void VariantViews::AddUser(Element target, const void* user) {
    if (const Element object = ObjectAround(target))
        if (object.Identity() != user)
            m_users[object.Identity()].push_back(user);
}

void VariantViews::Consider(Layer& variant, Category category, std::string_view name, Objects& seeds) {
    const auto* links = m_nameLinks.Find(static_cast<std::uint32_t>(category), name);
    if (links == nullptr)
        return;
    const Element seen = m_layers.FindByName(variant, category, name);
    for (const NameLink& at : *links)
        // A variant sees its own objects as they are, and those of other variants not at all.
        if (at.layer->kind != LayerKind::EcuVariant &&
            !(m_layers.FindByName(m_contextOf(at.link), category, name) == seen))
            seeds.insert(at.owner);
}

/// Layers that the base variant does not inherit from find less by themselves than the variant does.
void VariantViews::ConsiderLinksBeside(Layer& variant, Objects& seeds) {
    std::unordered_set<const Layer*> known{&variant};
    std::vector<const Layer*> open{&variant};
    while (!open.empty()) {
        const Layer* at = open.back();
        open.pop_back();
        if (const auto names = m_beside.find(at); names != m_beside.end())
            for (const auto& [category, name] : names->second)
                Consider(variant, category, name, seeds);
        for (const ParentLink& link : at->parents)
            if (known.insert(link.parent).second)
                open.push_back(link.parent);
    }
}

/// Only what the variant has itself, excludes, or has from elsewhere than its base can make a difference.
VariantViews::Objects VariantViews::Seeds(Layer& variant) {
    if (!m_hasNameLinks)
        FindNameLinks();
    Objects seeds;
    const Layer* base = LayerSet::BaseVariantOf(variant);
    for (const Category category : {Category::DataObject, Category::Table}) {
        const auto index = static_cast<std::size_t>(category);
        for (const auto& entry : variant.own[index].Entries())
            Consider(variant, category, entry.name, seeds);
        for (const ParentLink& parent : variant.parents) {
            for (const std::string_view name : parent.notInherited[index])
                Consider(variant, category, name, seeds);
            if (parent.parent == base)
                continue;
            m_layers.Effective(*parent.parent, category).ForEach([&](const ObjectTable::Entry& entry) {
                Consider(variant, category, entry.name, seeds);
                return true;
            });
        }
    }
    if (!m_beside.empty())
        ConsiderLinksBeside(variant, seeds);
    return seeds;
}

const VariantViews::Objects& VariantViews::DifferentFor(Layer& variant) {
    const auto [known, isNew] = m_different.try_emplace(&variant);
    Objects& different = known->second;
    if (!isNew)
        return different;
    different = Seeds(variant);
    if (!different.empty() && !m_hasUsers)
        FindUsers();
    std::vector<const void*> open(different.begin(), different.end());
    while (!open.empty()) {
        const auto users = m_users.find(open.back());
        open.pop_back();
        if (users == m_users.end())
            continue;
        for (const void* user : users->second)
            if (different.insert(user).second)
                open.push_back(user);
    }
    return different;
}

} // namespace OdxImport
