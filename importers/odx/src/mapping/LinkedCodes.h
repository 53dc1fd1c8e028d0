#ifndef ODXIMPORT_MAPPING_LINKEDCODES_H
#define ODXIMPORT_MAPPING_LINKEDCODES_H

#include "mapping/Workspace.h"

#include <cstddef>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace OdxImport {

/// The DTCs of a DTC-DOP: its own, and those of the ones it links, however many steps away.
///
/// A link leaves out the codes that it names. An own code comes before a linked one of its name; of codes of one name
/// that come through several links the first is taken, with a report. What a DTC-DOP has is found out once.
class LinkedCodes {
public:
    explicit LinkedCodes(Workspace& workspace) : m_workspace(workspace) {}

    std::vector<Element> Of(Element dtcDop);

private:
    using Names = std::set<std::string_view>;

    struct Code {
        Element dtc;
        Element dtcDop; ///< whose own it is
    };

    using Codes = std::vector<Code>;

    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    /// A DTC-DOP on the way from the first one, and what was found of it.
    struct Step {
        Element dtcDop;
        Element nextLink;
        Codes codes;
        std::map<std::string_view, Code> names; ///< the first code of each
        std::unordered_set<const void*> taken;
        std::size_t leadsBack = nowhere; ///< to this step of the way, or one behind it
        std::size_t partialBefore = 0;   ///< results when it was entered
    };

    /// What was found of a DTC-DOP; not all of it while a step that it leads back to is open.
    struct Result {
        Codes codes;
        std::size_t leadsBack = nowhere;
    };

    void Enter(Element dtcDop);
    void Leave();
    void FollowLink(Element link);
    void Take(Code code, Element link);
    bool IsPassedOver(const Code& code, std::string_view name, Element link) const;
    void ReportUnknown(Element exclusions, Element linked) const;
    Names NamesFrom(Element dtcDop) const;

    Workspace& m_workspace;
    std::vector<Step> m_way;
    std::unordered_map<const void*, std::size_t> m_open; ///< places in the way
    std::unordered_map<const void*, Result> m_results;
    std::vector<const void*> m_partial; ///< results that lead back to open steps
};

} // namespace OdxImport

#endif
