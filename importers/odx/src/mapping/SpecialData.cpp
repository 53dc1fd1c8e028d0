#include "mapping/SpecialData.h"

#include "mapping/Naming.h"
#include "report/Words.h"
#include "text/Utf8.h"
#include "xml/Walk.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Text.h>

#include <vector>

namespace OdxImport {

namespace {

/// What says of a limit whether it is open.
constexpr const char* intervalType = "INTERVAL-TYPE";

/// A caption says its name alone, and only where there is no other.
std::string NameOfGroup(Element group, const Workspace& workspace) {
    const Element own = group.Child("SDG-CAPTION"), link = group.Child("SDG-CAPTION-REF");
    if (group.HasAttribute("SI")) {
        for (const Element unused : {own, link})
            unused.LeaveOut(Fate::NotRepresented, "the group of special data has the name of its SI");
        return std::string(group.Attribute("SI"));
    }
    const Element caption = own ? own : workspace.Follow(link, Tags::caption);
    return caption ? std::string(caption.Taken().Take("SHORT-NAME").Text()) : std::string();
}

std::string Join(const std::string& path, std::string_view name) {
    return Words({path, path.empty() || name.empty() ? "" : "/", name});
}

/// What everything below the group or the element has in front of its own name.
std::string OuterPath(const std::string& path, std::string_view name) {
    constexpr std::size_t longestPath = 1024;
    return Shortened(Join(path, Shortened(name, longestName)), longestPath);
}

/// What an element without elements in it says: a link by where it leads.
std::string_view ValueOf(Element leaf) {
    for (const char* link : {"ID-REF", "SHORT-NAME"})
        if (leaf.HasAttribute(link))
            return leaf.Attribute(link);
    return leaf.Text();
}

} // namespace

void ForEachSpecialDatum(Element element, const Workspace& workspace, const SpecialDatumTaker& take) {
    const Element list = element.Child("SDGS");
    if (!list)
        return;
    list.Taken();
    std::vector<std::string> paths; ///< of the open groups, by depth
    WalkElements(list, [&](Element at, std::uint32_t depth) {
        if (depth == 1)
            return true;
        paths.resize(depth - 2);
        const std::string outer = paths.empty() ? std::string() : paths.back();
        if (at.Is("SD")) {
            take(Join(outer, at.Attribute("SI")), at.Taken());
        } else if (at.Is("SDG")) {
            paths.push_back(OuterPath(outer, NameOfGroup(at.Taken(), workspace)));
            return true;
        }
        return false;
    });
}

void AddSpecialData(ImportDame::VAttributeCollection& attributes, Element element, const Workspace& workspace,
                    const std::string& outerPath) {
    ForEachSpecialDatum(element, workspace, [&](const std::string& path, Element datum) {
        ImportDame::VAttribute& attribute = attributes.AddNewAttribute();
        attribute.SetQualifier(Widen(Join(outerPath, path)).c_str());
        attribute.SetValue(Widen(datum.Text()).c_str());
        if (datum.HasAttribute("TI"))
            attribute.Name().SetTextId(Widen(datum.Attribute("TI")).c_str());
        if (datum.HasAttribute("SD"))
            attribute.SetSourceInfo(Widen(datum.Attribute("SD")).c_str());
    });
}

void AddLeaves(ImportDame::VAttributeCollection& attributes, Element part) {
    if (!part)
        return;
    std::vector<std::string> paths;
    WalkElements(part, [&](Element at, std::uint32_t depth) {
        if (at.Is("SDGS"))
            return false;
        at.Taken();
        paths.resize(depth - 1);
        paths.push_back(OuterPath(paths.empty() ? std::string() : paths.back(), at.Tag()));
        if (!at.FirstChild()) {
            AddAttribute(attributes, Widen(paths.back()).c_str(), Widen(ValueOf(at)));
            if (at.HasAttribute(intervalType))
                AddAttribute(attributes, Widen(Words({paths.back(), "/", intervalType})).c_str(),
                             Widen(at.Attribute(intervalType)));
        }
        return true;
    });
}

void AddAdminData(ImportDame::VAttributeCollection& attributes, Element element, const Workspace& workspace) {
    const Element data = element.Child("ADMIN-DATA");
    AddLeaves(attributes, data);
    for (const Element info : Children(data.Child("COMPANY-DOC-INFOS"), "COMPANY-DOC-INFO"))
        AddSpecialData(attributes, info, workspace, "ADMIN-DATA/COMPANY-DOC-INFOS/COMPANY-DOC-INFO");
}

} // namespace OdxImport
