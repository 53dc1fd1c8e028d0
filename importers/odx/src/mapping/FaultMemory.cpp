#include "mapping/FaultMemory.h"

#include <ImportDame/DataObject.h>
#include <ImportDame/ServiceMapping.h>
#include <ImportDame/TroubleCodeCollection.h>

#include <unordered_set>

namespace OdxImport {

using ImportDame::VDataType;

namespace {

class Finder {
public:
    Finder(const Services& services, const DataTypes& types) {
        for (const ServiceResponse& response : services.Responses())
            m_responses.emplace(response.type, &response);
        types.Members().ForEach([this](VDataType& owner, ImportDame::VDataObject& member, VDataType& type) {
            m_owners[&type].push_back({&owner, &member});
        });
    }

    struct Found {
        const ServiceResponse* response = nullptr;
        ImportDame::VDataObject* member = nullptr; ///< the one that has the type itself
    };

    Found ResponseWith(VDataType& type) {
        struct At {
            VDataType* type;
            ImportDame::VDataObject* member;
        };

        std::vector<At> open{{&type, nullptr}};
        std::unordered_set<VDataType*> seen;
        for (std::size_t next = 0; next < open.size(); ++next) {
            const At at = open[next];
            if (const auto response = m_responses.find(at.type); response != m_responses.end())
                return {response->second, at.member};
            const auto owners = m_owners.find(at.type);
            if (owners == m_owners.end())
                continue;
            for (const Owner& owner : owners->second)
                if (!m_dead.contains(owner.type) && seen.insert(owner.type).second)
                    open.push_back({owner.type, at.member != nullptr ? at.member : owner.member});
        }
        m_dead.insert(seen.begin(), seen.end()); // no response holds any of these
        return {};
    }

private:
    struct Owner {
        VDataType* type;
        ImportDame::VDataObject* member;
    };

    std::unordered_map<VDataType*, const ServiceResponse*> m_responses;
    std::unordered_map<VDataType*, std::vector<Owner>> m_owners;
    std::unordered_set<VDataType*> m_dead;
};

} // namespace

void MapFaultMemories(const std::vector<FaultMemory>& memories, const Services& services, const DataTypes& types,
                      const Workspace& workspace) {
    if (memories.empty())
        return;
    Finder finder(services, types);
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
    }
}

} // namespace OdxImport
