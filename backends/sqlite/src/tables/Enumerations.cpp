#include "tables/Enumerations.h"

#include <ImportDame/BaseDataObject.h>
#include <ImportDame/DataType.h>
#include <ImportDame/FieldProperties.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/ItemMapping.h>
#include <ImportDame/PhysicalDisplayProperties.h>
#include <ImportDame/Properties.h>
#include <ImportDame/ServiceMapping.h>
#include <ImportDame/TroubleCodeCollection.h>

#include <cstdint>

namespace SqliteBackend {

const char* const Enumerations::schema = R"(
CREATE TABLE enumeration(
    enumeration TEXT NOT NULL,
    number      INTEGER NOT NULL,
    name        TEXT NOT NULL,
    PRIMARY KEY(enumeration, number)
) WITHOUT ROWID;
)";

namespace {

using namespace ImportDame;

struct Name {
    const char* enumeration;
    std::int64_t number;
    const char* name;
};

constexpr Name names[] = {
    {"byte order", VProperties::lowHigh, "low byte first"},
    {"byte order", VProperties::highLow, "high byte first"},
    {"display format", VPhysicalDisplayProperties::decimal, "decimal"},
    {"display format", VPhysicalDisplayProperties::hexadecimal, "hexadecimal"},
    {"display format", VPhysicalDisplayProperties::binary, "binary"},
    {"display format", VPhysicalDisplayProperties::octal, "octal"},
    {"encoding", VProperties::unsignedInteger, "unsigned integer"},
    {"encoding", VProperties::twosComplement, "two's complement"},
    {"encoding", VProperties::floatingPoint, "floating point"},
    {"encoding", VProperties::packedBcd, "packed BCD"},
    {"encoding", VProperties::unpackedBcd, "unpacked BCD"},
    {"encoding", VProperties::asciiText, "ASCII text"},
    {"encoding", VProperties::unicodeText, "Unicode text"},
    {"encoding", VProperties::byteField, "byte field"},
    {"encoding", VProperties::onesComplement, "one's complement"},
    {"encoding", VProperties::signMagnitude, "sign and magnitude"},
    {"fault memory type", VServiceMapping::primaryMemory, "primary memory"},
    {"fault memory type", VServiceMapping::mirrorMemory, "mirror memory"},
    {"fault memory type", VServiceMapping::permanentMemory, "permanent memory"},
    {"fault memory type", VServiceMapping::userDefinedMemory, "user-defined memory"},
    {"format identifier", VTroubleCodeCollection::saeJ2012DaFormat00, "SAE J2012-DA format 00"},
    {"format identifier", VTroubleCodeCollection::iso14229Format, "ISO 14229-1"},
    {"format identifier", VTroubleCodeCollection::saeJ1939Format, "SAE J1939-73"},
    {"format identifier", VTroubleCodeCollection::iso11992Format, "ISO 11992-4"},
    {"format identifier", VTroubleCodeCollection::saeJ2012DaFormat04, "SAE J2012-DA format 04"},
    {"invalidity", VInvalidRange::valid, "valid"},
    {"invalidity", VInvalidRange::notDefined, "not defined"},
    {"invalidity", VInvalidRange::notAvailable, "not available"},
    {"invalidity", VInvalidRange::notValid, "not valid"},
    {"mapping type", VItemMapping::unspecified, "unspecified"},
    {"mapping type", VItemMapping::statusMapping, "status"},
    {"mapping type", VItemMapping::snapshotDataMapping, "snapshot data"},
    {"mapping type", VItemMapping::extendedDataMapping, "extended data"},
    {"mapping type", VItemMapping::environmentDataMapping, "environment data"},
    {"quantity", VProperties::atomic, "one value"},
    {"quantity", VProperties::field, "field"},
    {"reason for import", VDataType::noReason, "no reason"},
    {"reason for import", VDataType::selectedForImport, "selected for import"},
    {"reason for import", VDataType::usedByDataType, "used by a data type"},
    {"reason for import", VDataType::usedByDiagComm, "used by a diagnostic communication"},
    {"reason for import", VDataType::usedByTroubleCode, "used by a trouble code"},
    {"semantics", VBaseDataObject::noSemantics, "none"},
    {"semantics", VBaseDataObject::data, "data"},
    {"semantics", VBaseDataObject::dataId, "data identifier"},
    {"semantics", VBaseDataObject::serviceId, "service identifier"},
    {"semantics", VBaseDataObject::serviceIdOfRequest, "service identifier of the request"},
    {"semantics", VBaseDataObject::subfunction, "subfunction"},
    {"semantics", VBaseDataObject::id, "identifier"},
    {"semantics", VBaseDataObject::localId, "local identifier"},
    {"semantics", VBaseDataObject::responseCode, "response code"},
    {"semantics", VBaseDataObject::status, "status"},
    {"semantics", VBaseDataObject::dtc, "trouble code"},
    {"semantics", VBaseDataObject::length, "length"},
    {"semantics", VBaseDataObject::reserved, "reserved"},
    {"semantics", VBaseDataObject::otherSemantics, "other"},
    {"size info", VFieldProperties::standardLength, "standard length"},
    {"size info", VFieldProperties::leadingLength, "leading length"},
    {"size info", VFieldProperties::paramLength, "length of a parameter"},
    {"size info", VFieldProperties::minMaxLengthEndOfPdu, "up to the end of the PDU"},
    {"size info", VFieldProperties::minMaxLengthZero, "up to a zero"},
    {"size info", VFieldProperties::minMaxLengthHexFF, "up to 0xFF"},
    {"source layer", VDataType::unknownLayer, "unknown"},
    {"source layer", VDataType::protocolLayer, "protocol"},
    {"source layer", VDataType::functionalGroupLayer, "functional group"},
    {"source layer", VDataType::ecuSharedDataLayer, "ECU shared data"},
    {"source layer", VDataType::baseVariantLayer, "base variant"},
    {"source layer", VDataType::ecuVariantLayer, "ECU variant"},
};

} // namespace

Enumerations::Enumerations(Connection& connection, Tally& tally) : m_names(connection, tally, "enumeration") {}

void Enumerations::Write() {
    for (const Name& name : names)
        m_names.Row(name.enumeration, name.number, name.name);
}

} // namespace SqliteBackend
