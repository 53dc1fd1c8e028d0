#include "xml/XmlDocument.h"

#include "xml/Entities.h"
#include "xml/Tidy.h"
#include "xml/Walk.h"

#include <new>
#include <string_view>
#include <vector>

namespace OdxImport {

namespace {

/// A name stands among the first children; long lists, which have none, are not searched for it.
std::string_view ShortNameOf(pugi::xml_node node) {
    constexpr int mostBefore = 8;
    pugi::xml_node child = FirstElement(node);
    for (int before = 0; child && before < mostBefore; ++before, child = NextElement(child))
        if (std::string_view(child.name()) == "SHORT-NAME")
            return Trimmed(child.child_value());
    return {};
}

} // namespace

std::unique_ptr<XmlDocument> XmlDocument::Parse(std::string name, DecodedText&& text, std::uint32_t nesting,
                                                const Reporter& reporter) {
    std::unique_ptr<XmlDocument> document(new XmlDocument(std::move(name), std::move(text)));
    if (!document->Load(reporter) || !document->FindRoot(reporter) || !Tidy(*document, nesting, reporter))
        return nullptr;
    return document;
}

XmlDocument::XmlDocument(std::string name, DecodedText&& text) : m_name(std::move(name)), m_text(std::move(text)) {
    std::size_t length = m_text.bytes.Size() - m_text.start;
    m_lines = LineTable(m_text.bytes.Data() + m_text.start, length);
    m_text.bytes.Shorten(m_text.start + length);
    m_fates = Fates(m_text.bytes.Size());
}

bool XmlDocument::Load(const Reporter& reporter) {
    const std::string_view xml = m_text.bytes.View().substr(m_text.start);
    if (const auto unknown = FindUnknownEntities(xml)) {
        Report(reporter, Rule::EntityUnknown, unknown->offset,
               "&" + unknown->name + "; is not one of XML; kept as text (" + std::to_string(unknown->count) +
                   " such places in this document)");
        for (const std::size_t offset : unknown->characters) // the parser would make characters of them
            m_text.bytes.Data()[m_text.start + offset] = '?';
    }
    constexpr unsigned flags =
        (pugi::parse_default | pugi::parse_embed_pcdata | pugi::parse_doctype | pugi::parse_fragment) &
        ~pugi::parse_declaration;
    const pugi::xml_parse_result result =
        m_dom.load_buffer_inplace(m_text.bytes.Data() + m_text.start, xml.size(), flags, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!result) {
        Report(reporter, Rule::NotXml, static_cast<std::size_t>(result.offset),
               std::string("not XML: ") + result.description());
        return false;
    }
    return true;
}

bool XmlDocument::FindRoot(const Reporter& reporter) {
    for (const pugi::xml_node node : m_dom.children()) {
        if (node.type() == pugi::node_doctype) {
            m_root ? void() : Report(reporter, Rule::DoctypeIgnored, 0, "the document has a DOCTYPE; it is not read");
        } else if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
            Report(reporter, Rule::NotXml, 0, "not XML: there is text outside the root element");
            return false;
        } else if (node.type() == pugi::node_element && m_root) {
            Report(reporter, Rule::NotXml, KeyOf(node), "not XML: there is a second root element");
            return false;
        } else if (node.type() == pugi::node_element) {
            m_root = node;
        }
    }
    if (!m_root)
        Report(reporter, Rule::NotXml, 0, "not XML: there is no root element");
    return static_cast<bool>(m_root);
}

void XmlDocument::Report(const Reporter& reporter, Rule rule, std::size_t offset, std::string message) const {
    const Position position = m_lines.Of(offset);
    reporter.Report(rule, {m_name, position.line, position.column, {}}, std::move(message));
}

Location XmlDocument::LocationOf(pugi::xml_node node) const {
    const Position position = m_lines.Of(KeyOf(node));
    // The offset is that of the name; the element begins one byte before it.
    return {m_name, position.line, position.column > 1 ? position.column - 1 : 1, PathOf(node)};
}

std::string XmlDocument::PathOf(pugi::xml_node node) const {
    std::vector<std::string_view> names;
    for (; node && node.type() == pugi::node_element; node = node.parent())
        if (const std::string_view name = ShortNameOf(node); !name.empty())
            names.push_back(name);
    std::string path;
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        path.append("/").append(*name);
    return path;
}

} // namespace OdxImport
