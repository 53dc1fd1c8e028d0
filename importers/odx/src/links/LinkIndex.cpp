#include "links/LinkIndex.h"

#include "xml/Walk.h"

#include <algorithm>
#include <array>
#include <string>

namespace OdxImport {

namespace {

constexpr std::uint32_t fragmentScope = 0x80000000u;
constexpr std::uint32_t noFragment = 0xFFFFFFFFu;
/// Of further ones, which are reported anyway, a link finds nothing; many would make every link slow.
constexpr std::uint32_t mostNamesakes = 100;

struct FragmentKind {
    std::string_view tag;
    std::string_view docType;
};

constexpr std::array<FragmentKind, 13> fragmentKinds{{{"PROTOCOL", "LAYER"},
                                                      {"FUNCTIONAL-GROUP", "LAYER"},
                                                      {"ECU-SHARED-DATA", "LAYER"},
                                                      {"BASE-VARIANT", "LAYER"},
                                                      {"ECU-VARIANT", "LAYER"},
                                                      {"DIAG-LAYER-CONTAINER", "CONTAINER"},
                                                      {"COMPARAM-SPEC", "COMPARAM-SPEC"},
                                                      {"COMPARAM-SUBSET", "COMPARAM-SUBSET"},
                                                      {"VEHICLE-INFO-SPEC", "VEHICLE-INFO-SPEC"},
                                                      {"FLASH", "FLASH"},
                                                      {"ECU-CONFIG", "ECU-CONFIG"},
                                                      {"MULTIPLE-ECU-JOB-SPEC", "MULTIPLE-ECU-JOB-SPEC"},
                                                      {"FUNCTION-DICTIONARY", "FUNCTION-DICTIONARY-SPEC"}}};

/// Number of the DOCTYPE among the kinds; past the end for one that is none.
std::uint32_t ScopeOfDocType(std::string_view docType) {
    const auto found = std::find_if(fragmentKinds.begin(), fragmentKinds.end(),
                                    [&](const FragmentKind& kind) { return kind.docType == docType; });
    return static_cast<std::uint32_t>(found - fragmentKinds.begin());
}

std::string_view DocTypeOf(std::string_view tag) {
    for (const FragmentKind& kind : fragmentKinds)
        if (kind.tag == tag)
            return kind.docType;
    return {};
}

std::string Describe(Element link) {
    std::string text(link.Tag());
    text.append(" to \"").append(link.Attribute("ID-REF")).append("\"");
    if (link.HasAttribute("DOCREF")) {
        const std::string_view docType = link.Attribute("DOCTYPE");
        text.append(" in ").append(docType).append(docType.empty() ? "\"" : " \"");
        text.append(link.Attribute("DOCREF")).append("\"");
    }
    return text;
}

} // namespace

void LinkIndex::Add(XmlDocument& document) {
    const std::uint32_t number = m_documentCount++;
    FragmentNumber upper = noFragment, fragment = noFragment; ///< that the element is in
    WalkElements(document.Root(), [&](Element element, std::uint32_t depth) {
        // Containers and specifications stand below the root, layers below the lists of a container.
        if (depth == 2)
            fragment = upper = AddFragment(element, number);
        else if (depth == 4 && DocTypeOf(element.Tag()) == "LAYER")
            fragment = AddFragment(element, number);
        else if (depth <= 4)
            fragment = upper;
        if (const std::string_view id = element.Attribute("ID"); !id.empty())
            AddId({number, fragment}, element, id);
        return true;
    });
}

LinkIndex::FragmentNumber LinkIndex::AddFragment(Element element, std::uint32_t document) {
    const auto number = static_cast<FragmentNumber>(m_fragments.size());
    m_fragments.push_back({element, document, noFragment, {}});
    m_numbers.emplace(element.Identity(), number);
    const std::string_view name = element.ShortName();
    const std::uint32_t scope = ScopeOfDocType(DocTypeOf(element.Tag()));
    Namesakes* const known = m_fragmentNames.Find(scope, name);
    if (known == nullptr) {
        m_fragmentNames.Insert(scope, name, {number, number, 1});
    } else if (known->count < mostNamesakes) {
        m_fragments[known->last].namesake = number;
        known->last = number;
        ++known->count;
    }
    return number;
}

void LinkIndex::AddId(Place place, Element element, std::string_view id) {
    const auto [document, fragment] = place;
    Target* known = m_ids.Find(document, id);
    if (known == nullptr) {
        m_ids.Insert(document, id, {element, fragment, false});
        return;
    }
    if (known->fragment == fragment) {
        ReportTwice(element, id, known->element);
        return;
    }
    known->isShared = true;
    if (const Target* own = m_ids.Find(fragmentScope + fragment, id))
        ReportTwice(element, id, own->element);
    else
        m_ids.Insert(fragmentScope + fragment, id, {element, fragment, false});
}

void LinkIndex::ReportTwice(Element element, std::string_view id, Element first) const {
    m_reporter.Report(Rule::IdTwice, element.Where(),
                      "the ID \"" + std::string(id) + "\" is used before, in line " +
                          std::to_string(first.Where().line));
}

Element LinkIndex::FragmentOf(Element element) const {
    Element lower = element, layer = element, upper = element;
    for (Element at = element; at.Parent(); at = at.Parent()) {
        layer = lower;
        lower = upper;
        upper = at;
    }
    // `upper` is below the root, `layer` two levels below that, when there are so many levels.
    return m_numbers.contains(layer.Identity()) ? layer : upper;
}

LinkIndex::FragmentNumber LinkIndex::NumberOf(Element element) const {
    const auto found = m_numbers.find(FragmentOf(element).Identity());
    return found == m_numbers.end() ? noFragment : found->second;
}

void LinkIndex::Import(Element importingLayer, Element importedLayer) {
    const FragmentNumber from = NumberOf(importingLayer), to = NumberOf(importedLayer);
    if (from != noFragment && to != noFragment)
        m_fragments[from].imported.push_back(to);
}

Element LinkIndex::Find(const Fragment& fragment, FragmentNumber number, std::string_view id) const {
    const Target* target = m_ids.Find(fragment.document, id);
    if (target == nullptr)
        return {};
    if (target->isShared && target->fragment != number)
        if (const Target* own = m_ids.Find(fragmentScope + number, id))
            return own->element;
    return target->element;
}

Element LinkIndex::FindNear(FragmentNumber from, std::string_view id) const {
    if (from == noFragment)
        return {};
    if (const Element found = Find(m_fragments[from], from, id))
        return found;
    for (const FragmentNumber imported : m_fragments[from].imported)
        if (const Element found = Find(m_fragments[imported], imported, id))
            return found;
    return {};
}

const LinkIndex::Anywhere* LinkIndex::FindAnywhere(std::string_view id) const {
    if (m_anywhere.Entries().empty()) {
        for (const auto& entry : m_ids.Entries()) {
            if (Anywhere* known = m_anywhere.Find(0, entry.name))
                known->isAmbiguous = true;
            else
                m_anywhere.Insert(0, entry.name, {entry.value.element, false});
        }
    }
    return m_anywhere.Find(0, id);
}

/// Of documents and layers of one name, the link's own layer is nearest, then its own file; of targets of a parent
/// link, those that its type tells of.
int LinkIndex::DistanceOf(FragmentNumber fragment, Element target, Element link, FragmentNumber from) const {
    const bool isOwnFile = from != noFragment && m_fragments[fragment].document == m_fragments[from].document;
    const int distance = fragment == from ? 0 : isOwnFile ? 1 : 2;
    const std::string_view type = link.Is("PARENT-REF") ? link.Attribute("type") : std::string_view();
    const bool isOther = type.ends_with("-REF") && type.substr(0, type.size() - 4) != target.Tag();
    return isOther ? distance + 3 : distance;
}

LinkIndex::Found LinkIndex::FindIn(const Namesakes& fragments, Element link, std::string_view id) const {
    if (fragments.count == 1)
        return {Find(m_fragments[fragments.first], fragments.first, id), false};
    const FragmentNumber from = NumberOf(link);
    Found found;
    int distance = 0;
    for (FragmentNumber at = fragments.first; at != noFragment; at = m_fragments[at].namesake) {
        const Element target = Find(m_fragments[at], at, id);
        if (!target)
            continue;
        const int own = DistanceOf(at, target, link, from);
        if (!found.element || own < distance) {
            found = {target, false};
            distance = own;
        } else if (own == distance && !(target == found.element)) {
            found.isAmbiguous = true;
        }
    }
    return found;
}

LinkIndex::Found LinkIndex::FindKnown(Element link, std::string_view id) const {
    const std::string_view name = link.Attribute("DOCREF");
    if (name.empty())
        return {FindNear(NumberOf(link), id), false};
    const Namesakes* fragments = m_fragmentNames.Find(ScopeOfDocType(link.Attribute("DOCTYPE")), name);
    return fragments == nullptr ? Found() : FindIn(*fragments, link, id);
}

/// Where DOCTYPE is wrong or missing, DOCREF still tells documents with the same IDs apart.
LinkIndex::Found LinkIndex::FindByDocref(Element link, std::string_view id) const {
    const std::string_view name = link.Attribute("DOCREF");
    if (name.empty())
        return {};
    for (std::uint32_t scope = 0; scope < fragmentKinds.size(); ++scope)
        if (const Namesakes* fragments = m_fragmentNames.Find(scope, name))
            if (const Found found = FindIn(*fragments, link, id); found.element)
                return found;
    return {};
}

Element LinkIndex::Peek(Element link) const {
    const std::string_view id = link.Attribute("ID-REF");
    if (const Found known = FindKnown(link, id); known.element)
        return known.element;
    if (const Found named = FindByDocref(link, id); named.element)
        return named.element;
    const Anywhere* target = FindAnywhere(id);
    return target == nullptr ? Element() : target->element;
}

Element LinkIndex::Follow(Element link) const {
    return Follow(link, Rule::LinkDangling);
}

Element LinkIndex::Follow(Element link, Rule missing) const {
    const std::string_view id = link.Attribute("ID-REF");
    if (id.empty()) {
        m_reporter.Report(Rule::LinkEmpty, link.Where(), std::string(link.Tag()) + " has no ID-REF");
        link.Refuse(deadLink);
        return {};
    }
    if (const Found known = FindKnown(link, id); known.element) {
        if (known.isAmbiguous)
            ReportFound(Rule::LinkAmbiguous, link, known.element);
        return known.element;
    }
    if (const Found named = FindByDocref(link, id); named.element) {
        ReportFound(named.isAmbiguous ? Rule::LinkAmbiguous : Rule::DocrefUnknown, link, named.element);
        return named.element;
    }
    const Anywhere* target = FindAnywhere(id);
    if (target == nullptr) {
        m_reporter.Report(missing, link.Where(), "there is no target for " + Describe(link));
        link.Refuse(deadLink);
        return {};
    }
    const Rule found = link.HasAttribute("DOCREF") ? Rule::DocrefUnknown : Rule::LinkFoundElsewhere;
    ReportFound(target->isAmbiguous ? Rule::LinkAmbiguous : found, link, target->element);
    return target->element;
}

void LinkIndex::ReportFound(Rule rule, Element link, Element target) const {
    m_reporter.Report(rule, link.Where(),
                      Describe(link) + " leads to " + target.Where().path + " in " + target.Document().Name());
}

} // namespace OdxImport
