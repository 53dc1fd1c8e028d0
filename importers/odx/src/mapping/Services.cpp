#include "mapping/Services.h"

#include "mapping/CodedTypes.h"
#include "mapping/Conduct.h"
#include "mapping/JobParams.h"
#include "mapping/Numbers.h"
#include "mapping/SpecialData.h"
#include "report/Silence.h"
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

struct Constant {
    std::uint32_t byte;
    std::uint32_t bit;
    std::uint64_t bits; ///< how many; 0 where that is not known
    std::string_view semantic;
    std::uint32_t value;
};

/// The coded constants, in the order they stand.
std::vector<Constant> ConstantsOf(Element request, const Workspace& workspace) {
    // The parameters are read again, and reported, when the packet is filled.
    const Numbers numbers(Silence());
    std::vector<Constant> constants;
    std::optional<std::uint32_t> previousByte;
    for (const Element param : Children(request.Child("PARAMS"), "PARAM")) {
        const auto byte = numbers.Whole(param.Child("BYTE-POSITION"));
        const std::uint32_t at = byte.value_or(previousByte ? *previousByte + 1 : 0);
        previousByte = at;
        if (param.Attribute("type") != "CODED-CONST")
            continue;
        if (const auto value = numbers.Whole(param.Child("CODED-VALUE")))
            constants.push_back({at, numbers.Whole(param.Child("BIT-POSITION"), 7).value_or(0),
                                 LookAtCodedType(param, workspace).FixedBits().value_or(0), param.Attribute("SEMANTIC"),
                                 *value});
    }
    return constants;
}

std::optional<std::uint32_t> ValueWith(const std::vector<Constant>& constants, std::string_view semantic) {
    const auto found = std::find_if(constants.begin(), constants.end(),
                                    [&](const Constant& constant) { return constant.semantic == semantic; });
    return found == constants.end() ? std::nullopt : std::optional(found->value);
}

std::optional<std::uint32_t> ValueAt(const std::vector<Constant>& constants, std::uint32_t byte) {
    std::optional<std::uint32_t> value; // constants may share the byte: a flag and what it is about
    for (const Constant& constant : constants)
        if (constant.byte == byte)
            value = value.value_or(0) | constant.value << constant.bit;
    return value;
}

/// What begins in the byte is constant, and fills it to the last bit.
bool IsFilled(const std::vector<Constant>& constants, std::uint32_t byte) {
    std::uint64_t filled = 0;
    for (const Constant& constant : constants)
        filled += constant.byte == byte ? constant.bits : 0;
    return filled == 8 && ValueAt(constants, byte) <= 0xFF;
}

/// What the service is asked for: a subfunction or an identifier, whose two bytes may be constants of their own.
std::optional<std::uint32_t> SubValueOf(const std::vector<Constant>& constants,
                                        std::optional<std::uint32_t> serviceId) {
    if (const auto subfunction = ValueWith(constants, "SUBFUNCTION"))
        return subfunction;
    const auto first = ValueAt(constants, 1);
    const bool hasLongIdentifier =
        std::find(withLongIdentifier.begin(), withLongIdentifier.end(), serviceId) != withLongIdentifier.end();
    if (hasLongIdentifier && IsFilled(constants, 1) && IsFilled(constants, 2))
        return *first << 8 | *ValueAt(constants, 2);
    return first;
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

Services::Request Services::ReadRequest(Element service) const {
    Request request;
    const Element target = m_workspace.Follow(service.Child("REQUEST-REF"), Tags::request);
    if (!target) {
        m_workspace.ReportAt(service, Rule::ServiceWithoutRequest, "the service has no request");
        return request;
    }
    request.element = target;
    request.name = Naming::MentionOf(target);
    const std::vector<Constant> constants = ConstantsOf(target, m_workspace);
    request.serviceId = ValueWith(constants, "SERVICE-ID");
    if (!request.serviceId)
        request.serviceId = ValueAt(constants, 0);
    request.subValue = SubValueOf(constants, request.serviceId);
    if (!request.serviceId)
        m_workspace.ReportAt(target, Rule::ServiceWithoutId, "the request has no coded constant at byte position 0");
    return request;
}

} // namespace OdxImport
