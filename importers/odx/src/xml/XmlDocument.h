#ifndef ODXIMPORT_XML_XMLDOCUMENT_H
#define ODXIMPORT_XML_XMLDOCUMENT_H

#include "report/Reporter.h"
#include "text/Encoding.h"
#include "xml/Fates.h"
#include "xml/LineTable.h"

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>

namespace OdxImport {

/// One parsed document. The tree lies in the document's own text: the text is parsed in place and lives as long as the
/// tree. Tags and attributes have lost their namespace prefixes, and text that was in pieces is whole.
class XmlDocument {
public:
    /// Null when the text is no XML or is nested too deep, which is reported.
    static std::unique_ptr<XmlDocument> Parse(std::string name, DecodedText&& text, std::uint32_t nesting,
                                              const Reporter& reporter);

    const std::string& Name() const { return m_name; }

    pugi::xml_node Root() const { return m_root; }

    Location LocationOf(pugi::xml_node node) const;
    /// Short names from the root to the node.
    std::string PathOf(pugi::xml_node node) const;

    Fates& FatesOfElements() { return m_fates; }

    static std::size_t KeyOf(pugi::xml_node node) { return static_cast<std::size_t>(node.offset_debug()); }

private:
    XmlDocument(std::string name, DecodedText&& text);

    bool Load(const Reporter& reporter);
    bool FindRoot(const Reporter& reporter);
    void Report(const Reporter& reporter, Rule rule, std::size_t offset, std::string message) const;

    std::string m_name;
    DecodedText m_text;
    LineTable m_lines;
    pugi::xml_document m_dom;
    pugi::xml_node m_root;
    Fates m_fates;
};

} // namespace OdxImport

#endif
