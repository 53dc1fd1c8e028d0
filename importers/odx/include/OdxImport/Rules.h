#ifndef ODXIMPORT_RULES_H
#define ODXIMPORT_RULES_H

#include <cstddef>
#include <cstdint>
#include <span>

namespace OdxImport {

enum class Severity : std::uint8_t {
    Info,    ///< worth knowing; nothing is lost
    Warning, ///< tolerated: something was repaired or passed over, and the result may differ from what was meant
    Error,   ///< something of the input is missing in the document
    Fatal    ///< the import stopped
};
inline constexpr std::size_t severityCount = 4;

/// What was done about a problem.
enum class Outcome : std::uint8_t {
    None,             ///< nothing had to be done
    ValueRepaired,    ///< read as what was most probably meant
    ValueIgnored,     ///< taken as absent
    ReferenceIgnored, ///< taken as absent
    ObjectSkipped,    ///< not in the document
    FileSkipped,      ///< the whole file or archive entry was left out
    ImportStopped
};
inline constexpr std::size_t outcomeCount = 7;

/// Every problem that can be reported. The stable name is RuleInfo::code.
enum class Rule : std::uint16_t {
    // inputs
    InputNotFound,
    InputUnreadable,
    NothingToRead,
    ArchiveDamaged,
    ArchiveEntryDamaged,
    DocumentTooLarge,
    ArchiveTooManyEntries,
    ArchiveRatioTooHigh,
    InputTooLarge,
    ArchiveEntryEncrypted,
    EntryNotRead,
    InputTwice,
    EntryNameSuspicious,
    ArchivePackingUnknown,
    // documents
    NotXml,
    EncodingUnsupported,
    BytesNotInEncoding,
    EncodingContradiction,
    DoctypeIgnored,
    EntityUnknown,
    RootNotOdx,
    NestingTooDeep,
    PrefixUnbound,
    ModelVersionMissing,
    ModelVersionUnknown,
    CategoryUnknown,
    ElementUnknown,
    XmlLoose,
    // names and links
    IdMissing,
    IdTwice,
    ShortNameMissing,
    ShortNameTwice,
    LinkDangling,
    LinkAmbiguous,
    LinkWrongKind,
    DocrefUnknown,
    NameLinkDangling,
    LinkEmpty,
    LinkFoundElsewhere,
    // layers
    ParentCycle,
    ParentNotAllowed,
    ParentMissing,
    InheritanceAmbiguous,
    NotInheritedUnknown,
    BaseVariantNotFound,
    BaseVariantChoice,
    BaseVariantMissing,
    VariantWithoutBase,
    ImportNotShared,
    VariantOfSeveralBases,
    // values
    NumberNotWhole,
    NumberHexPrefix,
    NumberNone,
    NumberOutOfRange,
    HexOddDigits,
    HexNone,
    FlagNone,
    WordUnknown,
    ValueMissing,
    LimitsReversed,
    // data types
    CategoryOfConversionUnknown,
    ConversionIncomplete,
    DenominatorZero,
    CodedTypeMissing,
    CodedTypeUnknown,
    BitLengthImpossible,
    StructureCycle,
    ParamsOverlap,
    ParamTypeUnknown,
    ParamWithoutType,
    MuxWithoutKey,
    FieldWithoutStructure,
    CasesOverlap,
    ConversionBackOnly,
    // services and trouble codes
    ServiceWithoutRequest,
    ServiceWithoutId,
    TroubleCodeMissing,
    TroubleCodeTwice,
    TroubleCodeTooLong,
    RecordColumnsTooMany,
    ObjectsTooMany,
    Count_
};
inline constexpr std::size_t ruleCount = static_cast<std::size_t>(Rule::Count_);

struct RuleInfo {
    Rule rule;
    const char* code; ///< stable, "ODX0101"
    Severity severity;
    Outcome outcome;     ///< what is done unless the report says otherwise
    const char* summary; ///< what the rule is about, one line
    const char* advice;  ///< what to do next, one line
};

/// The table of all rules, in the order of `Rule`, codes ascending.
std::span<const RuleInfo> AllRules();
const RuleInfo& InfoOf(Rule rule);

const char* ToText(Severity severity); ///< "warning"
const char* ToText(Outcome outcome);   ///< "value repaired"; empty for None

} // namespace OdxImport

#endif
