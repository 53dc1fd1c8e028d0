#include "xml/XmlDocument.h"

#include "report/Words.h"
#include "xml/Element.h"
#include "xml/Entities.h"
#include "xml/TreeBuilder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <pugixml.hpp>
#include <string_view>
#include <vector>

namespace OdxImport {

namespace {

/// A name stands among the first children; long lists, which have none, are not searched for it.
std::string_view ShortNameOf(Element element) {
    constexpr int mostBefore = 8;
    Element child = element.FirstChild();
    for (int before = 0; child && before < mostBefore; ++before, child = child.Next())
        if (child.Is("SHORT-NAME"))
            return child.Text();
    return {};
}

/// Whether one of eight bytes is less than a blank.
bool HasLowByte(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return ((word - 0x2020202020202020) & ~word & 0x8080808080808080) != 0;
}

/// Where the next control character is that XML does not allow, or npos.
std::size_t FindControl(std::string_view text, std::size_t from) {
    const auto isControl = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
    };
    for (; from < text.size(); ++from) {
        while (text.size() - from >= sizeof(std::uint64_t) && !HasLowByte(text.data() + from))
            from += sizeof(std::uint64_t);
        if (from < text.size() && isControl(text[from]))
            return from;
    }
    return std::string_view::npos;
}

} // namespace

/// Fills a document from its text.
class XmlDocument::Parser {
public:
    Parser(XmlDocument& document, const Reporter& reporter)
        : m_document(document), m_reporter(reporter), m_xml(document.m_text.bytes.Data() + document.m_text.start),
          m_length(document.m_text.bytes.Size() - document.m_text.start) {}

    bool Parse(std::uint32_t nesting) {
        if (m_length > std::numeric_limits<std::uint32_t>::max()) {
            m_reporter.Report(Rule::DocumentTooLarge, {m_document.m_name, 0, 0, {}},
                              "the text of a document can have 4 GiB at most");
            return false;
        }
        CutFilling();
        if (HasNul())
            return false;
        ReportControls();
        RepairEntities();
        const TreeSize size = TreeSize::Of({m_xml, m_length});
        pugi::xml_document dom;
        if (!Load(dom))
            return false;
        const pugi::xml_node root = FindRoot(dom);
        return root && MakeTree(root, size, nesting);
    }

private:
    /// Files that are filled up with NUL lose nothing.
    void CutFilling() { m_length = std::string_view(m_xml, m_length).find_last_not_of('\0') + 1; }

    /// The parser would take it for the end of the text.
    bool HasNul() const {
        const std::size_t at = std::string_view(m_xml, m_length).find('\0');
        if (at == std::string_view::npos)
            return false;
        Report(Rule::NotXml, at, "not XML: the character U+0000 is not allowed");
        return true;
    }

    void ReportControls() const {
        const std::string_view text(m_xml, m_length);
        const std::size_t first = FindControl(text, 0);
        std::size_t count = 0;
        for (std::size_t at = first; at != std::string_view::npos; at = FindControl(text, at + 1))
            ++count;
        if (count == 0)
            return;
        static constexpr char digits[] = "0123456789ABCDEF";
        const std::string code = {digits[text[first] >> 4], digits[text[first] & 15]};
        m_reporter.Report(Rule::XmlLoose, LocationOf(first),
                          Words({"the character U+00", code, " is not allowed in XML; kept (", std::to_string(count),
                                 " such places in this document)"}),
                          Outcome::None);
    }

    void RepairEntities() {
        const auto unknown = FindUnknownEntities({m_xml, m_length});
        if (!unknown)
            return;
        Report(Rule::EntityUnknown, unknown->offset,
               Words({"&", unknown->name, "; is not one of XML; kept as text",
                      unknown->characters.empty() ? "" : ", with ? for the & of numbers that no character has", " (",
                      std::to_string(unknown->count), " such places in this document)"}));
        for (const std::size_t offset : unknown->characters) // the parser would make characters of them
            m_xml[offset] = '?';
    }

    bool Load(pugi::xml_document& dom) {
        constexpr unsigned flags =
            (pugi::parse_default | pugi::parse_embed_pcdata | pugi::parse_doctype | pugi::parse_fragment) &
            ~pugi::parse_declaration;
        const pugi::xml_parse_result result = dom.load_buffer_inplace(m_xml, m_length, flags, pugi::encoding_utf8);
        if (result.status == pugi::status_out_of_memory)
            throw std::bad_alloc();
        if (!result)
            Report(Rule::NotXml, static_cast<std::size_t>(result.offset),
                   std::string("not XML: ") + result.description());
        return static_cast<bool>(result);
    }

    std::size_t OffsetOfText(pugi::xml_node node) const {
        const std::string_view text = node.value();
        const std::size_t blanks = std::min(text.find_first_not_of(" \t\r\n"), text.size());
        return static_cast<std::size_t>(node.value() - m_xml) + blanks;
    }

    /// Its value begins behind "<!DOCTYPE" and blanks.
    std::size_t OffsetOfDoctype(pugi::xml_node node) const {
        const auto value = static_cast<std::size_t>(node.value() - m_xml);
        const std::size_t found = std::string_view(m_xml, value).rfind("<!DOCTYPE");
        return found == std::string_view::npos ? value : found;
    }

    /// None when there is not exactly one, which is reported.
    pugi::xml_node FindRoot(const pugi::xml_document& dom) const {
        pugi::xml_node root;
        for (const pugi::xml_node node : dom.children()) {
            if (node.type() == pugi::node_doctype) {
                root
                    ? void()
                    : Report(Rule::DoctypeIgnored, OffsetOfDoctype(node), "the document has a DOCTYPE; it is not read");
            } else if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
                Report(Rule::NotXml, OffsetOfText(node), "not XML: there is text outside the root element");
                return {};
            } else if (node.type() == pugi::node_element && root) {
                Report(Rule::NotXml, static_cast<std::size_t>(node.name() - m_xml),
                       "not XML: there is a second root element");
                return {};
            } else if (node.type() == pugi::node_element) {
                root = node;
            }
        }
        if (!root)
            Report(Rule::NotXml, 0, "not XML: there is no root element");
        return root;
    }

    bool MakeTree(pugi::xml_node root, const TreeSize& size, std::uint32_t nesting) {
        TreeBuilder builder(m_xml, size);
        builder.Add(root, nesting);
        m_document.m_tree = builder.Take();
        const std::vector<XmlNode>& nodes = m_document.m_tree.Nodes();
        if (builder.IsTooDeep()) {
            m_reporter.Report(Rule::NestingTooDeep, Element(nodes.back(), m_document).Where(),
                              "elements are nested deeper than " + std::to_string(nesting));
            return false;
        }
        for (const TreeBuilder::Prefix& prefix : builder.UnboundPrefixes())
            m_reporter.Report(Rule::PrefixUnbound, Element(nodes[prefix.element], m_document).Where(),
                              "the prefix \"" + prefix.name + ":\" is not declared; read as if it were");
        if (const TreeBuilder::Repetitions& repeated = builder.RepeatedAttributes(); repeated.count != 0)
            m_reporter.Report(Rule::XmlLoose, Element(nodes[repeated.element], m_document).Where(),
                              Words({"the attribute ", repeated.name, " is there twice; the first counts (",
                                     std::to_string(repeated.count), " such places in this document)"}));
        m_document.m_fates = Fates(nodes.size());
        return true;
    }

    void Report(Rule rule, std::size_t offset, std::string message) const {
        m_reporter.Report(rule, LocationOf(offset), std::move(message));
    }

    Location LocationOf(std::size_t offset) const {
        const Position position = m_document.m_lines.Of(offset);
        return {m_document.m_name, position.line, position.column, {}};
    }

    XmlDocument& m_document;
    const Reporter& m_reporter;
    char* m_xml;
    std::size_t m_length;
};

std::unique_ptr<XmlDocument> XmlDocument::Parse(std::string name, DecodedText&& text, std::uint32_t nesting,
                                                const Reporter& reporter) {
    std::unique_ptr<XmlDocument> document(new XmlDocument(std::move(name), std::move(text)));
    if (!Parser(*document, reporter).Parse(nesting))
        return nullptr;
    return document;
}

XmlDocument::XmlDocument(std::string name, DecodedText&& text) : m_name(std::move(name)), m_text(std::move(text)) {
    std::size_t length = m_text.bytes.Size() - m_text.start;
    m_lines = LineTable(m_text.bytes.Data() + m_text.start, length);
    m_text.bytes.Shorten(m_text.start + length);
}

Element XmlDocument::Root() {
    return {m_tree.Nodes().front(), *this};
}

Location XmlDocument::LocationOf(Element element) const {
    if (!element)
        return {m_name, 1, 1, {}};
    const Position position = m_lines.Of(element.Offset());
    // The offset is that of the name; the element begins one byte before it.
    return {m_name, position.line, position.column > 1 ? position.column - 1 : 1, PathOf(element)};
}

std::size_t XmlDocument::LengthOf(Element element) const {
    const std::vector<XmlNode>& nodes = m_tree.Nodes();
    const std::size_t behind = element.Number() + nodes[element.Number()].size;
    const std::size_t end = behind < nodes.size() ? nodes[behind].offset : m_text.bytes.Size() - m_text.start;
    return end - element.Offset();
}

std::string XmlDocument::PathOf(Element element) {
    std::vector<std::string_view> names;
    for (; element; element = element.Parent())
        if (const std::string_view name = ShortNameOf(element); !name.empty())
            names.push_back(name);
    std::string path;
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        path.append("/").append(Shortened(*name, longestName));
    return path;
}

} // namespace OdxImport
