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

/// The object that the node is or is in; none outside of objects.
pugi::xml_node ObjectAround(pugi::xml_node node) {
    while (node && !IsObject(node.name()))
        node = node.parent();
    return node;
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
        WalkElements(layer->element.Node(), [&](pugi::xml_node node, std::uint32_t) {
            if (!node.attribute("SHORT-NAME"))
                return true;
            const std::optional<Category> category = CategoryOf(node.name());
            if (const pugi::xml_node owner = category ? ObjectAround(node) : pugi::xml_node())
                m_nameLinks.push_back(
                    {Element(node, layer->element.Document()), owner.internal_object(), layer, *category});
            return true;
        });
    }
}

void VariantViews::FindUsers() {
    m_hasUsers = true;
    for (const NameLink& at : m_nameLinks)
        AddUser(m_layers.FindByName(m_contextOf(at.link), at.category, at.link.Attribute("SHORT-NAME")), at.owner);
    for (const Layer* layer : m_watched) {
        WalkElements(layer->element.Node(), [&](pugi::xml_node node, std::uint32_t) {
            const Element element(node, layer->element.Document());
            if (element.HasAttribute("ID-REF")) {
                if (const pugi::xml_node owner = ObjectAround(node))
                    AddUser(m_links.Peek(element), owner.internal_object());
            } else if (IsObject(node.name())) { // where objects stand in each other
                if (const pugi::xml_node outer = ObjectAround(node.parent()))
                    AddUser(element, outer.internal_object());
            }
            return true;
        });
    }
}

void VariantViews::AddUser(Element target, const void* user) {
    if (const pugi::xml_node object = ObjectAround(target.Node()))
        if (object.internal_object() != user)
            m_users[object.internal_object()].push_back(user);
}

VariantViews::Objects VariantViews::Seeds(Layer& variant) {
    if (!m_hasNameLinks)
        FindNameLinks();
    Objects seeds;
    for (const NameLink& at : m_nameLinks) {
        if (at.layer->kind == LayerKind::EcuVariant)
            continue; // it sees its own objects as they are, and those of other variants not at all
        const std::string_view name = at.link.Attribute("SHORT-NAME");
        if (!(m_layers.FindByName(m_contextOf(at.link), at.category, name) ==
              m_layers.FindByName(variant, at.category, name)))
            seeds.insert(at.owner);
    }
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
