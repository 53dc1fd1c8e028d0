#include "mapping/Limits.h"

#include "mapping/Naming.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"
#include "report/Words.h"
#include "text/Utf8.h"

#include <ImportDame/DataType.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/Range.h>
#include <ImportDame/Text.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace OdxImport {

using ImportDame::VInvalidRange;
using ImportDame::VValue;

namespace {

struct Limit {
    std::string text; ///< of the outermost value inside, or as written when that cannot be told
    bool isWhole = false;
};

/// Nothing for what should be a number and is none. "254.0" is 254; fractions and what no digits can be told of stay as
/// they are written.
std::optional<Limit> ReadWholeLimit(Element limit, const Workspace& workspace) {
    const std::string_view text = limit.Text();
    const std::optional<double> real = ParseNumber(text);
    if (real && !Numbers(Silence()).Constant(limit, ValueKind::Whole)) {
        if (*real != std::floor(*real))
            workspace.ReportAt(limit, Rule::NumberNotWhole,
                               Words({limit.Tag(), " \"", text, "\" is no whole number; kept as it is written"}),
                               Outcome::None);
        return Limit{std::string(text), false};
    }
    const std::optional<std::string> digits = Numbers(workspace.Report()).Constant(limit, ValueKind::Whole);
    return digits ? std::optional(Limit{*digits, true}) : std::nullopt;
}

/// The whole number before or behind; as written where that has more than 64 bits.
std::string Beside(const Limit& limit, int step) {
    if (!limit.isWhole)
        return limit.text;
    using Signed = std::numeric_limits<std::int64_t>;
    if (const auto whole = ParseWhole(limit.text);
        whole && (step > 0 ? *whole < Signed::max() : *whole > Signed::min()))
        return std::to_string(*whole + step);
    const auto natural = ParseNatural(limit.text);
    const bool hasNeighbour = natural && (step < 0 || *natural < std::numeric_limits<std::uint64_t>::max());
    return hasNeighbour ? std::to_string(step > 0 ? *natural + 1 : *natural - 1) : limit.text;
}

/// Nothing for an infinite or an absent limit. `inward` is 1 at a lower limit, -1 at an upper one.
std::optional<Limit> ReadLimit(Element limit, ValueKind kind, int inward, const Workspace& workspace) {
    if (!limit)
        return std::nullopt;
    const std::string_view interval = limit.Attribute("INTERVAL-TYPE");
    if (interval == "INFINITE")
        return std::nullopt;
    if (!interval.empty() && interval != "CLOSED" && interval != "OPEN")
        workspace.ReportAt(limit, Rule::WordUnknown,
                           "INTERVAL-TYPE is \"" + std::string(interval) + "\"; taken as CLOSED");
    if (kind == ValueKind::Real) {
        const auto number = Numbers(workspace.Report()).Constant(limit, kind);
        return number ? std::optional(Limit{*number, false}) : std::nullopt;
    }
    if (kind != ValueKind::Whole)
        return Limit{std::string(limit.Text()), false};
    std::optional<Limit> result = ReadWholeLimit(limit, workspace);
    if (interval == "OPEN" && result)
        result->text = Beside(*result, inward);
    return result;
}

struct LimitPair {
    std::optional<Limit> lower, upper;
    bool areRead = true; ///< none is absent because it cannot be read
};

bool IsRead(Element limit, const std::optional<Limit>& read) {
    return !limit || read || limit.Attribute("INTERVAL-TYPE") == "INFINITE";
}

LimitPair ReadLimits(Element element, ValueKind kind, const Workspace& workspace) {
    const Element lower = element.Take("LOWER-LIMIT"), upper = element.Take("UPPER-LIMIT");
    LimitPair limits{ReadLimit(lower, kind, 1, workspace), ReadLimit(upper, kind, -1, workspace)};
    limits.areRead = IsRead(lower, limits.lower) && IsRead(upper, limits.upper);
    if (limits.lower && limits.upper) {
        const auto low = ParseNumber(limits.lower->text), high = ParseNumber(limits.upper->text);
        if (low && high && *low > *high)
            workspace.ReportAt(lower, Rule::LimitsReversed,
                               "the lower limit " + limits.lower->text + " is above the upper limit " +
                                   limits.upper->text);
    }
    return limits;
}

constexpr std::array<std::pair<std::string_view, VInvalidRange::VInvalidity>, 4> validities{
    {{"VALID", VInvalidRange::valid},
     {"NOT-DEFINED", VInvalidRange::notDefined},
     {"NOT-AVAILABLE", VInvalidRange::notAvailable},
     {"NOT-VALID", VInvalidRange::notValid}}};

/// The values that a constraint is about.
struct Domain {
    bool isPhysical = false;
    ValueKind kind = ValueKind::Text;
    bool isUnsigned = false;
    std::uint64_t highest = std::numeric_limits<std::uint64_t>::max(); ///< of unsigned ones
};

Domain CodedDomain(const CodedType& coded) {
    Domain domain;
    domain.kind = coded.Kind();
    domain.isUnsigned = coded.encoding == ImportDame::VProperties::unsignedInteger;
    if (coded.bitLength < 64)
        domain.highest = (std::uint64_t{1} << coded.bitLength) - 1;
    return domain;
}

Domain PhysicalDomain(Element dataObject) {
    Domain domain;
    domain.isPhysical = true;
    domain.kind = PhysicalKindOf(dataObject);
    domain.isUnsigned = dataObject.Child("PHYSICAL-TYPE").Attribute("BASE-DATA-TYPE") == "A_UINT32";
    return domain;
}

class ConstraintReader {
public:
    ConstraintReader(ImportDame::VDataType& type, const Domain& domain, const Workspace& workspace)
        : m_type(type), m_domain(domain), m_workspace(workspace) {}

    void Read(Element constraint) {
        const LimitPair limits = ReadLimits(constraint.Taken(), m_domain.kind, m_workspace);
        if (limits.lower && !IsLowest(*limits.lower))
            Add().SetEndValue(ValueOf(Beside(*limits.lower, -1), m_domain.isPhysical));
        if (limits.upper && !IsHighest(*limits.upper))
            Add().SetStartValue(ValueOf(Beside(*limits.upper, 1), m_domain.isPhysical));
        for (const Element scale : Children(constraint.Take("SCALE-CONSTRS"), "SCALE-CONSTR"))
            ReadScale(scale.Taken());
    }

private:
    void ReadScale(Element scale) {
        ImportDame::VRange ends;
        if (!ReadRange(ends, scale, m_domain.kind, true, m_workspace, m_domain.isPhysical)) {
            PassOver(scale, unreadableLimits);
            return;
        }
        VInvalidRange& range = Add();
        static_cast<ImportDame::VRange&>(range) = ends;
        const std::string_view word = scale.Attribute("VALIDITY");
        bool isKnown = false;
        for (const auto& [text, validity] : validities) {
            if (text == word) {
                range.SetInvalidity(validity);
                isKnown = true;
            }
        }
        if (!isKnown)
            m_workspace.ReportAt(scale, Rule::WordUnknown,
                                 "VALIDITY is \"" + std::string(word) + "\"; taken as NOT-VALID");
        SetText(range.AssignedText(), scale.Child("SHORT-LABEL"));
        if (const Element description = scale.Child("DESC"); description && !scale.Child("SHORT-LABEL"))
            SetText(range.AssignedText(), description);
    }

    VInvalidRange& Add() { return m_type.InvalidRangeCollection().AddNewInvalidRange(); }

    /// Nothing lies below 0 for a value without sign, so there is nothing to exclude.
    bool IsLowest(const Limit& limit) const {
        const auto whole = ParseWhole(limit.text);
        return limit.isWhole && m_domain.isUnsigned && whole && *whole <= 0;
    }

    bool IsHighest(const Limit& limit) const {
        const auto natural = ParseNatural(limit.text);
        return limit.isWhole && m_domain.isUnsigned && natural && *natural >= m_domain.highest;
    }

    ImportDame::VDataType& m_type;
    Domain m_domain;
    const Workspace& m_workspace;
};

} // namespace

VValue ValueOf(std::string_view text, bool isPhysical) {
    VValue value(Widen(text).c_str());
    value.IsPhysical(isPhysical);
    return value;
}

bool ReadRange(ImportDame::VRange& range, Element element, ValueKind kind, bool isLonely, const Workspace& workspace,
               bool isPhysical) {
    const LimitPair limits = ReadLimits(element, kind, workspace);
    if (limits.lower)
        range.SetStartValue(ValueOf(limits.lower->text, isPhysical));
    if (limits.upper)
        range.SetEndValue(ValueOf(limits.upper->text, isPhysical));
    else if (limits.lower && isLonely && !element.Child("UPPER-LIMIT") &&
             element.Child("LOWER-LIMIT").Attribute("INTERVAL-TYPE") != "OPEN") // which is no value itself
        range.SetEndValue(ValueOf(limits.lower->text, isPhysical));
    return limits.areRead;
}

void ReadConstraints(ImportDame::VDataType& type, Element dataObject, const CodedType& coded,
                     const Workspace& workspace) {
    if (const Element internal = dataObject.Child("INTERNAL-CONSTR"))
        ConstraintReader(type, CodedDomain(coded), workspace).Read(internal);
    if (const Element physical = dataObject.Child("PHYS-CONSTR"))
        ConstraintReader(type, PhysicalDomain(dataObject), workspace).Read(physical);
}

} // namespace OdxImport
