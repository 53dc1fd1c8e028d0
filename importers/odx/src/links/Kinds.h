#ifndef ODXIMPORT_LINKS_KINDS_H
#define ODXIMPORT_LINKS_KINDS_H

#include "layers/Layer.h"

#include <array>
#include <span>
#include <string_view>

namespace OdxImport {

/// The tags of the elements that a link may lead to.
using Kinds = std::span<const std::string_view>;

/// What a link by ID or by name is to lead to.
struct Wanted {
    Category category; ///< where a name is looked up
    Kinds kinds;
};

namespace Tags {

inline constexpr std::array<std::string_view, 10> dataObjects{
    "DATA-OBJECT-PROP",        "DTC-DOP",          "STRUCTURE", "MUX",          "STATIC-FIELD", "DYNAMIC-LENGTH-FIELD",
    "DYNAMIC-ENDMARKER-FIELD", "END-OF-PDU-FIELD", "ENV-DATA",  "ENV-DATA-DESC"};
inline constexpr std::array<std::string_view, 1> table{"TABLE"};
inline constexpr std::array<std::string_view, 1> tableRow{"TABLE-ROW"};
inline constexpr std::array<std::string_view, 1> param{"PARAM"};
inline constexpr std::array<std::string_view, 1> envData{"ENV-DATA"};
inline constexpr std::array<std::string_view, 1> envDataDesc{"ENV-DATA-DESC"};
inline constexpr std::array<std::string_view, 1> dtc{"DTC"};
inline constexpr std::array<std::string_view, 1> dtcDop{"DTC-DOP"};
inline constexpr std::array<std::string_view, 1> unit{"UNIT"};
inline constexpr std::array<std::string_view, 1> physicalDimension{"PHYSICAL-DIMENSION"};
inline constexpr std::array<std::string_view, 1> request{"REQUEST"};
inline constexpr std::array<std::string_view, 1> posResponse{"POS-RESPONSE"};
inline constexpr std::array<std::string_view, 2> negResponse{"NEG-RESPONSE", "GLOBAL-NEG-RESPONSE"};
inline constexpr std::array<std::string_view, 1> functClass{"FUNCT-CLASS"};
inline constexpr std::array<std::string_view, 1> library{"LIBRARY"};
inline constexpr std::array<std::string_view, 1> caption{"SDG-CAPTION"};
inline constexpr std::array<std::string_view, 3> diagComm{"DIAG-SERVICE", "SINGLE-ECU-JOB", "MULTIPLE-ECU-JOB"};
inline constexpr std::array<std::string_view, 1> state{"STATE"};
inline constexpr std::array<std::string_view, 1> stateTransition{"STATE-TRANSITION"};
inline constexpr std::array<std::string_view, 1> audience{"ADDITIONAL-AUDIENCE"};

} // namespace Tags

inline constexpr Wanted anyDataObject{Category::DataObject, Tags::dataObjects};
/// One value: DATA-OBJECT-PROP, DTC-DOP.
inline constexpr Wanted simpleDataObject{Category::DataObject, Kinds(Tags::dataObjects).first(2)};
/// What may be repeated or be the content of a case.
inline constexpr Wanted complexDataObject{Category::DataObject, Kinds(Tags::dataObjects).subspan(2)};
inline constexpr Wanted anyTable{Category::Table, Tags::table};
inline constexpr Wanted anyEnvDataDesc{Category::DataObject, Tags::envDataDesc};

} // namespace OdxImport

#endif
