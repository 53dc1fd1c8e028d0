#ifndef ODXIMPORT_MAPPING_SCALES_H
#define ODXIMPORT_MAPPING_SCALES_H

#include "mapping/Workspace.h"

#include <vector>

namespace ImportDame {
class VConversion;
}

namespace OdxImport {

/// The COMPU-SCALEs of one direction of a COMPU-METHOD, settled as imported; none is reported when `isNeeded`.
std::vector<Element> TakeScales(Element method, const char* direction, bool isNeeded, const Workspace& workspace);

constexpr const char* unreadableLimits = "the limits cannot be read";
constexpr const char* unreadableConversion = "the conversion of the scale cannot be read";

/// Drops the scale and everything below it. `reason` is a literal.
void PassOver(Element scale, const char* reason);

/// COMPU-INVERSE-VALUE of the scale.
void ReadInverseValue(ImportDame::VConversion& conversion, Element scale);

/// V or VT.
Element TakeValue(Element holder);

} // namespace OdxImport

#endif
