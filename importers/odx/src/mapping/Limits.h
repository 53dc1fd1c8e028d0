#ifndef ODXIMPORT_MAPPING_LIMITS_H
#define ODXIMPORT_MAPPING_LIMITS_H

#include "mapping/CodedTypes.h"

#include <ImportDame/Value.h>

#include <string>
#include <string_view>

namespace ImportDame {
class VDataType;
class VRange;
} // namespace ImportDame

namespace OdxImport {

ImportDame::VValue ValueOf(std::string_view text, bool isPhysical = false);

/// LOWER-LIMIT and UPPER-LIMIT of the element as a range of coded or physical values. Whole numbers turn an open end
/// into the next closed one; of other numbers an open end is kept as it is written. An infinite end is absent.
/// `isLonely` says whether a closed lower limit alone means one value. Whether the limits could be read: a range that
/// lacks one of its ends says something else.
bool ReadRange(ImportDame::VRange& range, Element element, ValueKind kind, bool isLonely, const Workspace& workspace,
               bool isPhysical = false);

/// INTERNAL-CONSTR and PHYS-CONSTR become ranges of the data type: what lies outside the limits is not valid, and each
/// SCALE-CONSTR has its own validity and text. Values of PHYS-CONSTR are marked physical.
void ReadConstraints(ImportDame::VDataType& type, Element dataObject, const CodedType& coded,
                     const Workspace& workspace);

} // namespace OdxImport

#endif
