#ifndef ODXIMPORT_MAPPING_NAMING_H
#define ODXIMPORT_MAPPING_NAMING_H

#include "mapping/Workspace.h"

#include <string>
#include <string_view>

namespace ImportDame {
class VAttributeCollection;
class VQualified;
class VText;
} // namespace ImportDame

namespace OdxImport {

/// Names, descriptions, identifiers and whatever goes with every object.
class Naming {
public:
    explicit Naming(Workspace& workspace) : m_workspace(workspace) {}

    /// Short name, long name, description with their text identifiers, ID, special data, administrative data, and the
    /// layer it is from. Settles the element and what was read of it as imported.
    void Describe(ImportDame::VQualified& object, Element element) const;

    /// The short name, or the ID where there is none.
    static std::wstring NameOf(Element element);

    /// The same as other objects mention it.
    static std::wstring MentionOf(Element element);

private:
    Workspace& m_workspace;
};

/// A name as other objects mention it: one of no honest length is shortened, lest all of them hold the whole.
std::wstring Mention(std::string_view name);

/// The text of an element, or as much of it as fits, and its text identifier.
void SetText(ImportDame::VText& text, Element element, std::size_t mostBytes = std::string::npos);

/// All text of an element and of what is in it, paragraphs on lines of their own.
std::string FlatText(Element element);

void AddAttribute(ImportDame::VAttributeCollection& attributes, const wchar_t* name, const std::wstring& value);
/// Adds the XML attribute where the element has it.
void AddXmlAttribute(ImportDame::VAttributeCollection& attributes, Element element, const char* name);

} // namespace OdxImport

#endif
