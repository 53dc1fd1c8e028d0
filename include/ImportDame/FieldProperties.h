#pragma once

#include <ImportDame/Export.h>

namespace ImportDame {

/// How many elements a field has. Of no meaning where the quantity is atomic.
class IMPORTDAME_API VFieldProperties {
public:
    /// How the size of a field is given. Any 32-bit number can be stored.
    enum VSizeInfo : int {
        standardLength = 0, ///< By the description alone.
        leadingLength = 1,  ///< By a length in front of the elements.
        paramLength = 2,    ///< By the value of another parameter.
        minMaxLengthEndOfPdu = 3,
        minMaxLengthZero = 4,  ///< By a terminating zero.
        minMaxLengthHexFF = 5, ///< By a terminating 0xFF.
    };

    /// Standard length, 0 to 255 elements.
    VFieldProperties();
    VFieldProperties(const VFieldProperties& other);
    VFieldProperties& operator=(const VFieldProperties&) = delete;
    virtual ~VFieldProperties();

    /// Every field takes part.
    bool operator==(const VFieldProperties& other) const;
    bool operator!=(const VFieldProperties& other) const;

    /// How the number of elements is found.
    VSizeInfo GetSizeInfo() const { return m_sizeInfo; }

    void SetSizeInfo(VSizeInfo sizeInfo);

    /// In elements.
    unsigned int GetMinLength() const { return m_minLength; }

    void SetMinLength(unsigned int minLength);

    /// In elements.
    unsigned int GetMaxLength() const { return m_maxLength; }

    void SetMaxLength(unsigned int maxLength);

private:
    VSizeInfo m_sizeInfo = standardLength;
    unsigned int m_minLength = 0;
    unsigned int m_maxLength = 255;
};

} // namespace ImportDame
