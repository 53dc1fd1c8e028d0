#ifndef ODXIMPORT_MAPPING_CONVERSIONS_H
#define ODXIMPORT_MAPPING_CONVERSIONS_H

#include "mapping/CodedTypes.h"

namespace ImportDame {
class VFormulaDataType;
class VFunctionCollection;
class VLinearConversion;
class VLinearDataType;
class VPiecewiseLinearDataType;
class VProcedureDataType;
class VTextTableDataType;
class VValueTableDataType;
} // namespace ImportDame

namespace OdxImport {

/// Each reads what a COMPU-METHOD of its category holds into the conversion parts of the data type. What is missing or
/// impossible is reported and left at its default.
void ReadConversion(ImportDame::VLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace);
void ReadConversion(ImportDame::VPiecewiseLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace);
void ReadConversion(ImportDame::VTextTableDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace);
void ReadConversion(ImportDame::VValueTableDataType& type, Element method, const Workspace& workspace);
void ReadConversion(ImportDame::VFormulaDataType& type, Element method, const Workspace& workspace);
void ReadConversion(ImportDame::VProcedureDataType& type, Element method, const Workspace& workspace);

} // namespace OdxImport

#endif
