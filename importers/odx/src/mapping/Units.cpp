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
    const Element link = owner.Take("UNIT-REF");
    if (!link)
        return {};
    const Element unit = m_workspace.Links().Follow(link);
    if (!unit)
        return {};
    if (!unit.Is("UNIT")) {
        m_workspace.ReportAt(link, Rule::LinkWrongKind, "UNIT-REF leads to a " + std::string(unit.Tag()));
        return {};
    }
    return Add(unit);
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
    known->second = displayName ? Widen(displayName.Text()) : Naming::NameOf(unit);
    made.SetDisplayName(known->second.c_str());
    for (const char* tag : {"FACTOR-SI-TO-UNIT", "OFFSET-SI-TO-UNIT"})
        if (const Element number = unit.Take(tag))
            AddAttribute(made.Attributes(), Widen(tag).c_str(), Widen(number.Text()));
    if (const Element link = unit.Take("PHYSICAL-DIMENSION-REF"))
        if (const Element dimension = m_workspace.Links().Follow(link))
            AddAttribute(made.Attributes(), L"PHYSICAL-DIMENSION", Naming::NameOf(dimension));
    return known->second;
}

} // namespace OdxImport
