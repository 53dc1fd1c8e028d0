#pragma once

#include <ImportDame/Export.h>

namespace ImportDame {

/// The scope of the enumerations that the property records share. Any 32-bit number can be stored in them.
class IMPORTDAME_API VProperties {
public:
    /// How the bits of one value are to be read. 0 to 4 are numbers, 5 and 6 are texts, all others are neither.
    enum VEncoding : int {
        unsignedInteger = 0,
        twosComplement = 1,
        floatingPoint = 2, ///< IEEE 754, single or double by the bit length.
        packedBcd = 3,
        unpackedBcd = 4,
        asciiText = 5,   ///< One byte a character, ISO 8859-1.
        unicodeText = 6, ///< UTF-8 where the bit length is 8, UCS-2 where it is 16.
        byteField = 7,
        onesComplement = 8,
        signMagnitude = 9,
    };

    /// Of values of more than one byte.
    enum VByteOrder : int {
        lowHigh = 0,
        highLow = 1, ///< The most significant byte comes first.
    };

    /// Whether there is one value or several.
    enum VQuantity : int {
        atomic = 0, ///< One value.
        field = 1,  ///< A sequence of elements.
    };

    virtual ~VProperties();
};

} // namespace ImportDame
