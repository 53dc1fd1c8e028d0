#ifndef ODXIMPORT_XML_XMLTREE_H
#define ODXIMPORT_XML_XMLTREE_H

#include "links/NameTable.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// An element. Elements stand in document order: the first child follows its parent, and what comes behind a subtree
/// follows the subtree.
struct XmlNode {
    std::uint32_t size = 1;       ///< elements of the subtree, this one included
    std::uint32_t parent = 0;     ///< so many elements before this one; 0 for the root
    std::uint32_t offset = 0;     ///< of the name in the text
    std::uint32_t text = 0;       ///< offset of what stands before the first child; 0: nothing does
    std::uint32_t attributes = 0; ///< number of the first one; the last one is before the next element's first
    std::uint32_t tag : 31 = 0;   ///< number of the name
    std::uint32_t isLast : 1 = 1; ///< of the children of its parent
};

/// The elements of a document in a third of the memory that the parser's own tree takes. Names and texts lie, each with
/// a zero behind it, in the document's text, which outlives the tree. Namespace prefixes are gone, and texts that were
/// in pieces are whole.
class XmlTree {
public:
    struct Attribute {
        std::uint32_t name;  ///< number
        std::uint32_t value; ///< offset; 0: empty
    };

    XmlTree() = default;

    /// `elements` and `attributes` are guesses at how many will be added.
    XmlTree(const char* text, std::size_t elements, std::size_t attributes) : m_text(text) {
        m_nodes.reserve(elements);
        m_attributes.reserve(attributes);
    }

    const std::vector<XmlNode>& Nodes() const { return m_nodes; }

    std::uint32_t NumberOf(const XmlNode& node) const { return static_cast<std::uint32_t>(&node - m_nodes.data()); }

    std::string_view NameOf(std::uint32_t number) const { return m_names.Entries()[number].name; }

    const char* At(std::uint32_t offset) const { return offset == 0 ? "" : m_text + offset; }

    std::span<const Attribute> AttributesOf(const XmlNode& node) const {
        const std::uint32_t number = NumberOf(node) + 1;
        const std::size_t end = number == m_nodes.size() ? m_attributes.size() : m_nodes[number].attributes;
        return {m_attributes.data() + node.attributes, end - node.attributes};
    }

    /// Where the value of the attribute begins; null when the element has no such attribute.
    const char* ValueOf(const XmlNode& node, std::string_view name) const {
        for (const Attribute& attribute : AttributesOf(node))
            if (NameOf(attribute.name) == name)
                return At(attribute.value);
        return nullptr;
    }

    /// The first text in the element itself, wherever among its children it stands.
    const char* TextOf(const XmlNode& node) const {
        return node.text != 0 || m_tails.empty() ? At(node.text) : FirstTailIn(node);
    }

    /// What stands between the element and the next one, or the end of its parent.
    const char* TailOf(const XmlNode& node) const {
        const auto found = m_tails.find(NumberOf(node));
        return found == m_tails.end() ? "" : At(found->second);
    }

private:
    friend class TreeBuilder;

    const char* FirstTailIn(const XmlNode& node) const {
        const char* tail = "";
        for (const XmlNode* child = &node + 1; child < &node + node.size && *tail == '\0'; child += child->size)
            tail = TailOf(*child);
        return tail;
    }

    const char* m_text = nullptr;
    std::vector<XmlNode> m_nodes;
    std::vector<Attribute> m_attributes;
    NameTable<std::uint32_t> m_names;                         ///< their numbers, all in scope 0
    std::unordered_map<std::uint32_t, std::uint32_t> m_tails; ///< offsets of texts behind elements, by element
};

} // namespace OdxImport

#endif
