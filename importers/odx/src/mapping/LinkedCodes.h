#ifndef ODXIMPORT_MAPPING_LINKEDCODES_H
#define ODXIMPORT_MAPPING_LINKEDCODES_H

#include "mapping/Workspace.h"

#include <set>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// The DTCs of a DTC-DOP: its own, and those of the ones it links, however many steps away.
///
/// A link leaves out the codes that it names. An own code comes before a linked one of its name.
class LinkedCodes {
public:
    explicit LinkedCodes(Workspace& workspace) : m_workspace(workspace) {}

    std::vector<Element> Of(Element dtcDop);

private:
    enum class State { New, Open, Done };

    /// A DTC-DOP on the way from the first one.
    struct Step {
        Element dtcDop;
        Element nextLink;
        std::set<std::string_view> excluded; ///< by the link that led here
    };

    void Enter(Element dtcDop, Element link);
    void Take(Element dtc);
    void FollowLink(Element link);

    Workspace& m_workspace;
    std::vector<Step> m_way;
    std::unordered_map<const void*, State> m_states;
    std::set<std::string_view> m_names;
    std::vector<Element> m_codes;
};

} // namespace OdxImport

#endif
