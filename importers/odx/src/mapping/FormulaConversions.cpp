#include "mapping/Conversions.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"
#include "report/Words.h"
#include "text/Utf8.h"

#include <ImportDame/FormulaDataType.h>

#include <string>
#include <vector>

namespace OdxImport {

namespace {

/// "3 + 2*x + 0.5*x^2", with the numbers as they are written; "0" for an empty list.
std::string Polynomial(Element list, const Numbers& numbers) {
    std::string text;
    int power = 0;
    for (const Element value : Children(list.Taken(), "V")) {
        const auto number = numbers.Number(value.Taken());
        const int exponent = power++;
        if (!number || *number == 0.0)
            continue;
        if (!text.empty())
            text += " + ";
        text += std::string(value.Text());
        if (exponent > 0)
            text += "*x";
        if (exponent > 1)
            text += Words({"^", std::to_string(exponent)});
    }
    return text.empty() ? "0" : text;
}

std::string Fraction(Element scale, const Workspace& workspace) {
    const Numbers numbers(workspace.Report());
    if (const Element value = TakeValue(scale.Take("COMPU-CONST")))
        return std::string(value.Text());
    const Element coefficients = scale.Take("COMPU-RATIONAL-COEFFS");
    if (!coefficients) {
        workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no COMPU-RATIONAL-COEFFS");
        return "x";
    }
    std::string numerator = Polynomial(coefficients.Child("COMPU-NUMERATOR"), numbers);
    const Element below = coefficients.Child("COMPU-DENOMINATOR");
    if (!below)
        return numerator;
    const std::string denominator = Polynomial(below, numbers);
    if (denominator == "0")
        workspace.ReportAt(below, Rule::DenominatorZero, "the denominator is 0; the formula is kept as it is written",
                           Outcome::None);
    return Words({"(", numerator, ") / (", denominator, ")"});
}

/// "x >= 0 && x < 10", empty for a scale without limits.
std::string Condition(Element scale) {
    std::string text;
    const auto add = [&](Element limit, const char* closed, const char* open) {
        if (!limit || limit.Attribute("INTERVAL-TYPE") == "INFINITE")
            return;
        if (!text.empty())
            text += " && ";
        text.append("x ")
            .append(limit.Attribute("INTERVAL-TYPE") == "OPEN" ? open : closed)
            .append(" ")
            .append(limit.Text());
    };
    add(scale.Take("LOWER-LIMIT"), ">=", ">");
    add(scale.Take("UPPER-LIMIT"), "<=", "<");
    return text;
}

/// One fraction, or one "condition ? fraction" after the other with "; " between them.
std::string Formula(const std::vector<Element>& scales, const Workspace& workspace) {
    std::string text;
    for (const Element scale : scales) {
        const std::string condition = Condition(scale);
        if (!text.empty())
            text += "; ";
        if (!condition.empty())
            text += condition + " ? ";
        text += Fraction(scale, workspace);
    }
    return text;
}

} // namespace

void ReadConversion(ImportDame::VFormulaDataType& type, Element method, const Workspace& workspace) {
    const auto back = TakeScales(method, "COMPU-PHYS-TO-INTERNAL", false, workspace);
    // What is only sent needs no way from the coded to the physical value.
    const auto forth = TakeScales(method, "COMPU-INTERNAL-TO-PHYS", back.empty(), workspace);
    type.SetCodedToPhysFormula(Widen(Formula(forth, workspace)).c_str());
    if (!back.empty())
        type.SetPhysToCodedFormula(Widen(Formula(back, workspace)).c_str());
}

} // namespace OdxImport
