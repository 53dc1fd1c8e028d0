#include "mapping/Conduct.h"

#include "mapping/Naming.h"
#include "mapping/SpecialData.h"
#include "report/Words.h"
#include "text/Utf8.h"
#include "xml/Walk.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>

#include <array>

namespace OdxImport {

namespace {

constexpr std::array<const char*, 5> audiences{"IS-SUPPLIER", "IS-DEVELOPMENT", "IS-MANUFACTURING", "IS-AFTERSALES",
                                               "IS-AFTERMARKET"};

void AddAudience(ImportDame::VAttributeCollection& attributes, Element audience, const Workspace& workspace) {
    if (!audience)
        return;
    audience.Taken();
    for (const char* name : audiences)
        if (audience.HasAttribute(name))
            AddAttribute(attributes, (L"AUDIENCE/" + Widen(name)).c_str(), Widen(audience.Attribute(name)));
    AddLinkedNames(attributes, audience.Child("ENABLED-AUDIENCE-REFS"), "ENABLED-AUDIENCE-REF",
                   L"AUDIENCE/ENABLED-AUDIENCE", Tags::audience, workspace);
    AddLinkedNames(attributes, audience.Child("DISABLED-AUDIENCE-REFS"), "DISABLED-AUDIENCE-REF",
                   L"AUDIENCE/DISABLED-AUDIENCE", Tags::audience, workspace);
}

/// A library is described at each object that uses it. Bytes.
constexpr std::size_t longestRepeatedText = 4096;

void AddLibrary(ImportDame::VAttributeCollection& attributes, Element library) {
    library.Taken().Take("SHORT-NAME");
    ImportDame::VAttribute& made = attributes.AddNewAttribute();
    made.SetQualifier(L"LIBRARY");
    made.SetValue(Naming::MentionOf(library).c_str());
    SetText(made.Name(), library.Child("LONG-NAME"), longestName);
    SetText(made.Description(), library.Child("DESC"), longestRepeatedText);
    for (const char* tag : {"CODE-FILE", "SYNTAX", "REVISION", "ENTRYPOINT", "ENCRYPTION"})
        if (const Element detail = library.Take(tag))
            AddAttribute(made.Attributes(), Widen(tag).c_str(), Mention(detail.Text()));
}

} // namespace

void AddLinkedNames(ImportDame::VAttributeCollection& attributes, Element list, const char* link, const wchar_t* name,
                    Kinds kinds, const Workspace& workspace) {
    for (const Element each : Children(list.Taken(), link)) {
        if (const Element target = workspace.Follow(each, kinds))
            AddAttribute(attributes, name, Naming::MentionOf(target));
        for (const Element more : Children(each))
            more.LeaveOut(Fate::NotRepresented, more.Is("RELATION-TYPE")
                                                    ? "how services are related has no place in the model"
                                                    : "the values that a state depends on have no place in the model");
    }
}

void AddConduct(ImportDame::VAttributeCollection& attributes, Element object, const Workspace& workspace) {
    AddAudience(attributes, object.Child("AUDIENCE"), workspace);
    AddLinkedNames(attributes, object.Child("PRE-CONDITION-STATE-REFS"), "PRE-CONDITION-STATE-REF",
                   L"PRE-CONDITION-STATE", Tags::state, workspace);
    AddLinkedNames(attributes, object.Child("STATE-TRANSITION-REFS"), "STATE-TRANSITION-REF", L"STATE-TRANSITION",
                   Tags::stateTransition, workspace);
    AddLinkedNames(attributes, object.Child("RELATED-DIAG-COMM-REFS"), "RELATED-DIAG-COMM-REF", L"RELATED-DIAG-COMM",
                   Tags::diagComm, workspace);
    for (const Element name : Children(object.Take("PROTOCOL-SNREFS"), "PROTOCOL-SNREF"))
        AddAttribute(attributes, L"PROTOCOL", Widen(name.Taken().Attribute("SHORT-NAME")));
    for (const char* tag : {"POS-RESPONSE-SUPPRESSABLE", "POS-RESPONSE-SUPPRESSIBLE"})
        AddLeaves(attributes, object.Child(tag));
}

void AddLibraries(ImportDame::VAttributeCollection& attributes, Element programs, const Workspace& workspace) {
    if (!programs)
        return;
    WalkElements(programs, [&](Element at, std::uint32_t) {
        if (at.Is("LIBRARY-REF"))
            if (const Element library = workspace.Follow(at, Tags::library))
                AddLibrary(attributes, library);
        return true;
    });
}

} // namespace OdxImport
