#include "mapping/Services.h"

#include "mapping/CodedConstants.h"
#include "mapping/Conduct.h"
#include "mapping/JobParams.h"
#include "mapping/SpecialData.h"
#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/DiagCommCollection.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/DiagServiceShapeCollection.h>
#include <ImportDame/Variant.h>

#include <algorithm>
#include <array>

namespace OdxImport {

namespace {

constexpr std::array<const char*, 8> keptXmlAttributes{"ADDRESSING",    "TRANSMISSION-MODE", "DIAGNOSTIC-CLASS",
                                                       "IS-CYCLIC",     "IS-MULTIPLE",       "IS-MANDATORY",
                                                       "IS-EXECUTABLE", "IS-FINAL"};

/// Services of ISO 14229-1 with an identifier of two bytes right behind the service id: they read, scale, write or
/// control the datum with this identifier.
constexpr std::array<std::uint32_t, 4> withLongIdentifier{0x22, 0x24, 0x2E, 0x2F};

/// Where a constant of several bytes stands first it is cut into them: the first one is the service id.
std::vector<CodedConstant> WithFirstOneCut(const std::vector<CodedConstant>& constants) {
    std::vector<CodedConstant> result;
    for (const CodedConstant& constant : constants) {
        const std::size_t size = constant.bytes.size();
        if (constant.byte != 0 || constant.bit != 0 || size < 2 || constant.bits != size * 8) {
            result.push_back(constant);
            continue;
        }
        for (std::size_t i = 0; i < size; ++i) {
            CodedConstant& byte = result.emplace_back();
            byte.byte = i;
            byte.bits = 8;
            byte.semantic = i == 0 ? constant.semantic : std::string_view();
            byte.value = static_cast<unsigned char>(constant.bytes[i]);
        }
    }
    return result;
}

std::optional<std::uint32_t> ValueWith(const std::vector<CodedConstant>& constants, std::string_view semantic) {
    const auto found = std::find_if(constants.begin(), constants.end(), [&](const CodedConstant& constant) {
        return constant.semantic == semantic && constant.value;
    });
    return found == constants.end() ? std::nullopt : found->value;
}

/// What the service is asked for: a subfunction or an identifier, whose two bytes may be constants of their own.
std::optional<std::uint32_t> SubValueOf(const std::vector<CodedConstant>& constants,
                                        std::optional<std::uint32_t> serviceId) {
    if (const auto subfunction = ValueWith(constants, "SUBFUNCTION"))
        return subfunction;
    const bool hasLongIdentifier =
        std::find(withLongIdentifier.begin(), withLongIdentifier.end(), serviceId) != withLongIdentifier.end();
    return hasLongIdentifier ? ValueOfTwoBytesAt(constants, 1) : ValueAt(constants, 1);
}

} // namespace

void Services::AddAll(ImportDame::VVariant& variant, Layer& layer) {
    m_workspace.Layers().Effective(layer, Category::DiagComm).ForEach([&](const ObjectTable::Entry& entry) {
        const Element diagComm = entry.value.element;
        const bool isFirst = !diagComm.IsTaken();
        if (!isFirst && !m_workspace.MayCopy(diagComm))
            return false;
        if (diagComm.Is("DIAG-SERVICE"))
            AddService(variant, diagComm, isFirst);
        else if (diagComm.Is("SINGLE-ECU-JOB"))
            AddJob(variant, diagComm);
        return true;
    });
    const bool isAsItsBase = m_workspace.Layers().IsAsItsBase(layer), isBase = &layer == &m_workspace.BaseVariant();
    m_workspace.Layers().Effective(layer, Category::GlobalNegResponse).ForEach([&](const ObjectTable::Entry& entry) {
        const Element response = entry.value.element;
        if (isBase || m_workspace.MayCopy(response))
            AddAttribute(variant.Attributes(), L"GLOBAL-NEG-RESPONSE", Naming::MentionOf(response));
        if (!isAsItsBase)
            m_types.For(response);
        return true;
    });
}

void Services::AddService(ImportDame::VVariant& variant, Element service, bool isFirst) {
    const Request& request = RequestOf(service);
    ImportDame::VDiagService& made = variant.DiagCommCollection().AddNewDiagService(request.serviceId.value_or(0));
    DescribeCommon(made, service);
    made.SetSemantic(Widen(service.Attribute("SEMANTIC")).c_str());
    made.SetFunctClass(FunctionalClassOf(service).c_str());
    if (request.element) {
        m_types.For(request.element);
        AddAttribute(made.Attributes(), L"REQUEST", request.name);
    }
    if (request.subValue) {
        ImportDame::VDiagServiceShape& shape = made.DiagServiceShapeCollection().AddNewDiagServiceShape();
        shape.SetQualifier(request.name.c_str());
        shape.SetSubValue(*request.subValue);
        shape.SetSourceInfo(m_workspace.SourceOf(request.element).c_str());
    }
    AddResponses(made, service, isFirst);
}

void Services::AddJob(ImportDame::VVariant& variant, Element job) {
    ImportDame::VDiagJob& made = variant.DiagCommCollection().AddNewDiagJob();
    DescribeCommon(made, job);
    AddXmlAttribute(made.Attributes(), job, "SEMANTIC");
    AddLibraries(made.Attributes(), job.Child("PROG-CODES"), m_workspace);
    AddLeaves(made.Attributes(), job.Child("PROG-CODES"));
    AddJobParams(made.Attributes(), job, m_naming, m_workspace);
}

void Services::DescribeCommon(ImportDame::VQualified& made, Element diagComm) const {
    m_naming.Describe(made, diagComm);
    for (const char* name : keptXmlAttributes)
        AddXmlAttribute(made.Attributes(), diagComm, name);
    AddConduct(made.Attributes(), diagComm, m_workspace);
    bool isFirst = diagComm.Is("DIAG-SERVICE");
    for (const Element link : Children(diagComm.Take("FUNCT-CLASS-REFS"), "FUNCT-CLASS-REF")) {
        const Element functionalClass = m_workspace.Follow(link, Tags::functClass);
        functionalClass.Taken().Take("SHORT-NAME");
        if (isFirst) // a service has a field for its first one
            isFirst = false;
        else if (functionalClass)
            AddAttribute(made.Attributes(), L"FUNCT-CLASS", Naming::MentionOf(functionalClass));
    }
}

std::wstring Services::FunctionalClassOf(Element service) const {
    const Element functionalClass =
        m_workspace.Look(service.Child("FUNCT-CLASS-REFS").Child("FUNCT-CLASS-REF"), Tags::functClass);
    return functionalClass ? Naming::MentionOf(functionalClass) : std::wstring();
}

void Services::AddResponses(ImportDame::VDiagService& made, Element service, bool isFirst) {
    struct List {
        const char* list;
        const char* link;
        Kinds kinds;
    };

    static constexpr std::array<List, 2> lists{{{"POS-RESPONSE-REFS", "POS-RESPONSE-REF", Tags::posResponse},
                                                {"NEG-RESPONSE-REFS", "NEG-RESPONSE-REF", Tags::negResponse}}};
    for (const List& names : lists) {
        const std::string_view name(names.link);
        for (const Element link : Children(service.Take(names.list), names.link)) {
            const Element response = m_workspace.Follow(link, names.kinds);
            if (!response)
                continue;
            ImportDame::VDataType* type = m_types.For(response);
            AddAttribute(made.Attributes(), Widen(name.substr(0, name.size() - 4)).c_str(),
                         Naming::MentionOf(response));
            if (isFirst && type != nullptr && names.link[0] == 'P')
                m_responses.push_back({service, response, type});
        }
    }
}

const Services::Request& Services::RequestOf(Element service) {
    const auto [known, isNew] = m_requests.try_emplace(service.Identity());
    if (isNew)
        known->second = ReadRequest(service);
    return known->second;
}

Services::Request Services::ReadRequest(Element service) {
    Request request;
    const Element target = m_workspace.Follow(service.Child("REQUEST-REF"), Tags::request);
    if (!target) {
        m_workspace.ReportAt(service, Rule::ServiceWithoutRequest, "the service has no request");
        return request;
    }
    request.element = target;
    request.name = Naming::MentionOf(target);
    const std::vector<CodedConstant> constants = WithFirstOneCut(m_types.ConstantsOf(target));
    request.serviceId = ValueWith(constants, "SERVICE-ID");
    if (!request.serviceId)
        request.serviceId = ValueAt(constants, 0);
    request.subValue = SubValueOf(constants, request.serviceId);
    if (!request.serviceId)
        m_workspace.ReportAt(target, Rule::ServiceWithoutId, "the request has no coded constant at byte position 0");
    return request;
}

} // namespace OdxImport
