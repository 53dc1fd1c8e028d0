#include "mapping/TypeMembers.h"

#include <ImportDame/DataObject.h>

#include <string>

namespace OdxImport {

using ImportDame::VDataType;

void TypeMembers::Add(VDataType& owner, ImportDame::VDataObject& member, VDataType& type, Element where) {
    std::vector<Edge>& edges = m_members[&owner];
    if (edges.empty())
        m_owners.push_back(&owner);
    edges.push_back({&member, &type, where});
}

void TypeMembers::CutCircles(const Reporter& reporter) {
    enum class Colour { New, Open, Done };

    struct Step {
        VDataType* type;
        std::size_t next;
    };

    std::unordered_map<VDataType*, Colour> colours;
    for (VDataType* start : m_owners) {
        std::vector<Step> path;
        if (colours[start] == Colour::New)
            path.push_back({start, 0});
        while (!path.empty()) {
            Step& step = path.back();
            colours[step.type] = Colour::Open;
            const auto members = m_members.find(step.type);
            if (members == m_members.end() || step.next == members->second.size()) {
                colours[step.type] = Colour::Done;
                path.pop_back();
                continue;
            }
            const Edge& edge = members->second[step.next++];
            const Colour colour = colours[edge.type];
            if (colour == Colour::New) {
                path.push_back({edge.type, 0});
            } else if (colour == Colour::Open) {
                edge.member->SetDataType(nullptr);
                reporter.Report(Rule::StructureCycle, edge.where.Where(),
                                "this member leads back to the structure it is in");
            }
        }
    }
}

} // namespace OdxImport
