#include "mapping/Conversions.h"
#include "mapping/Limits.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"

#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/Range.h>

#include <cmath>
#include <limits>
#include <vector>

namespace OdxImport {

namespace {

constexpr const char* toPhysical = "COMPU-INTERNAL-TO-PHYS";

std::vector<double> TakeNumbers(Element list, const Numbers& numbers) {
    std::vector<double> values;
    for (const Element value : Children(list.Taken(), "V"))
        values.push_back(numbers.Number(value.Taken()).value_or(0.0));
    return values;
}

/// (a + b x) / d: the denominator is kept where it is a natural number, and divided out where it is not.
void SetFraction(ImportDame::VLinearConversion& conversion, double a, double b, double d) {
    if (d < 0) {
        a = -a;
        b = -b;
        d = -d;
    }
    const bool isNatural = d == std::floor(d) && d <= std::numeric_limits<unsigned int>::max();
    conversion.SetFactorNumerator(isNatural ? b : b / d);
    conversion.SetFactorDenominator(isNatural ? static_cast<unsigned int>(d) : 1u);
    conversion.SetOffset(a / d);
}

/// Zeros behind the coefficients that count say nothing.
void CutZeros(std::vector<double>& coefficients, std::size_t counting) {
    while (coefficients.size() > counting && coefficients.back() == 0.0)
        coefficients.pop_back();
}

void ReadCoefficients(ImportDame::VLinearConversion& conversion, Element coefficients, const Workspace& workspace) {
    const Numbers numbers(workspace.Report());
    std::vector<double> numerator = TakeNumbers(coefficients.Taken().Child("COMPU-NUMERATOR"), numbers);
    std::vector<double> denominator = TakeNumbers(coefficients.Child("COMPU-DENOMINATOR"), numbers);
    CutZeros(numerator, 2);
    CutZeros(denominator, 1);
    if (numerator.empty() || numerator.size() > 2 || denominator.size() > 1) {
        workspace.ReportAt(coefficients, Rule::ConversionIncomplete,
                           "a linear scale has one or two numbers in its numerator and at most one in its denominator");
        return;
    }
    if (denominator.empty())
        denominator.push_back(1.0);
    if (denominator[0] == 0.0) {
        workspace.ReportAt(coefficients, Rule::DenominatorZero, "the denominator is 0; taken as 1");
        denominator[0] = 1.0;
    }
    SetFraction(conversion, numerator[0], numerator.size() == 2 ? numerator[1] : 0.0, denominator[0]);
}

void ReadScale(ImportDame::VLinearConversion& conversion, Element scale, const CodedType& coded,
               const Workspace& workspace) {
    ReadRange(conversion.GetRange(), scale, coded.IsWhole(), false, workspace);
    ReadInverseValue(conversion, scale);
    if (const Element coefficients = scale.Child("COMPU-RATIONAL-COEFFS")) {
        ReadCoefficients(conversion, coefficients, workspace);
    } else if (const Element value = scale.Take("COMPU-CONST").Take("V")) {
        conversion.SetFactorNumerator(0.0);
        conversion.SetOffset(Numbers(workspace.Report()).Number(value).value_or(0.0));
    } else {
        workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no COMPU-RATIONAL-COEFFS");
    }
}

} // namespace

void ReadConversion(ImportDame::VLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace) {
    const std::vector<Element> scales = TakeScales(method, toPhysical, true, workspace);
    if (scales.empty())
        return;
    ReadScale(type.LinearConversion(), scales.front(), coded, workspace);
    for (std::size_t i = 1; i < scales.size(); ++i)
        workspace.ReportAt(scales[i], Rule::ConversionIncomplete, "LINEAR has one scale; this one is passed over");
}

void ReadConversion(ImportDame::VPiecewiseLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace) {
    for (const Element scale : TakeScales(method, toPhysical, true, workspace))
        ReadScale(type.LinearConversionCollection().AddNewLinearConversion(), scale, coded, workspace);
}

} // namespace OdxImport
