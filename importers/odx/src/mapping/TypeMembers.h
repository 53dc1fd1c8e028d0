#ifndef ODXIMPORT_MAPPING_TYPEMEMBERS_H
#define ODXIMPORT_MAPPING_TYPEMEMBERS_H

#include "report/Reporter.h"
#include "xml/Element.h"

#include <unordered_map>
#include <vector>

namespace ImportDame {
class VDataObject;
class VDataType;
} // namespace ImportDame

namespace OdxImport {

/// Which complex type has members of which, and of trouble codes, for questions about what contains what.
class TypeMembers {
public:
    void Add(ImportDame::VDataType& owner, ImportDame::VDataObject& member, ImportDame::VDataType& type, Element where);

    /// Calls `take(owner, member, type, where)` for every member that was added.
    template <class Take>
    void ForEach(Take take) const {
        for (ImportDame::VDataType* owner : m_owners)
            for (const Edge& edge : m_members.at(owner))
                take(*owner, *edge.member, *edge.type, edge.where);
    }

    /// Takes the type away from every member that closes a circle, and reports it.
    void CutCircles(const Reporter& reporter);

private:
    struct Edge {
        ImportDame::VDataObject* member;
        ImportDame::VDataType* type;
        Element where;
    };

    std::unordered_map<ImportDame::VDataType*, std::vector<Edge>> m_members;
    std::vector<ImportDame::VDataType*> m_owners; ///< in the order they came
};

} // namespace OdxImport

#endif
