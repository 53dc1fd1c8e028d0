#include "mapping/LinkedCodes.h"

#include "report/Words.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace OdxImport {

std::vector<Element> LinkedCodes::Of(Element dtcDop) {
    m_visits.clear();
    m_names.clear();
    m_taken.clear();
    m_codes.clear();
    Enter(dtcDop, {});
    while (!m_way.empty()) {
        const Element link = m_way.back().nextLink;
        if (link) {
            m_way.back().nextLink = link.Next();
            FollowLink(link);
        } else {
            Leave();
        }
    }
    return std::move(m_codes);
}

void LinkedCodes::Enter(Element dtcDop, Names excluded) {
    for (const std::string_view name : excluded)
        ++m_excluded[name];
    const auto [known, isNew] = m_visits.try_emplace(dtcDop.Identity());
    Visit& visit = known->second;
    visit.isOpen = true;
    if (isNew)
        std::transform(m_excluded.begin(), m_excluded.end(), std::inserter(visit.excluded, visit.excluded.end()),
                       [](const auto& entry) { return entry.first; });
    else
        std::erase_if(visit.excluded, [&](std::string_view name) { return !m_excluded.contains(name); });
    Step& step = m_way.emplace_back();
    step.dtcDop = dtcDop;
    step.excluded = std::move(excluded);
    for (const Element child : Children(dtcDop.Take("DTCS")))
        if (child.Is("DTC"))
            Take(child);
        else if (child.Is("DTC-REF"))
            Take(m_workspace.Follow(child, Tags::dtc));
    step.nextLink = dtcDop.Take("LINKED-DTC-DOPS").FirstChild();
}

void LinkedCodes::Leave() {
    const Step& step = m_way.back();
    m_visits[step.dtcDop.Identity()].isOpen = false;
    for (const std::string_view name : step.excluded)
        if (const auto entry = m_excluded.find(name); --entry->second == 0)
            m_excluded.erase(entry);
    m_way.pop_back();
}

void LinkedCodes::Take(Element dtc) {
    if (!dtc)
        return;
    const std::string_view name = dtc.ShortName();
    const bool isLinked = m_way.size() > 1;
    if (m_excluded.contains(name) || m_taken.contains(dtc.Identity()) || IsPassedOver(dtc, name) ||
        (isLinked && !m_workspace.MayCopy(dtc)))
        return;
    if (!name.empty())
        m_names.try_emplace(name, Code{dtc, m_way.back().dtcDop});
    m_taken.insert(dtc.Identity());
    m_codes.push_back(dtc);
}

/// Another DTC-DOP has a code of this name; where the same one has it both are taken.
bool LinkedCodes::IsPassedOver(Element dtc, std::string_view name) const {
    const auto known = m_names.find(name);
    if (known == m_names.end())
        return false;
    const auto& [first, owner] = known->second;
    const Element dtcDop = m_way.back().dtcDop;
    const auto lineOfFirst = [&first] { return std::to_string(first.Where().line); };
    if (owner == dtcDop) {
        if (!dtc.IsTaken())
            m_workspace.ReportAt(dtc, Rule::ShortNameTwice,
                                 Words({"DTC \"", name, "\" has the name of the DTC in line ", lineOfFirst()}));
        return false;
    }
    const bool isOverridden = m_visits.at(owner.Identity()).isOpen;
    const std::string_view number = dtc.Child("TROUBLE-CODE").Text(), firstNumber = first.Child("TROUBLE-CODE").Text();
    if (!isOverridden && number != firstNumber)
        m_workspace.ReportAt(
            dtc, Rule::InheritanceAmbiguous,
            Words({"\"", m_way.front().dtcDop.ShortName(), "\" links \"", name, "\" with the number ", firstNumber,
                   " of \"", owner.ShortName(), "\" and with ", number, " of \"", dtcDop.ShortName(), "\""}),
            Outcome::ObjectSkipped);
    return true;
}

void LinkedCodes::FollowLink(Element link) {
    if (!link.Is("LINKED-DTC-DOP"))
        return;
    const Element reference = link.Taken().Child("DTC-DOP-REF");
    const bool isFirst = reference && !reference.IsTaken();
    const Element linked = m_workspace.Follow(reference, Tags::dtcDop);
    if (!linked)
        return;
    Names excluded;
    const Element exclusions = link.Take("NOT-INHERITED-DTC-SNREFS");
    if (exclusions && isFirst)
        ReportUnknown(exclusions, linked);
    for (const Element name : Children(exclusions, "NOT-INHERITED-DTC-SNREF"))
        excluded.insert(name.Taken().Attribute("SHORT-NAME"));
    const auto before = m_visits.find(linked.Identity());
    const bool isOpen = before != m_visits.end() && before->second.isOpen;
    if (!isOpen && (before == m_visits.end() || HasMore(before->second, excluded)))
        Enter(linked, std::move(excluded));
    else if (isOpen && isFirst)
        m_workspace.ReportAt(reference, Rule::StructureCycle,
                             Words({"the linked trouble codes lead back to \"", linked.ShortName(), "\""}));
}

void LinkedCodes::ReportUnknown(Element exclusions, Element linked) const {
    const Names offered = NamesFrom(linked);
    for (const Element exclusion : Children(exclusions, "NOT-INHERITED-DTC-SNREF"))
        if (const std::string_view name = exclusion.Attribute("SHORT-NAME"); !offered.contains(name))
            m_workspace.ReportAt(
                exclusion, Rule::NotInheritedUnknown,
                Words({"\"", name, "\" is excluded, but \"", linked.ShortName(), "\" has no such trouble code"}));
}

/// Of the codes of the DTC-DOP and of all that it links.
LinkedCodes::Names LinkedCodes::NamesFrom(Element dtcDop) const {
    Names names;
    std::unordered_set<const void*> seen{dtcDop.Identity()};
    std::vector<Element> open{dtcDop};
    while (!open.empty()) {
        const Element at = open.back();
        open.pop_back();
        for (const Element child : Children(at.Child("DTCS")))
            names.insert((child.Is("DTC-REF") ? m_workspace.Look(child, Tags::dtc) : child).ShortName());
        for (const Element link : Children(at.Child("LINKED-DTC-DOPS"), "LINKED-DTC-DOP"))
            if (const Element next = m_workspace.Look(link.Child("DTC-DOP-REF"), Tags::dtcDop);
                next && seen.insert(next.Identity()).second)
                open.push_back(next);
    }
    return names;
}

/// Whether something may come through now that was excluded each time before.
bool LinkedCodes::HasMore(const Visit& before, const Names& excluded) const {
    return std::any_of(before.excluded.begin(), before.excluded.end(),
                       [&](std::string_view name) { return !m_excluded.contains(name) && !excluded.contains(name); });
}

} // namespace OdxImport
