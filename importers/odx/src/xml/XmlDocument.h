#ifndef ODXIMPORT_XML_XMLDOCUMENT_H
#define ODXIMPORT_XML_XMLDOCUMENT_H

#include "report/Reporter.h"
#include "text/Encoding.h"
#include "xml/Fates.h"
#include "xml/LineTable.h"
#include "xml/XmlTree.h"

#include <cstdint>
#include <memory>
#include <string>

namespace OdxImport {

class Element;

/// One parsed document: its text and the tree of what is in it.
class XmlDocument {
public:
    /// Null when the text is no XML or is nested too deep, which is reported.
    static std::unique_ptr<XmlDocument> Parse(std::string name, DecodedText&& text, std::uint32_t nesting,
                                              const Reporter& reporter);

    const std::string& Name() const { return m_name; }

    Element Root();

    const XmlTree& Tree() const { return m_tree; }

    Location LocationOf(Element element) const;

    /// Bytes of the text from the element's name to the next element behind it.
    std::size_t LengthOf(Element element) const;

    /// Short names from the root to the element.
    static std::string PathOf(Element element);

    Fates& FatesOfElements() { return m_fates; }

private:
    class Parser;

    XmlDocument(std::string name, DecodedText&& text);

    std::string m_name;
    DecodedText m_text;
    LineTable m_lines;
    XmlTree m_tree;
    Fates m_fates;
};

} // namespace OdxImport

#endif
