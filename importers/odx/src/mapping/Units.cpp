#include "mapping/Units.h"

#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>

namespace OdxImport {

void Units::AddAllOf(Layer& layer) {
    const Element specification = layer.element.Child("DIAG-DATA-DICTIONARY-SPEC").Child("UNIT-SPEC");
    for (const Element unit : Children(specification.Child("UNITS"), "UNIT"))
        Add(unit);
}

std::wstring Units::DisplayNameFor(Element owner) {
    const Element unit = m_workspace.Follow(owner.Child("UNIT-REF"), Tags::unit);
    return unit ? Add(unit) : std::wstring();
}

const std::wstring& Units::Add(Element unit) {
    const auto [known, isNew] = m_displayNames.try_emplace(unit.Identity());
    if (!isNew)
        return known->second;
    const Element displayName = unit.Take("DISPLAY-NAME");
    if (!displayName)
        m_workspace.ReportAt(unit, Rule::ValueMissing, "the unit has no DISPLAY-NAME; its SHORT-NAME is shown");
    ImportDame::VUnit& made = m_workspace.Document().UnitCollection().AddNewUnit();
    m_naming.Describe(made, unit);
    made.SetDisplayName((displayName ? Widen(displayName.Text()) : Naming::NameOf(unit)).c_str());
    known->second = displayName ? Mention(displayName.Text()) : Naming::MentionOf(unit);
    for (const char* tag : {"FACTOR-SI-TO-UNIT", "OFFSET-SI-TO-UNIT"})
        if (const Element number = unit.Take(tag))
            AddAttribute(made.Attributes(), Widen(tag).c_str(), Widen(number.Text()));
    if (const Element dimension = m_workspace.Follow(unit.Child("PHYSICAL-DIMENSION-REF"), Tags::physicalDimension))
        AddAttribute(made.Attributes(), L"PHYSICAL-DIMENSION", Naming::MentionOf(dimension));
    return known->second;
}

} // namespace OdxImport
