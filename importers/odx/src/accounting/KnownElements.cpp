#include "accounting/KnownElements.h"

#include <array>
#include <span>
#include <unordered_map>

namespace OdxImport {

namespace {

struct Group {
    Standing standing;
    const char* reason;
    std::span<const std::string_view> tags;
};

constexpr auto frames = std::to_array<std::string_view>({"ODX",
                                                         "DIAG-LAYER-CONTAINER",
                                                         "PROTOCOLS",
                                                         "FUNCTIONAL-GROUPS",
                                                         "ECU-SHARED-DATAS",
                                                         "BASE-VARIANTS",
                                                         "ECU-VARIANTS",
                                                         "DIAG-COMMS",
                                                         "DIAG-DATA-DICTIONARY-SPEC",
                                                         "DATA-OBJECT-PROPS",
                                                         "DTC-DOPS",
                                                         "STRUCTURES",
                                                         "STATIC-FIELDS",
                                                         "DYNAMIC-LENGTH-FIELDS",
                                                         "DYNAMIC-ENDMARKER-FIELDS",
                                                         "END-OF-PDU-FIELDS",
                                                         "MUXS",
                                                         "ENV-DATAS",
                                                         "ENV-DATA-DESCS",
                                                         "TABLES",
                                                         "UNIT-SPEC",
                                                         "UNITS",
                                                         "REQUESTS",
                                                         "POS-RESPONSES",
                                                         "NEG-RESPONSES",
                                                         "GLOBAL-NEG-RESPONSES",
                                                         "FUNCT-CLASSS",
                                                         "LIBRARYS",
                                                         "PARAMS",
                                                         "DTCS",
                                                         "DTC-VALUES",
                                                         "CASES",
                                                         "COMPU-INTERNAL-TO-PHYS",
                                                         "COMPU-SCALES",
                                                         "COMPU-NUMERATOR",
                                                         "COMPU-DENOMINATOR",
                                                         "PARENT-REFS",
                                                         "IMPORT-REFS",
                                                         "FUNCT-CLASS-REFS",
                                                         "POS-RESPONSE-REFS",
                                                         "NEG-RESPONSE-REFS",
                                                         "LINKED-DTC-DOPS",
                                                         "NOT-INHERITED-DTC-SNREFS",
                                                         "SCALE-CONSTRS",
                                                         "PROG-CODES",
                                                         "INPUT-PARAMS",
                                                         "OUTPUT-PARAMS",
                                                         "NEG-OUTPUT-PARAMS",
                                                         "LIBRARY-REFS",
                                                         "ENV-DATA-REFS",
                                                         "CODED-VALUES",
                                                         "PHYSICAL-DIMENSIONS",
                                                         "UNIT-GROUPS"});

constexpr auto communication = std::to_array<std::string_view>(
    {"COMPARAM-REFS", "COMPARAM-SPEC-REF", "PROT-STACK-SNREF", "COMPARAM-SPEC", "COMPARAM-SUBSET", "PROTOCOL-SNREFS",
     "PROTOCOL-SNREF", "COMPARAMS", "COMPLEX-COMPARAMS", "PROT-STACKS", "COMPARAM-REF", "COMPARAM", "COMPLEX-COMPARAM",
     "PROT-STACK", "COMPARAM-SUBSET-REFS", "COMPARAM-SPEC-REFS", "COMM-RELATIONS"});

constexpr auto conduct = std::to_array<std::string_view>(
    {"STATE-CHARTS", "STATE-CHART", "PRE-CONDITION-STATE-REFS", "STATE-TRANSITION-REFS", "AUDIENCE",
     "ADDITIONAL-AUDIENCES", "ADDITIONAL-AUDIENCE", "POS-RESPONSE-SUPPRESSABLE", "POS-RESPONSE-SUPPRESSIBLE",
     "RELATED-DIAG-COMM-REFS", "ACCESS-LEVELS", "AUTMETHODS", "SECURITYS"});

constexpr auto identification = std::to_array<std::string_view>(
    {"BASE-VARIANT-PATTERN", "ECU-VARIANT-PATTERNS", "VEHICLE-INFO-SPEC", "DIAG-VARIABLES", "DIAG-VARIABLE",
     "VARIABLE-GROUPS", "DYN-DEFINED-SPEC", "DYN-ID-DEF-MODE-INFOS", "SUB-COMPONENTS", "SUB-COMPONENT",
     "TABLE-DIAG-COMM-CONNECTORS", "TABLE-ROW-REF", "TABLE-ROW-SNREF", "BASE-COMPARAM-REF", "DIAG-OBJECT-CONNECTOR",
     "DIAG-COMM-SNREF"});

constexpr auto otherDocuments = std::to_array<std::string_view>(
    {"FLASH", "ECU-CONFIG", "FUNCTION-DICTIONARY", "MULTIPLE-ECU-JOB-SPEC", "MULTIPLE-ECU-JOBS", "CATALOG"});

constexpr auto details = std::to_array<std::string_view>({"COMPANY-DATAS",
                                                          "PHYSICAL-DIMENSION",
                                                          "UNIT-GROUP",
                                                          "COMPU-DEFAULT-VALUE",
                                                          "COMPU-INVERSE-VALUE",
                                                          "SHORT-NAME",
                                                          "LONG-NAME",
                                                          "DESC",
                                                          "ADMIN-DATA",
                                                          "SDGS",
                                                          "SHORT-LABEL",
                                                          "V",
                                                          "VT",
                                                          "CODE-FILE",
                                                          "SYNTAX",
                                                          "REVISION",
                                                          "ENTRYPOINT",
                                                          "ENCRYPTION",
                                                          "COMPU-PHYS-TO-INTERNAL",
                                                          "COMPU-SCALE",
                                                          "LOWER-LIMIT",
                                                          "UPPER-LIMIT",
                                                          "COMPU-RATIONAL-COEFFS",
                                                          "COMPU-CONST"});

constexpr auto objects = std::to_array<std::string_view>({"PROTOCOL",
                                                          "FUNCTIONAL-GROUP",
                                                          "ECU-SHARED-DATA",
                                                          "BASE-VARIANT",
                                                          "ECU-VARIANT",
                                                          "DIAG-SERVICE",
                                                          "SINGLE-ECU-JOB",
                                                          "DIAG-COMM-REF",
                                                          "DATA-OBJECT-PROP",
                                                          "DTC-DOP",
                                                          "DTC",
                                                          "DTC-REF",
                                                          "LINKED-DTC-DOP",
                                                          "STRUCTURE",
                                                          "STATIC-FIELD",
                                                          "DYNAMIC-LENGTH-FIELD",
                                                          "DYNAMIC-ENDMARKER-FIELD",
                                                          "END-OF-PDU-FIELD",
                                                          "MUX",
                                                          "ENV-DATA",
                                                          "ENV-DATA-DESC",
                                                          "TABLE",
                                                          "TABLE-ROW",
                                                          "UNIT",
                                                          "REQUEST",
                                                          "POS-RESPONSE",
                                                          "NEG-RESPONSE",
                                                          "GLOBAL-NEG-RESPONSE",
                                                          "FUNCT-CLASS",
                                                          "LIBRARY",
                                                          "FUNCT-CLASS-REF",
                                                          "INPUT-PARAM",
                                                          "OUTPUT-PARAM",
                                                          "NEG-OUTPUT-PARAM",
                                                          "PARENT-REF",
                                                          "IMPORT-REF",
                                                          "DTC-VALUE",
                                                          "ALL-VALUE"});

constexpr auto groups = std::to_array<Group>(
    {{Standing::Frame, "", frames},
     {Standing::NoPlace, "communication parameters have no place in the model", communication},
     {Standing::NoPlace, "of states and audiences only the names are kept, where they are used", conduct},
     {Standing::NoPlace, "identification, variables and connectors have no place in the model", identification},
     {Standing::NoPlace, "documents of this kind have no place in the model", otherDocuments},
     {Standing::NoPlace, "a detail that has no place in the model", details},
     {Standing::NotUsed, "nothing that is imported has or uses it", objects}});

using Table = std::unordered_map<std::string_view, KnownElement>;

Table MakeTable() {
    Table table;
    for (const Group& group : groups)
        for (const std::string_view tag : group.tags)
            table.emplace(tag, KnownElement{group.standing, group.reason});
    return table;
}

} // namespace

KnownElement LookUpElement(std::string_view tag) {
    static const Table table = MakeTable();
    const auto found = table.find(tag);
    return found == table.end() ? KnownElement() : found->second;
}

} // namespace OdxImport
