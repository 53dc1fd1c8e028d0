#pragma once

#include <ImportDame/Conversion.h>
#include <ImportDame/Export.h>
#include <ImportDame/Range.h>

namespace ImportDame {

/// One linear segment: physical = coded * numerator / denominator + offset, for coded values in a range. The library
/// stores these parts and does not evaluate them.
class IMPORTDAME_API VLinearConversion : public VConversion {
public:
    /// The identity, over a range without ends.
    VLinearConversion();
    ~VLinearConversion() override;

    /// physical = coded * numerator / denominator + offset.
    double GetFactorNumerator() { return m_factorNumerator; }

    void SetFactorNumerator(double numerator);

    unsigned int GetFactorDenominator() { return m_factorDenominator; }

    /// 0 is accepted.
    void SetFactorDenominator(unsigned int denominator);

    /// In the physical unit.
    double GetOffset() { return m_offset; }

    void SetOffset(double offset);

    VRange& GetRange() { return m_range; }

    /// Kept as a text with six decimals: 0.0000004 reads back as 0.
    void SetStartValue(double value);
    void SetEndValue(double value);

    /// Requires: HasStartValue() (error code 102009).
    double GetStartValue();

    /// Requires: HasEndValue() (error code 102010).
    double GetEndValue();

    bool HasStartValue() { return m_range.HasStartValue(); }

    bool HasEndValue() { return m_range.HasEndValue(); }

    /// Compares factors, offset and range, not the inverse value.
    bool operator==(const VLinearConversion& other) const;
    bool operator!=(const VLinearConversion& other) const;

private:
    double m_factorNumerator = 1.0;
    unsigned int m_factorDenominator = 1;
    double m_offset = 0.0;
    VRange m_range;
};

} // namespace ImportDame
