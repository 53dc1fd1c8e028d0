#include "accounting/Places.h"

#include <array>
#include <unordered_map>

namespace OdxImport {

namespace {

struct Inside {
    std::string_view tag;
    std::string_view parent;
};

/// Objects in their lists, and what else is looked for in one element only.
constexpr auto objects = std::to_array<Inside>({{"PROTOCOL", "PROTOCOLS"},
                                                {"FUNCTIONAL-GROUP", "FUNCTIONAL-GROUPS"},
                                                {"ECU-SHARED-DATA", "ECU-SHARED-DATAS"},
                                                {"BASE-VARIANT", "BASE-VARIANTS"},
                                                {"ECU-VARIANT", "ECU-VARIANTS"},
                                                {"PROTOCOLS", "DIAG-LAYER-CONTAINER"},
                                                {"FUNCTIONAL-GROUPS", "DIAG-LAYER-CONTAINER"},
                                                {"ECU-SHARED-DATAS", "DIAG-LAYER-CONTAINER"},
                                                {"BASE-VARIANTS", "DIAG-LAYER-CONTAINER"},
                                                {"ECU-VARIANTS", "DIAG-LAYER-CONTAINER"},
                                                {"DIAG-SERVICE", "DIAG-COMMS"},
                                                {"SINGLE-ECU-JOB", "DIAG-COMMS"},
                                                {"DIAG-COMM-REF", "DIAG-COMMS"},
                                                {"DATA-OBJECT-PROP", "DATA-OBJECT-PROPS"},
                                                {"DTC-DOP", "DTC-DOPS"},
                                                {"STRUCTURE", "STRUCTURES"},
                                                {"STATIC-FIELD", "STATIC-FIELDS"},
                                                {"DYNAMIC-LENGTH-FIELD", "DYNAMIC-LENGTH-FIELDS"},
                                                {"DYNAMIC-ENDMARKER-FIELD", "DYNAMIC-ENDMARKER-FIELDS"},
                                                {"END-OF-PDU-FIELD", "END-OF-PDU-FIELDS"},
                                                {"MUX", "MUXS"},
                                                {"ENV-DATA", "ENV-DATAS"},
                                                {"ENV-DATA-DESC", "ENV-DATA-DESCS"},
                                                {"TABLE", "TABLES"},
                                                {"TABLE-ROW", "TABLE"},
                                                {"UNIT", "UNITS"},
                                                {"REQUEST", "REQUESTS"},
                                                {"POS-RESPONSE", "POS-RESPONSES"},
                                                {"NEG-RESPONSE", "NEG-RESPONSES"},
                                                {"GLOBAL-NEG-RESPONSE", "GLOBAL-NEG-RESPONSES"},
                                                {"PARENT-REF", "PARENT-REFS"},
                                                {"IMPORT-REF", "IMPORT-REFS"}});

/// Of which a layer has one each.
constexpr auto inLayers = std::to_array<std::string_view>(
    {"DIAG-COMMS", "DIAG-DATA-DICTIONARY-SPEC", "GLOBAL-NEG-RESPONSES", "PARENT-REFS", "IMPORT-REFS"});

/// Of which a dictionary has one each.
constexpr auto inDictionaries = std::to_array<std::string_view>(
    {"DATA-OBJECT-PROPS", "DTC-DOPS", "STRUCTURES", "STATIC-FIELDS", "DYNAMIC-LENGTH-FIELDS",
     "DYNAMIC-ENDMARKER-FIELDS", "END-OF-PDU-FIELDS", "MUXS", "ENV-DATA-DESCS", "TABLES"});

using Table = std::unordered_map<std::string_view, Place>;

Table MakeTable() {
    Table table{{"DIAG-LAYER-CONTAINER", {"ODX", true}}};
    for (const Inside& inside : objects)
        table.emplace(inside.tag, Place{inside.parent, false});
    for (const std::string_view tag : inLayers)
        table.emplace(tag, Place{"", true});
    for (const std::string_view tag : inDictionaries)
        table.emplace(tag, Place{"DIAG-DATA-DICTIONARY-SPEC", true});
    return table;
}

} // namespace

const Place* PlaceOf(std::string_view tag) {
    static const Table table = MakeTable();
    const auto found = table.find(tag);
    return found == table.end() ? nullptr : &found->second;
}

} // namespace OdxImport
