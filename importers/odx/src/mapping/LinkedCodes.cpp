#include "mapping/LinkedCodes.h"

#include "report/Words.h"

#include <algorithm>
#include <utility>

namespace OdxImport {

std::vector<Element> LinkedCodes::Of(Element dtcDop) {
    m_states.clear();
    m_names.clear();
    m_codes.clear();
    Enter(dtcDop, {});
    while (!m_way.empty()) {
        const Element link = m_way.back().nextLink;
        if (link) {
            m_way.back().nextLink = link.Next();
            FollowLink(link);
        } else {
            m_states[m_way.back().dtcDop.Identity()] = State::Done;
            m_way.pop_back();
        }
    }
    return std::move(m_codes);
}

void LinkedCodes::Enter(Element dtcDop, Element link) {
    m_states[dtcDop.Identity()] = State::Open;
    Step& step = m_way.emplace_back();
    step.dtcDop = dtcDop;
    for (const Element name : Children(link.Take("NOT-INHERITED-DTC-SNREFS"), "NOT-INHERITED-DTC-SNREF"))
        step.excluded.insert(name.Taken().Attribute("SHORT-NAME"));
    for (const Element child : Children(dtcDop.Take("DTCS")))
        if (child.Is("DTC"))
            Take(child);
        else if (child.Is("DTC-REF"))
            Take(m_workspace.Follow(child, Tags::dtc));
    step.nextLink = dtcDop.Take("LINKED-DTC-DOPS").FirstChild();
}

void LinkedCodes::Take(Element dtc) {
    if (!dtc)
        return;
    const std::string_view name = dtc.ShortName();
    const bool isLinked = m_way.size() > 1;
    const bool isExcluded =
        std::any_of(m_way.begin(), m_way.end(), [&](const Step& step) { return step.excluded.contains(name); });
    if (isExcluded || (isLinked && m_names.contains(name)) || (isLinked && !m_workspace.MayCopy(dtc)))
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
    const State state = linked ? m_states[linked.Identity()] : State::Done;
    if (state == State::New)
        Enter(linked, link);
    else if (state == State::Open && isFirst)
        m_workspace.ReportAt(reference, Rule::StructureCycle,
                             Words({"the linked trouble codes lead back to \"", linked.ShortName(), "\""}));
}

} // namespace OdxImport
