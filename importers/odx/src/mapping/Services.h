#ifndef ODXIMPORT_MAPPING_SERVICES_H
#define ODXIMPORT_MAPPING_SERVICES_H

#include "mapping/DataTypes.h"
#include "mapping/Naming.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace ImportDame {
class VDiagService;
class VQualified;
class VVariant;
} // namespace ImportDame

namespace OdxImport {

/// A positive response of a service of the base variant.
struct ServiceResponse {
    Element service;
    Element response;
    ImportDame::VDataType* type;
};

/// DIAG-SERVICE → service with its shape, SINGLE-ECU-JOB → job; requests and responses → packets.
class Services {
public:
    Services(Workspace& workspace, const Naming& naming, DataTypes& types)
        : m_workspace(workspace), m_naming(naming), m_types(types) {}

    /// All services and jobs that the layer has or inherits.
    void AddAll(ImportDame::VVariant& variant, Layer& layer);

    const std::vector<ServiceResponse>& Responses() const { return m_responses; }

    /// SHORT-NAME of the service's first functional class; empty without one.
    std::wstring FunctionalClassOf(Element service) const;

private:
    struct Request {
        Element element;
        std::wstring name;
        std::optional<std::uint32_t> serviceId;
        std::optional<std::uint32_t> subValue;
    };

    void AddService(ImportDame::VVariant& variant, Element service, bool isFirst);
    void AddJob(ImportDame::VVariant& variant, Element job);
    void DescribeCommon(ImportDame::VQualified& made, Element diagComm) const;
    void AddResponses(ImportDame::VDiagService& made, Element service, bool isFirst);
    const Request& RequestOf(Element service);
    Request ReadRequest(Element service);

    Workspace& m_workspace;
    const Naming& m_naming;
    DataTypes& m_types;
    std::unordered_map<const void*, Request> m_requests; ///< by service
    std::vector<ServiceResponse> m_responses;
};

} // namespace OdxImport

#endif
