#include "mapping/Conversions.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"
#include "report/Words.h"
#include "text/Utf8.h"

#include <ImportDame/FormulaDataType.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace OdxImport {

namespace {

/// "3 + 2*x + 0.5*x^2", with the numbers as they are written; "0" for an empty list, nothing where one is none.
std::optional<std::string> Polynomial(Element list, const Numbers& numbers) {
    std::string text;
    int power = 0;
    bool areRead = true;
    for (const Element value : Children(list.Taken(), "V")) {
        const auto number = numbers.Constant(value.Taken(), ValueKind::Real);
        const int exponent = power++;
        areRead = areRead && number;
        if (!number || ParseNumber(*number) == 0.0)
            continue;
        if (!text.empty())
            text += " + ";
        text += *number;
        if (exponent > 0)
            text += "*x";
        if (exponent > 1)
            text += Words({"^", std::to_string(exponent)});
    }
    if (!areRead)
        return std::nullopt;
    return text.empty() ? "0" : text;
}

/// Nothing where a number in it is none.
std::optional<std::string> Fraction(Element scale, const Workspace& workspace) {
    const Numbers numbers(workspace.Report());
    if (const Element value = TakeValue(scale.Take("COMPU-CONST")))
        return numbers.Constant(value, value.Is("V") ? ValueKind::Real : ValueKind::Text);
    const Element coefficients = scale.Take("COMPU-RATIONAL-COEFFS");
    if (!coefficients) {
        workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no COMPU-RATIONAL-COEFFS");
        return std::nullopt;
    }
    auto numerator = Polynomial(coefficients.Child("COMPU-NUMERATOR"), numbers);
    const Element below = coefficients.Child("COMPU-DENOMINATOR");
    if (!below)
        return numerator;
    const auto denominator = Polynomial(below, numbers);
    if (!numerator || !denominator)
        return std::nullopt;
    if (*denominator == "0")
        workspace.ReportAt(below, Rule::DenominatorZero, "the denominator is 0; the formula is kept as it is written",
                           Outcome::None);
    return Words({"(", *numerator, ") / (", *denominator, ")"});
}

/// "x >= 0 && x < 10", empty for a scale without limits, nothing where a limit is no number.
std::optional<std::string> Condition(Element scale, const Workspace& workspace) {
    const Numbers numbers(workspace.Report());
    std::string text;
    bool areRead = true;
    const auto add = [&](Element limit, const char* closed, const char* open) {
        if (!limit || limit.Attribute("INTERVAL-TYPE") == "INFINITE")
            return;
        const auto number = numbers.Constant(limit, ValueKind::Real);
        areRead = areRead && number;
        text += Words({text.empty() ? "" : " && ", "x ", limit.Attribute("INTERVAL-TYPE") == "OPEN" ? open : closed,
                       " ", number.value_or("")});
    };
    add(scale.Take("LOWER-LIMIT"), ">=", ">");
    add(scale.Take("UPPER-LIMIT"), "<=", "<");
    return areRead ? std::optional(std::move(text)) : std::nullopt;
}

/// One fraction, or one "condition ? fraction" after the other with "; " between them. Scales that cannot be read are
/// passed over; one that is alone in its category needs no limits.
std::string Formula(const std::vector<Element>& scales, bool isAlone, const Workspace& workspace) {
    std::string text;
    for (const Element scale : scales) {
        auto condition = Condition(scale, workspace);
        if (!condition && isAlone)
            condition.emplace();
        const auto fraction = Fraction(scale, workspace);
        if (!condition || !fraction) {
            PassOver(scale, condition ? unreadableConversion : unreadableLimits);
            continue;
        }
        text += Words({text.empty() ? "" : "; ", *condition, condition->empty() ? "" : " ? ", *fraction});
    }
    return text;
}

} // namespace

void ReadConversion(ImportDame::VFormulaDataType& type, Element method, const Workspace& workspace) {
    const auto back = TakeScales(method, "COMPU-PHYS-TO-INTERNAL", false, workspace);
    // What is only sent needs no way from the coded to the physical value.
    const auto forth = TakeScales(method, "COMPU-INTERNAL-TO-PHYS", back.empty(), workspace);
    const bool isAlone = method.Child("CATEGORY").Text() == "RAT-FUNC";
    type.SetCodedToPhysFormula(Widen(Formula(forth, isAlone, workspace)).c_str());
    if (!back.empty())
        type.SetPhysToCodedFormula(Widen(Formula(back, isAlone, workspace)).c_str());
}

} // namespace OdxImport
