#include "OdxImport/Rules.h"

#include <array>

namespace OdxImport {

namespace {

using enum Severity;

constexpr std::array<RuleInfo, ruleCount> rules{{
    {Rule::InputNotFound, "ODX0101", Fatal, Outcome::ImportStopped, "an input does not exist",
     "Check the path of the input."},
    {Rule::InputUnreadable, "ODX0102", Error, Outcome::FileSkipped, "an input cannot be read",
     "Check the permissions of the file and that nothing else holds it."},
    {Rule::NothingToRead, "ODX0103", Fatal, Outcome::ImportStopped, "no ODX document was found in the inputs",
     "Give a PDX archive, an ODX document or a folder that holds some."},
    {Rule::ArchiveDamaged, "ODX0104", Error, Outcome::FileSkipped, "an archive is damaged or is none",
     "Get the archive again; it is incomplete or was changed on its way."},
    {Rule::ArchiveEntryDamaged, "ODX0105", Error, Outcome::FileSkipped, "an archive entry cannot be unpacked",
     "Get the archive again; this entry is incomplete or was changed on its way."},
    {Rule::DocumentTooLarge, "ODX0106", Error, Outcome::FileSkipped, "a document is larger than the limit",
     "Split the document, or raise the limit if it can be trusted."},
    {Rule::ArchiveTooManyEntries, "ODX0107", Error, Outcome::FileSkipped, "an archive has more entries than the limit",
     "Split the archive, or raise the limit if it can be trusted."},
    {Rule::ArchiveRatioTooHigh, "ODX0108", Error, Outcome::FileSkipped,
     "an archive entry unpacks to many times its packed size",
     "Do not trust this archive; if it is known to be good, raise the limit."},
    {Rule::InputTooLarge, "ODX0109", Error, Outcome::FileSkipped, "all documents together are larger than the limit",
     "Import fewer inputs at a time, or raise the limit."},
    {Rule::ArchiveEntryEncrypted, "ODX0110", Error, Outcome::FileSkipped, "an archive entry is encrypted",
     "Pack the archive without a password."},
    {Rule::EntryNotRead, "ODX0111", Info, Outcome::None, "a file beside the ODX documents is not read",
     "Nothing to do: programs, pictures and catalogues have no place in the document."},
    {Rule::InputTwice, "ODX0112", Warning, Outcome::FileSkipped, "a document is in the inputs twice",
     "Name every document once."},
    {Rule::EntryNameSuspicious, "ODX0113", Warning, Outcome::None,
     "the name of an archive entry leads out of the archive",
     "Find out who made the archive; the name is shown only and never used as a path."},
    {Rule::ArchivePackingUnknown, "ODX0114", Error, Outcome::FileSkipped,
     "an archive entry is packed in a way that is not read", "Pack the archive with deflate, the usual way."},

    {Rule::NotXml, "ODX0201", Error, Outcome::FileSkipped, "a document is not well-formed XML",
     "Correct the document at the place given, or export it again."},
    {Rule::EncodingUnsupported, "ODX0202", Error, Outcome::FileSkipped, "a document is in an encoding that is not read",
     "Save the document as UTF-8."},
    {Rule::BytesNotInEncoding, "ODX0203", Warning, Outcome::ValueRepaired, "bytes do not fit the document's encoding",
     "Save the document in the encoding that its first line names."},
    {Rule::EncodingContradiction, "ODX0204", Warning, Outcome::ValueRepaired,
     "a document's first line names another encoding than its bytes show",
     "Correct the encoding in the document's first line."},
    {Rule::DoctypeIgnored, "ODX0205", Warning, Outcome::ValueIgnored, "a document has a DOCTYPE",
     "Remove the DOCTYPE; it is never read, and entities declared in it stay unknown."},
    {Rule::EntityUnknown, "ODX0206", Warning, Outcome::ValueRepaired, "an entity is none of the five of XML",
     "Write the character itself instead of the entity."},
    {Rule::RootNotOdx, "ODX0207", Error, Outcome::FileSkipped, "the root element is not ODX",
     "Leave this file out of the inputs, or correct its root."},
    {Rule::NestingTooDeep, "ODX0208", Error, Outcome::FileSkipped, "elements are nested deeper than the limit",
     "Correct the document; no honest one is nested so deep."},
    {Rule::PrefixUnbound, "ODX0209", Warning, Outcome::ValueRepaired, "a namespace prefix is used but not declared",
     "Declare the prefix at the root, for instance "
     "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"."},
    {Rule::ModelVersionMissing, "ODX0210", Warning, Outcome::ValueRepaired, "the root names no model version",
     "Add MODEL-VERSION=\"2.2.0\" (or the right one) to the root."},
    {Rule::ModelVersionUnknown, "ODX0211", Warning, Outcome::None, "the model version is not one that is known",
     "Check the result, or export the document as 2.2.0."},
    {Rule::CategoryUnknown, "ODX0212", Warning, Outcome::ObjectSkipped, "the document is of no kind that is known",
     "Check what the document is; it was not used."},
    {Rule::ElementUnknown, "ODX0213", Warning, Outcome::ObjectSkipped, "an element is not known at its place",
     "Check the spelling and the place of the element."},
    {Rule::XmlLoose, "ODX0214", Warning, Outcome::ValueIgnored, "a document has what XML does not allow",
     "Correct the document at the place given; other programs may refuse it."},

    {Rule::IdMissing, "ODX0301", Warning, Outcome::None, "an object that needs an ID has none",
     "Give the object an ID; nothing can refer to it otherwise."},
    {Rule::IdTwice, "ODX0302", Warning, Outcome::ValueIgnored, "an ID is used twice in one document",
     "Make the ID unique; links lead to the first object that has it."},
    {Rule::ShortNameMissing, "ODX0303", Warning, Outcome::ValueRepaired, "an object has no SHORT-NAME",
     "Give the object a SHORT-NAME; its ID is used meanwhile."},
    {Rule::ShortNameTwice, "ODX0304", Warning, Outcome::None, "two objects of one kind have the same SHORT-NAME",
     "Rename one of them; links by name lead to the first."},
    {Rule::LinkDangling, "ODX0305", Error, Outcome::ReferenceIgnored, "a link leads to an ID that is not in the inputs",
     "Add the document that has the ID to the inputs, or correct the link."},
    {Rule::LinkAmbiguous, "ODX0306", Warning, Outcome::None, "a link fits several objects",
     "Add DOCREF and DOCTYPE to the link, or correct them, or rename one of two layers; the first object is taken "
     "meanwhile."},
    {Rule::LinkWrongKind, "ODX0307", Error, Outcome::ReferenceIgnored, "a link leads to an object of another kind",
     "Correct the ID of the link."},
    {Rule::DocrefUnknown, "ODX0308", Warning, Outcome::ValueRepaired, "DOCREF and DOCTYPE of a link fit no document",
     "Correct DOCREF and DOCTYPE; where DOCREF names nothing the ID alone was used."},
    {Rule::NameLinkDangling, "ODX0309", Error, Outcome::ReferenceIgnored,
     "a link by name leads to no object that the layer has or inherits",
     "Correct the name, or add the layer that has the object."},
    {Rule::LinkEmpty, "ODX0310", Error, Outcome::ReferenceIgnored, "a link names nothing",
     "Add the ID-REF or the SHORT-NAME to the link."},
    {Rule::LinkFoundElsewhere, "ODX0311", Warning, Outcome::ValueRepaired,
     "a link without DOCREF leads into another document", "Add DOCREF and DOCTYPE to the link."},

    {Rule::ParentCycle, "ODX0401", Error, Outcome::ReferenceIgnored, "layers inherit from each other in a circle",
     "Remove one of the parent links of the circle."},
    {Rule::ParentNotAllowed, "ODX0402", Warning, Outcome::ReferenceIgnored,
     "a layer cannot inherit from a layer of that kind", "Remove the parent link, or correct where it leads."},
    {Rule::ParentMissing, "ODX0403", Error, Outcome::ReferenceIgnored, "a parent layer is not in the inputs",
     "Add the document with the parent layer to the inputs; all that is inherited from it is missing now."},
    {Rule::InheritanceAmbiguous, "ODX0404", Warning, Outcome::None,
     "two parents of the same rank, or two linked DTC-DOPs, offer different objects of one name",
     "Override the object, or exclude it from one parent or link; the first one is taken meanwhile."},
    {Rule::NotInheritedUnknown, "ODX0405", Info, Outcome::None,
     "an object is excluded from inheritance that the parent or link does not have",
     "Correct or remove the exclusion."},
    {Rule::BaseVariantNotFound, "ODX0406", Fatal, Outcome::ImportStopped,
     "the chosen base variant is not in the inputs", "Choose one of the base variants named in the message."},
    {Rule::BaseVariantChoice, "ODX0407", Fatal, Outcome::ImportStopped, "there are several base variants",
     "Choose one with --base-variant."},
    {Rule::BaseVariantMissing, "ODX0408", Fatal, Outcome::ImportStopped, "there is no base variant in the inputs",
     "Add the document that holds the base variant."},
    {Rule::VariantWithoutBase, "ODX0409", Warning, Outcome::ObjectSkipped, "an ECU variant has no base variant",
     "Add a link to its base variant, or the document that holds it."},
    {Rule::ImportNotShared, "ODX0410", Warning, Outcome::None, "an import leads to a layer that is no shared data",
     "Import ECU-SHARED-DATA only; inherit from the others."},
    {Rule::VariantOfSeveralBases, "ODX0411", Warning, Outcome::None, "an ECU variant has several base variants",
     "Keep one of the parent links to base variants; the variant is imported with the first."},

    {Rule::NumberNotWhole, "ODX0501", Error, Outcome::ValueIgnored, "a whole number is needed, and this is none",
     "Write a whole number."},
    {Rule::NumberHexPrefix, "ODX0502", Warning, Outcome::ValueRepaired, "a number is written with 0x",
     "Write the number in decimal digits."},
    {Rule::NumberNone, "ODX0503", Error, Outcome::ValueIgnored, "a number is needed, and this is none",
     "Write a number."},
    {Rule::NumberOutOfRange, "ODX0504", Error, Outcome::ValueIgnored, "a number is outside of what its place can hold",
     "Correct the number."},
    {Rule::HexOddDigits, "ODX0505", Warning, Outcome::ValueRepaired, "a hexadecimal value has an odd number of digits",
     "Write two digits a byte; a leading zero was added."},
    {Rule::HexNone, "ODX0506", Error, Outcome::ValueIgnored, "a hexadecimal value is needed, and this is none",
     "Write hexadecimal digits, two a byte, without 0x."},
    {Rule::FlagNone, "ODX0507", Warning, Outcome::ValueIgnored, "true or false is needed, and this is neither",
     "Write true or false."},
    {Rule::WordUnknown, "ODX0508", Warning, Outcome::ValueIgnored, "a word is none of those allowed at its place",
     "Correct the word; the usual one is taken meanwhile."},
    {Rule::ValueMissing, "ODX0509", Warning, Outcome::None, "a value that is needed is missing", "Add the value."},
    {Rule::LimitsReversed, "ODX0510", Warning, Outcome::None, "a lower limit is above its upper limit",
     "Correct the limits; they were kept as they are."},

    {Rule::CategoryOfConversionUnknown, "ODX0601", Error, Outcome::ValueRepaired,
     "the category of a conversion is not known", "Correct the CATEGORY; the value is imported without conversion."},
    {Rule::ConversionIncomplete, "ODX0602", Error, Outcome::ValueIgnored, "a conversion lacks what its category needs",
     "Complete the conversion."},
    {Rule::DenominatorZero, "ODX0603", Error, Outcome::ValueIgnored, "a conversion divides by zero",
     "Correct the denominator."},
    {Rule::CodedTypeMissing, "ODX0604", Error, Outcome::ValueRepaired, "a data object has no DIAG-CODED-TYPE",
     "Add the DIAG-CODED-TYPE; an unsigned byte is assumed."},
    {Rule::CodedTypeUnknown, "ODX0605", Error, Outcome::ValueRepaired, "the kind of a DIAG-CODED-TYPE is not known",
     "Correct xsi:type; the standard length type is assumed."},
    {Rule::BitLengthImpossible, "ODX0606", Error, Outcome::ValueIgnored, "a bit length does not fit its base type",
     "Correct BIT-LENGTH or BASE-DATA-TYPE."},
    {Rule::StructureCycle, "ODX0607", Error, Outcome::ReferenceIgnored, "a structure contains itself",
     "Remove the member that leads back."},
    {Rule::ParamsOverlap, "ODX0608", Info, Outcome::None, "two parameters lie on the same bits",
     "Check the positions; both are imported."},
    {Rule::ParamTypeUnknown, "ODX0609", Error, Outcome::ObjectSkipped, "the kind of a parameter is not known",
     "Correct xsi:type of the parameter."},
    {Rule::ParamWithoutType, "ODX0610", Error, Outcome::None, "a parameter has no data type",
     "Add the link to its data object; the parameter is imported without a type."},
    {Rule::MuxWithoutKey, "ODX0611", Error, Outcome::None, "a multiplexer or table has no key to choose by",
     "Add the SWITCH-KEY, to a table the KEY-DOP-REF; it is imported without one."},
    {Rule::FieldWithoutStructure, "ODX0612", Error, Outcome::None, "a field or case has no structure to repeat",
     "Add the link to the structure; it is imported without content."},
    {Rule::CasesOverlap, "ODX0613", Warning, Outcome::None, "two cases of a multiplexer apply to the same value",
     "Correct the limits of the cases; both are imported."},
    {Rule::ConversionBackOnly, "ODX0614", Warning, Outcome::ValueRepaired,
     "a linear conversion has no way from coded to physical values",
     "Add COMPU-INTERNAL-TO-PHYS; the inverse of the way back is taken meanwhile."},

    {Rule::ServiceWithoutRequest, "ODX0701", Error, Outcome::None, "a service has no request",
     "Add the link to the request; the service is imported without service id."},
    {Rule::ServiceWithoutId, "ODX0702", Warning, Outcome::None, "a request has no constant for the service id",
     "Add a CODED-CONST parameter at byte position 0; the service is imported with service id 0."},
    {Rule::TroubleCodeMissing, "ODX0703", Error, Outcome::ObjectSkipped, "a trouble code has no number",
     "Add TROUBLE-CODE."},
    {Rule::TroubleCodeTwice, "ODX0704", Warning, Outcome::None, "two trouble codes have the same number",
     "Correct TROUBLE-CODE; both are imported."},
    {Rule::TroubleCodeTooLong, "ODX0705", Warning, Outcome::None, "a trouble code has more bits than its coded type",
     "Correct TROUBLE-CODE or the BIT-LENGTH of its data object."},
    {Rule::RecordColumnsTooMany, "ODX0706", Warning, Outcome::ValueIgnored,
     "special data have more names than a record has columns",
     "Nothing has to be done: the values stay in the attributes of their trouble codes."},
    {Rule::ObjectsTooMany, "ODX0707", Error, Outcome::ObjectSkipped,
     "variants and linked trouble codes multiply into more objects than the limit",
     "Import fewer variants, or raise the limit if the input can be trusted."},
}};

constexpr bool RowsAreInOrder() {
    for (std::size_t i = 0; i < rules.size(); ++i)
        if (rules[i].rule != static_cast<Rule>(i))
            return false;
    return true;
}

static_assert(RowsAreInOrder());

} // namespace

std::span<const RuleInfo> AllRules() {
    return rules;
}

const RuleInfo& InfoOf(Rule rule) {
    return rules[static_cast<std::size_t>(rule)];
}

const char* ToText(Severity severity) {
    static constexpr std::array<const char*, severityCount> texts{"info", "warning", "error", "fatal"};
    return texts[static_cast<std::size_t>(severity)];
}

const char* ToText(Outcome outcome) {
    static constexpr std::array<const char*, outcomeCount> texts{
        "", "value repaired", "value ignored", "reference ignored", "object skipped", "file skipped", "import stopped"};
    return texts[static_cast<std::size_t>(outcome)];
}

} // namespace OdxImport
