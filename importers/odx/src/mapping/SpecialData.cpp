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

std::string NameOfGroup(Element group, const Workspace& workspace) {
    if (group.HasAttribute("SI"))
        return std::string(group.Attribute("SI"));
    if (const Element caption = group.Child("SDG-CAPTION"))
        return std::string(caption.ShortName());
    const Element caption = workspace.Follow(group.Child("SDG-CAPTION-REF"), Tags::caption);
    return caption ? std::string(caption.ShortName()) : std::string();
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
        } else if (at.Is("SDG-CAPTION")) {
            at.TakeAll();
        }
        return false;
    });
}

void AddSpecialData(ImportDame::VAttributeCollection& attributes, Element element, const Workspace& workspace) {
    ForEachSpecialDatum(element, workspace, [&](const std::string& path, Element datum) {
        ImportDame::VAttribute& attribute = attributes.AddNewAttribute();
        attribute.SetQualifier(Widen(path).c_str());
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

void AddAdminData(ImportDame::VAttributeCollection& attributes, Element element) {
    AddLeaves(attributes, element.Child("ADMIN-DATA"));
}

} // namespace OdxImport
