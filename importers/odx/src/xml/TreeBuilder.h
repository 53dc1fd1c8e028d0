#ifndef ODXIMPORT_XML_TREEBUILDER_H
#define ODXIMPORT_XML_TREEBUILDER_H

#include "xml/XmlTree.h"

#include <cstdint>
#include <map>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace OdxImport {

/// How many elements and attributes a text has, or some more.
struct TreeSize {
    /// Of a text that is not yet parsed.
    static TreeSize Of(std::string_view xml);

    std::size_t elements = 0;
    std::size_t attributes = 0;
};

/// Makes the tree of a document out of the parser's. Pieces of texts are moved together in the text itself, which the
/// parser has parsed in place.
class TreeBuilder {
public:
    TreeBuilder(char* text, const TreeSize& size) : m_text(text), m_tree(text, size.elements, size.attributes) {}

    /// Adds the element and what is in it. When elements are nested deeper than `nesting` the tree ends with the first
    /// of these.
    void Add(pugi::xml_node root, std::uint32_t nesting);

    bool IsTooDeep() const { return m_isTooDeep; }

    struct Prefix {
        std::string name;
        std::uint32_t element; ///< number of the first one that uses it
    };

    /// The namespace prefixes that are used and not declared, in alphabetical order.
    std::vector<Prefix> UnboundPrefixes() const;

    /// Attributes that their elements have already.
    struct Repetitions {
        std::string name;      ///< of the first one
        std::uint32_t element; ///< number of the first one's
        std::size_t count = 0;
    };

    const Repetitions& RepeatedAttributes() const { return m_repeated; }

    XmlTree Take() { return std::move(m_tree); }

private:
    static constexpr std::uint32_t none = 0xFFFFFFFFu;

    void Open(pugi::xml_node node);
    void Close();
    void AddAttributes(pugi::xml_node node);
    void AddText(const char* piece);
    void NoteUse(std::uint32_t name);
    std::uint32_t NumberOfName(std::string_view name);

    std::uint32_t OffsetOf(const char* text) const { return static_cast<std::uint32_t>(text - m_text); }

    void Use(std::string_view prefix);

    char* m_text;
    XmlTree m_tree;
    std::vector<std::uint32_t> m_open; ///< the element that is being added, and those around it
    std::uint32_t m_closed = none;     ///< the last child of the innermost of these so far
    char* m_textEnd = nullptr;         ///< of the text that a further piece belongs to; null before its first piece
    bool m_isTooDeep = false;
    std::map<std::string, std::uint32_t, std::less<>> m_used; ///< prefixes, with the first element that has them
    std::set<std::string, std::less<>> m_declared;
    std::vector<std::uint32_t> m_lastUse; ///< by number of a name: the last element that has it as an attribute
    Repetitions m_repeated{};
};

} // namespace OdxImport

#endif
