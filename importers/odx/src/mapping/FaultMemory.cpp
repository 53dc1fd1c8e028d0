#include "mapping/FaultMemory.h"

#include <ImportDame/DataObject.h>
#include <ImportDame/ServiceMapping.h>
#include <ImportDame/TroubleCodeCollection.h>

#include <limits>
#include <optional>
#include <unordered_map>

namespace OdxImport {

using ImportDame::VDataType;

namespace {

constexpr std::uint64_t mostBits = std::numeric_limits<int>::max();

/// What each type is found in, from the first response down: the first one that has it counts.
class Finder {
public:
    Finder(const Services& services, DataTypes& types) : m_types(types) {
        types.Members().ForEach(
            [this](VDataType& owner, ImportDame::VDataObject& member, VDataType& type, Element where) {
                if (member.GetDataType() == &type) // no circle was cut here
                    m_members[&owner].push_back({&member, &type, where});
            });
        for (const ServiceResponse& response : services.Responses())
            FindAllIn(response);
    }

    struct Found {
        const ServiceResponse* response = nullptr;
        VDataType* owner = nullptr;                ///< none of the response itself
        ImportDame::VDataObject* member = nullptr; ///< the one that has the type itself
        Element where;
    };

    Found ResponseWith(VDataType& type) const {
        const auto found = m_found.find(&type);
        return found == m_found.end() ? Found() : found->second;
    }

    /// In bits from the start of the response; nothing behind something of unknown length.
    std::optional<std::uint64_t> PositionOf(VDataType& type) const {
        std::uint64_t position = 0;
        for (Found at = ResponseWith(type); at.owner != nullptr; at = ResponseWith(*at.owner)) {
            const auto start = m_types.StartOf(at.where);
            if (!start)
                return std::nullopt;
            position += *start;
        }
        return position;
    }

private:
    struct Member {
        ImportDame::VDataObject* member;
        VDataType* type;
        Element where;
    };

    void FindAllIn(const ServiceResponse& response) {
        if (!m_found.try_emplace(response.type, Found{&response, nullptr, nullptr, {}}).second)
            return;
        std::vector<VDataType*> open{response.type};
        for (std::size_t next = 0; next < open.size(); ++next) {
            VDataType* owner = open[next];
            const auto members = m_members.find(owner);
            if (members == m_members.end())
                continue;
            for (const Member& each : members->second)
                if (m_found.try_emplace(each.type, Found{&response, owner, each.member, each.where}).second)
                    open.push_back(each.type);
        }
    }

    DataTypes& m_types;
    std::unordered_map<VDataType*, std::vector<Member>> m_members;
    std::unordered_map<VDataType*, Found> m_found;
};

} // namespace

void MapFaultMemories(const std::vector<FaultMemory>& memories, const Services& services, DataTypes& types,
                      const Workspace& workspace) {
    if (memories.empty())
        return;
    const Finder finder(services, types);
    for (const FaultMemory& memory : memories) {
        const Finder::Found found = finder.ResponseWith(*memory.type);
        if (found.response == nullptr)
            continue;
        ImportDame::VServiceMapping& mapping = memory.codes->ServiceMapping();
        const Layer* layer = workspace.Layers().Around(found.response->service);
        const bool isOfVariant = layer != nullptr && layer->kind == LayerKind::EcuVariant;
        const Layer& variant = isOfVariant ? *layer : workspace.BaseVariant();
        mapping.SetVariant(Mention(variant.shortName).c_str());
        mapping.SetClass(services.FunctionalClassOf(found.response->service).c_str());
        mapping.SetService(Naming::MentionOf(found.response->service).c_str());
        mapping.SetPrimitive(Naming::MentionOf(found.response->response).c_str());
        if (found.member != nullptr)
            mapping.SetInstance(found.member->GetQualifier());
        if (const auto position = finder.PositionOf(*memory.type); position && *position <= mostBits)
            mapping.SetBitPosition(static_cast<int>(*position));
    }
}

} // namespace OdxImport
