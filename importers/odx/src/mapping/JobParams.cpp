#include "mapping/JobParams.h"

#include "text/Utf8.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>

#include <array>

namespace OdxImport {

namespace {

struct List {
    const char* tag;
    const char* item;
};

constexpr std::array<List, 3> lists{
    {{"INPUT-PARAMS", "INPUT-PARAM"}, {"OUTPUT-PARAMS", "OUTPUT-PARAM"}, {"NEG-OUTPUT-PARAMS", "NEG-OUTPUT-PARAM"}}};

void AddJobParam(ImportDame::VAttribute& made, Element param, const Naming& naming, const Workspace& workspace) {
    naming.Describe(made, param);
    made.SetQualifier(Widen(param.Tag()).c_str());
    made.SetValue(Naming::NameOf(param).c_str());
    ImportDame::VAttributeCollection& details = made.Attributes();
    AddXmlAttribute(details, param, "SEMANTIC");
    if (const Element dataObject = workspace.Follow(param.Child("DOP-BASE-REF"), anyDataObject.kinds))
        AddAttribute(details, L"DOP-BASE", Naming::MentionOf(dataObject));
    if (const Element value = param.Take("PHYSICAL-DEFAULT-VALUE"))
        AddAttribute(details, L"PHYSICAL-DEFAULT-VALUE", Widen(value.Text()));
}

} // namespace

void AddJobParams(ImportDame::VAttributeCollection& attributes, Element job, const Naming& naming,
                  const Workspace& workspace) {
    for (const List& list : lists)
        for (const Element param : Children(job.Take(list.tag), list.item))
            AddJobParam(attributes.AddNewAttribute(), param, naming, workspace);
}

} // namespace OdxImport
