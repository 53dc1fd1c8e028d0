#include "mapping/LinkedCodes.h"

#include "report/Words.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace OdxImport {

std::vector<Element> LinkedCodes::Of(Element dtcDop) {
    m_visits.clear();
    m_names.clear();
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
    if (m_excluded.contains(name) || (isLinked && m_names.contains(name)) || (isLinked && !m_workspace.MayCopy(dtc)))
        return;
    m_names.insert(name);
    m_codes.push_back(dtc);
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
    for (const Element name : Children(link.Take("NOT-INHERITED-DTC-SNREFS"), "NOT-INHERITED-DTC-SNREF"))
        excluded.insert(name.Taken().Attribute("SHORT-NAME"));
    const auto before = m_visits.find(linked.Identity());
    const bool isOpen = before != m_visits.end() && before->second.isOpen;
    if (!isOpen && (before == m_visits.end() || HasMore(before->second, excluded)))
        Enter(linked, std::move(excluded));
    else if (isOpen && isFirst)
        m_workspace.ReportAt(reference, Rule::StructureCycle,
                             Words({"the linked trouble codes lead back to \"", linked.ShortName(), "\""}));
}

/// Whether something may come through now that was excluded each time before.
bool LinkedCodes::HasMore(const Visit& before, const Names& excluded) const {
    return std::any_of(before.excluded.begin(), before.excluded.end(),
                       [&](std::string_view name) { return !m_excluded.contains(name) && !excluded.contains(name); });
}

} // namespace OdxImport
