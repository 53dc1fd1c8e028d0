#ifndef ODXIMPORT_MAPPING_LINKEDCODES_H
#define ODXIMPORT_MAPPING_LINKEDCODES_H

#include "mapping/Workspace.h"

#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace OdxImport {

/// The DTCs of a DTC-DOP: its own, and those of the ones it links, however many steps away.
///
/// A link leaves out the codes that it names. An own code comes before a linked one of its name;
/// of codes of one name that come through several links the first is taken, with a report.
class LinkedCodes {
public:
    explicit LinkedCodes(Workspace& workspace) : m_workspace(workspace) {}

    std::vector<Element> Of(Element dtcDop);

private:
    using Names = std::set<std::string_view>;

    /// A DTC-DOP on the way from the first one.
    struct Step {
        Element dtcDop;
        Element nextLink;
        Names excluded; ///< by the link that led here
    };

    struct Code {
        Element dtc;
        Element dtcDop; ///< that has it
    };

    struct Visit {
        bool isOpen = false;
        Names excluded; ///< on every way that led here
    };

    void Enter(Element dtcDop, Names excluded);
    void Leave();
    void Take(Element dtc);
    bool IsPassedOver(Element dtc, std::string_view name) const;
    void FollowLink(Element link);
    void ReportUnknown(Element exclusions, Element linked) const;
    Names NamesFrom(Element dtcDop) const;
    bool HasMore(const Visit& before, const Names& excluded) const;

    Workspace& m_workspace;
    std::vector<Step> m_way;
    std::map<std::string_view, std::size_t> m_excluded; ///< by how many links of the way
    std::unordered_map<const void*, Visit> m_visits;
    std::map<std::string_view, Code> m_names; ///< the first code of each
    std::unordered_set<const void*> m_taken;
    std::vector<Element> m_codes;
};

} // namespace OdxImport

#endif
