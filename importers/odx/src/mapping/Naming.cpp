#include "mapping/Naming.h"

#include "mapping/SpecialData.h"
#include "report/Words.h"
#include "text/Utf8.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/Text.h>

namespace OdxImport {

namespace {

bool IsBlock(std::string_view tag) {
    return tag == "p" || tag == "li" || tag == "br" || tag == "ol" || tag == "ul" || tag == "EXTERNAL-DOC";
}

/// Formats words and no parts of them.
bool IsWords(Element element) {
    const std::string_view tag = element.Tag();
    return tag == "b" || tag == "i" || tag == "u";
}

/// Appends with runs of white space as one blank.
void AppendCollapsed(std::string& out, std::string_view text) {
    for (const char c : text) {
        if (c != ' ' && c != '\n' && c != '\t' && c != '\r')
            out += c;
        else if (!out.empty() && out.back() != ' ' && out.back() != '\n')
            out += ' ';
    }
}

/// Where the document is, with its title as the name.
void AddExternalDocument(ImportDame::VAttributeCollection& attributes, Element document) {
    ImportDame::VAttribute& attribute = attributes.AddNewAttribute();
    attribute.SetQualifier(L"EXTERNAL-DOC");
    attribute.SetValue(Widen(document.Attribute("HREF")).c_str());
    SetText(attribute.Name(), document);
}

void BreakLine(std::string& out) {
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    if (!out.empty() && out.back() != '\n')
        out += '\n';
}

} // namespace

std::string FlatText(Element element) {
    std::string out;
    const auto leave = [&out](Element at) {
        if (IsBlock(at.Tag()))
            BreakLine(out);
        AppendCollapsed(out, at.TextBehind());
        // A blank alone between two tags is not kept in the tree.
        if (at.TextBehind().empty() && IsWords(at) && IsWords(at.Next()))
            AppendCollapsed(out, " ");
    };
    for (Element at = element;;) {
        if (IsBlock(at.Tag()))
            BreakLine(out);
        AppendCollapsed(out, at.OwnText());
        if (at.FirstChild()) {
            at = at.FirstChild();
            continue;
        }
        for (; !(at == element) && at.IsLast(); at = at.Parent())
            leave(at);
        if (at == element)
            break;
        leave(at);
        at = at.Next();
    }
    while (!out.empty() && (out.back() == ' ' || out.back() == '\n'))
        out.pop_back();
    return out;
}

std::wstring Mention(std::string_view name) {
    return Widen(Shortened(name, longestName));
}

void SetText(ImportDame::VText& text, Element element, std::size_t mostBytes) {
    if (!element)
        return;
    std::string whole = element.FirstChild() ? FlatText(element) : std::string(element.Text());
    if (whole.size() > mostBytes)
        whole = Shortened(whole, mostBytes);
    text.SetText(Widen(whole).c_str());
    if (element.HasAttribute("TI"))
        text.SetTextId(Widen(element.Attribute("TI")).c_str());
    element.TakeAll();
}

void AddAttribute(ImportDame::VAttributeCollection& attributes, const wchar_t* name, const std::wstring& value) {
    ImportDame::VAttribute& attribute = attributes.AddNewAttribute();
    attribute.SetQualifier(name);
    attribute.SetValue(value.c_str());
}

void AddXmlAttribute(ImportDame::VAttributeCollection& attributes, Element element, const char* name) {
    if (element.HasAttribute(name))
        AddAttribute(attributes, Widen(name).c_str(), Widen(element.Attribute(name)));
}

std::wstring Naming::NameOf(Element element) {
    const std::string_view name = element.ShortName();
    return Widen(name.empty() ? element.Attribute("ID") : name);
}

std::wstring Naming::MentionOf(Element element) {
    const std::string_view name = element.ShortName();
    return Mention(name.empty() ? element.Attribute("ID") : name);
}

void Naming::Describe(ImportDame::VQualified& object, Element element) const {
    element.Taken().Take("SHORT-NAME");
    object.SetQualifier(NameOf(element).c_str());
    SetText(object.Name(), element.Child("LONG-NAME"));
    SetText(object.Description(), element.Child("DESC"));
    if (element.HasAttribute("ID"))
        object.SetObjectIdentifier(Widen(element.Attribute("ID")).c_str());
    object.SetSourceInfo(m_workspace.SourceOf(element).c_str());
    for (const Element document : Children(element.Child("DESC").Child("EXTERNAL-DOCS"), "EXTERNAL-DOC"))
        AddExternalDocument(object.Attributes(), document);
    for (const char* name : {"OID", "IS-VISIBLE"})
        AddXmlAttribute(object.Attributes(), element, name);
    AddSpecialData(object.Attributes(), element, m_workspace);
    AddAdminData(object.Attributes(), element, m_workspace);
}

} // namespace OdxImport
