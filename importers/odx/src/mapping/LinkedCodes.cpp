#include "mapping/LinkedCodes.h"

#include "report/Words.h"

#include <algorithm>
#include <string>
#include <utility>

namespace OdxImport {

std::vector<Element> LinkedCodes::Of(Element dtcDop) {
    if (!m_results.contains(dtcDop.Identity()))
        Enter(dtcDop);
    while (!m_way.empty()) {
        if (const Element link = m_way.back().nextLink)
            FollowLink(link);
        else
            Leave();
    }
    std::vector<Element> codes;
    for (const Code& code : m_results.at(dtcDop.Identity()).codes)
        codes.push_back(code.dtc);
    return codes;
}

void LinkedCodes::Enter(Element dtcDop) {
    m_open.emplace(dtcDop.Identity(), m_way.size());
    Step& step = m_way.emplace_back();
    step.dtcDop = dtcDop;
    step.partialBefore = m_partial.size();
    for (const Element child : Children(dtcDop.Take("DTCS")))
        if (child.Is("DTC"))
            Take({child, dtcDop}, {});
        else if (child.Is("DTC-REF"))
            Take({m_workspace.Follow(child, Tags::dtc), dtcDop}, {});
    step.nextLink = dtcDop.Take("LINKED-DTC-DOPS").FirstChild();
}

/// The link that led here is followed once more then.
void LinkedCodes::Leave() {
    Step& step = m_way.back();
    const void* identity = step.dtcDop.Identity();
    const bool isWhole = step.leadsBack == nowhere || step.leadsBack + 1 >= m_way.size();
    if (isWhole) {
        // What led back to this step lacks codes of it.
        for (std::size_t i = step.partialBefore; i < m_partial.size(); ++i)
            m_results.erase(m_partial[i]);
        m_partial.resize(step.partialBefore);
    } else {
        for (std::size_t i = step.partialBefore; i < m_partial.size(); ++i) {
            std::size_t& leadsBack = m_results.at(m_partial[i]).leadsBack;
            leadsBack = std::min(leadsBack, step.leadsBack);
        }
        m_partial.push_back(identity);
    }
    m_results.insert_or_assign(identity, Result{std::move(step.codes), isWhole ? nowhere : step.leadsBack});
    m_open.erase(identity);
    m_way.pop_back();
}

void LinkedCodes::FollowLink(Element link) {
    Step& step = m_way.back();
    const Element reference = link.Is("LINKED-DTC-DOP") ? link.Taken().Child("DTC-DOP-REF") : Element();
    const bool isFirst = reference && !reference.IsTaken();
    const Element linked = m_workspace.Follow(reference, Tags::dtcDop);
    const Element exclusions = linked ? link.Take("NOT-INHERITED-DTC-SNREFS") : Element();
    if (exclusions && isFirst)
        ReportUnknown(exclusions, linked);
    const auto open = m_open.find(linked.Identity());
    const auto known = m_results.find(linked.Identity());
    if (linked && open == m_open.end() && known == m_results.end()) {
        Enter(linked);
        return;
    }
    step.nextLink = link.Next();
    if (open != m_open.end()) {
        step.leadsBack = std::min(step.leadsBack, open->second);
        if (isFirst)
            m_workspace.ReportAt(reference, Rule::StructureCycle,
                                 Words({"the linked trouble codes lead back to \"", linked.ShortName(), "\""}));
    } else if (linked) {
        Names excluded;
        for (const Element name : Children(exclusions, "NOT-INHERITED-DTC-SNREF"))
            excluded.insert(name.Taken().Attribute("SHORT-NAME"));
        step.leadsBack = std::min(step.leadsBack, known->second.leadsBack);
        for (const Code& code : known->second.codes)
            if (!excluded.contains(code.dtc.ShortName()))
                Take(code, link);
    }
}

/// `link` is the one it comes through, none for an own code.
void LinkedCodes::Take(Code code, Element link) {
    if (!code.dtc)
        return;
    Step& step = m_way.back();
    const std::string_view name = code.dtc.ShortName();
    if (step.taken.contains(code.dtc.Identity()) || IsPassedOver(code, name, link) ||
        (link && !m_workspace.MayCopy(code.dtc)))
        return;
    if (!name.empty())
        step.names.try_emplace(name, code);
    step.taken.insert(code.dtc.Identity());
    step.codes.push_back(code);
}

/// Another DTC-DOP has a code of this name; where the same one has it both are taken.
bool LinkedCodes::IsPassedOver(const Code& code, std::string_view name, Element link) const {
    const Step& step = m_way.back();
    const auto known = step.names.find(name);
    if (known == step.names.end())
        return false;
    const auto& [first, owner] = known->second;
    if (owner == code.dtcDop) {
        if (!link && !code.dtc.IsTaken())
            m_workspace.ReportAt(
                code.dtc, Rule::ShortNameTwice,
                Words({"DTC \"", name, "\" has the name of the DTC in line ", std::to_string(first.Where().line)}));
        return false;
    }
    const std::string_view number = code.dtc.Child("TROUBLE-CODE").Text(),
                           firstNumber = first.Child("TROUBLE-CODE").Text();
    if (!(owner == step.dtcDop) && number != firstNumber)
        m_workspace.ReportAt(
            link, Rule::InheritanceAmbiguous,
            Words({"\"", step.dtcDop.ShortName(), "\" links \"", name, "\" with the number ", firstNumber, " of \"",
                   owner.ShortName(), "\" and with ", number, " of \"", code.dtcDop.ShortName(), "\""}),
            Outcome::ObjectSkipped);
    return true;
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

} // namespace OdxImport
