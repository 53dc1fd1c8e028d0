#ifndef ODXIMPORT_MAPPING_CODEDTYPES_H
#define ODXIMPORT_MAPPING_CODEDTYPES_H

#include "mapping/Numbers.h"
#include "mapping/Workspace.h"

#include <ImportDame/FieldProperties.h>
#include <ImportDame/PhysicalDisplayProperties.h>
#include <ImportDame/Properties.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ImportDame {
class VCodedAtomProperties;
class VCodedProperties;
class VPhysicalAtomProperties;
class VPhysicalProperties;
} // namespace ImportDame

namespace OdxImport {

/// How a value lies in a message, as DIAG-CODED-TYPE says it.
struct CodedType {
    ImportDame::VProperties::VEncoding encoding = ImportDame::VProperties::unsignedInteger;
    ImportDame::VProperties::VByteOrder byteOrder = ImportDame::VProperties::highLow;
    std::uint32_t bitLength = 8; ///< of one element of a field
    std::uint32_t bitMask = 0xFFFFFFFFu;
    std::string_view
        wideMask;             ///< as it is written, where `bitMask` cannot hold it: of fields, and of more than 32 bits
    bool isCondensed = false; ///< without the bits that the mask leaves out
    std::string_view fieldEncoding; ///< BASE-TYPE-ENCODING of a field where that is not its usual one
    bool isField = false;
    /// Of fields; numbers have the standard length or that of a parameter.
    ImportDame::VFieldProperties::VSizeInfo sizeInfo = ImportDame::VFieldProperties::standardLength;
    std::uint32_t minLength = 0; ///< in elements
    std::uint32_t maxLength = 255;
    std::uint32_t leadingBits = 0; ///< of the length in front of the elements
    Element lengthKey;             ///< LENGTH-KEY-REF

    /// Bits in the message where the description alone tells.
    std::optional<std::uint64_t> FixedBits() const;
    /// Of its coded values.
    ValueKind Kind() const;

    bool IsWhole() const { return Kind() == ValueKind::Whole; }

    /// Whether the bits hold the whole number; of encodings without sign and with two's complement only, else true.
    bool CanHold(std::string_view whole) const;
    /// A number whose bits a length key counts; `bitLength` is the most it has.
    bool IsNumberOfVaryingLength() const;
};

/// How a value is shown, as PHYSICAL-TYPE says it.
struct PhysicalType {
    ImportDame::VProperties::VEncoding encoding = ImportDame::VProperties::unsignedInteger;
    std::uint32_t bitLength = 32;
    bool isField = false;
    bool isSigned = false;
    std::uint32_t precision = 0;
    ImportDame::VPhysicalDisplayProperties::VDisplayFormat format = ImportDame::VPhysicalDisplayProperties::decimal;
    std::wstring unit;
};

/// Reads DIAG-CODED-TYPE; a missing or impossible one is reported and replaced by an unsigned byte. `owner` is the
/// element that should have it.
CodedType ReadCodedType(Element owner, const Workspace& workspace);
/// Reads the DIAG-CODED-TYPE without settling or reporting anything.
CodedType LookAtCodedType(Element owner, const Workspace& workspace);

/// A name that tells everything about the type: "A_UINT32_8", "A_BYTEFIELD_8_x4".
std::wstring NameOf(const CodedType& type, std::string_view baseType);

/// What physical values of the data object are; where it has no PHYSICAL-TYPE the coded ones tell.
ValueKind PhysicalKindOf(Element dataObject);

PhysicalType ReadPhysicalType(Element owner, const Workspace& workspace);

void Apply(const CodedType& type, ImportDame::VCodedAtomProperties& properties);
void Apply(const CodedType& type, ImportDame::VCodedProperties& properties);
void Apply(const PhysicalType& type, ImportDame::VPhysicalDisplayProperties& properties);
void Apply(const PhysicalType& type, ImportDame::VPhysicalAtomProperties& properties);
void Apply(const PhysicalType& type, ImportDame::VPhysicalProperties& properties);

} // namespace OdxImport

#endif
