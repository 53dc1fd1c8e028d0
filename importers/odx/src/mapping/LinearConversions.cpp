#include "mapping/Conversions.h"
#include "mapping/Limits.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"
#include "text/Utf8.h"

#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/Range.h>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace OdxImport {

namespace {

constexpr const char* toPhysical = "COMPU-INTERNAL-TO-PHYS";
constexpr const char* toCoded = "COMPU-PHYS-TO-INTERNAL";

/// (a + b x) / d
struct Fraction {
    double a;
    double b;
    double d;
};

/// One segment, for coded values in the range.
struct Segment {
    Fraction fraction;
    ImportDame::VRange range;
    bool areLimitsRead = true;
};

/// Nothing where one cannot be read.
std::optional<std::vector<double>> TakeNumbers(Element list, const Numbers& numbers) {
    std::vector<double> values;
    bool areRead = true;
    for (const Element value : Children(list.Taken(), "V")) {
        const auto number = numbers.Number(value.Taken());
        areRead = areRead && number;
        values.push_back(number.value_or(0.0));
    }
    return areRead ? std::optional(std::move(values)) : std::nullopt;
}

/// The denominator is kept where it is a natural number, and divided out where it is not.
void SetFraction(ImportDame::VLinearConversion& conversion, const Fraction& fraction) {
    auto [a, b, d] = fraction;
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

std::optional<Fraction> ReadCoefficients(Element coefficients, const Workspace& workspace) {
    const Numbers numbers(workspace.Report());
    const auto above = TakeNumbers(coefficients.Taken().Child("COMPU-NUMERATOR"), numbers);
    const auto below = TakeNumbers(coefficients.Child("COMPU-DENOMINATOR"), numbers);
    if (!above || !below)
        return std::nullopt;
    std::vector<double> numerator = *above, denominator = *below;
    CutZeros(numerator, 2);
    CutZeros(denominator, 1);
    if (numerator.empty() || numerator.size() > 2 || denominator.size() > 1) {
        workspace.ReportAt(coefficients, Rule::ConversionIncomplete,
                           "a linear scale has one or two numbers in its numerator and at most one in its denominator");
        return std::nullopt;
    }
    if (denominator.empty())
        denominator.push_back(1.0);
    if (denominator[0] == 0.0) {
        workspace.ReportAt(coefficients, Rule::DenominatorZero, "the denominator is 0; taken as 1");
        denominator[0] = 1.0;
    }
    return Fraction{numerator[0], numerator.size() == 2 ? numerator[1] : 0.0, denominator[0]};
}

std::optional<Fraction> ReadFraction(Element scale, const Workspace& workspace) {
    if (const Element coefficients = scale.Child("COMPU-RATIONAL-COEFFS"))
        return ReadCoefficients(coefficients, workspace);
    const Element value = scale.Take("COMPU-CONST").Take("V");
    if (!value)
        workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no COMPU-RATIONAL-COEFFS");
    const auto number = Numbers(workspace.Report()).Number(value);
    return number ? std::optional(Fraction{*number, 0.0, 1.0}) : std::nullopt;
}

std::optional<Segment> ReadScale(Element scale, const CodedType& coded, const Workspace& workspace) {
    Segment segment;
    segment.areLimitsRead = ReadRange(segment.range, scale, coded.Kind(), false, workspace);
    const auto fraction = ReadFraction(scale, workspace);
    if (!fraction) {
        PassOver(scale, unreadableConversion);
        return std::nullopt;
    }
    segment.fraction = *fraction;
    return segment;
}

/// What a physical limit is as a coded value; nothing for an infinite one. `inward` leads from an open whole one to the
/// outermost value inside, 0 for a closed one.
std::optional<ImportDame::VValue> CodedLimit(ImportDame::VValue physical, const Fraction& back, bool isWhole,
                                             int inward) {
    const auto number = ParseNumber(Narrow(physical.Get()));
    const double limit = number ? (back.a + back.b * *number) / back.d : std::numeric_limits<double>::infinity();
    if (!std::isfinite(limit))
        return std::nullopt;
    if (!isWhole)
        return ValueOf(Narrow(ShortestText(limit)));
    constexpr double noise = 1e-6; // of what is calculated from fractions
    const double whole = std::round(limit) + 0.0;
    return ValueOf(Narrow(ShortestText(std::abs(limit - whole) < noise ? whole + inward : whole)));
}

/// A scale of the way back, from physical to coded values, turned round.
std::optional<Segment> ReadInverse(Element scale, const CodedType& coded, const Workspace& workspace) {
    const Element coefficients = scale.Child("COMPU-RATIONAL-COEFFS");
    const auto back = coefficients ? ReadCoefficients(coefficients, workspace) : std::nullopt;
    if (!back || back->b == 0.0) {
        workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no inverse");
        return std::nullopt;
    }
    ImportDame::VRange physical;
    Segment segment{{0.0 - back->a, back->d, back->b}, {}};
    segment.areLimitsRead = ReadRange(physical, scale, ValueKind::Real, false, workspace, true);
    const bool isFalling = back->b / back->d < 0;
    const auto inward = [&](const char* limit, int ofRising) {
        const bool isOpen = scale.Child(limit).Attribute("INTERVAL-TYPE") == "OPEN";
        return isOpen ? (isFalling ? -ofRising : ofRising) : 0;
    };
    std::optional<ImportDame::VValue> start, end;
    if (physical.HasStartValue())
        start = CodedLimit(physical.GetStartValue(), *back, coded.IsWhole(), inward("LOWER-LIMIT", 1));
    if (physical.HasEndValue())
        end = CodedLimit(physical.GetEndValue(), *back, coded.IsWhole(), inward("UPPER-LIMIT", -1));
    if (isFalling)
        std::swap(start, end);
    if (start)
        segment.range.SetStartValue(*start);
    if (end)
        segment.range.SetEndValue(*end);
    return segment;
}

using Reader = std::optional<Segment> (*)(Element, const CodedType&, const Workspace&);

/// The scales of a conversion and what reads each.
struct Way {
    std::vector<Element> scales;
    Reader read;
};

/// The way back only when there is no other; nobody settles it here, as it is kept as it is written as well.
Way WayOf(Element method, const Workspace& workspace) {
    std::vector<Element> back;
    if (!method.Child(toPhysical).Child("COMPU-SCALES").Child("COMPU-SCALE"))
        for (const Element scale : Children(method.Child(toCoded).Child("COMPU-SCALES"), "COMPU-SCALE"))
            back.push_back(scale);
    if (back.empty())
        return {TakeScales(method, toPhysical, true, workspace), ReadScale};
    workspace.ReportAt(method, Rule::ConversionBackOnly,
                       "there is COMPU-PHYS-TO-INTERNAL only; its inverse is taken for COMPU-INTERNAL-TO-PHYS");
    return {std::move(back), ReadInverse};
}

void Apply(const Segment& segment, Element scale, Reader read, ImportDame::VLinearConversion& conversion) {
    SetFraction(conversion, segment.fraction);
    conversion.GetRange() = segment.range;
    if (read == ReadScale) // COMPU-INVERSE-VALUE belongs to the way forth
        ReadInverseValue(conversion, scale);
}

} // namespace

void ReadConversion(ImportDame::VLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace) {
    const auto [scales, read] = WayOf(method, workspace);
    if (scales.empty())
        return;
    if (const auto segment = read(scales.front(), coded, workspace))
        Apply(*segment, scales.front(), read, type.LinearConversion());
    for (std::size_t i = 1; i < scales.size(); ++i) {
        workspace.ReportAt(scales[i], Rule::ConversionIncomplete, "LINEAR has one scale; this one is passed over");
        if (read == ReadScale)
            PassOver(scales[i], "LINEAR has one scale");
    }
}

void ReadConversion(ImportDame::VPiecewiseLinearDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace) {
    const auto [scales, read] = WayOf(method, workspace);
    for (const Element scale : scales) {
        const auto segment = read(scale, coded, workspace);
        if (segment && segment->areLimitsRead)
            Apply(*segment, scale, read, type.LinearConversionCollection().AddNewLinearConversion());
        else if (segment && read == ReadScale) // the way back is kept as it is written
            PassOver(scale, unreadableLimits);
    }
}

} // namespace OdxImport
