#include "xml/TreeBuilder.h"

#include <cstring>

namespace OdxImport {

namespace {

constexpr std::size_t mostPrefixes = 16;

} // namespace

TreeSize TreeSize::Of(std::string_view xml) {
    TreeSize size;
    for (std::size_t at = 0; at + 1 < xml.size(); ++at) { // without branches this is done with vectors
        const char next = xml[at + 1];
        size.elements += static_cast<std::size_t>((xml[at] == '<') & (next != '/'));
        size.attributes += static_cast<std::size_t>((xml[at] == '=') & ((next == '"') | (next == '\'')));
    }
    return size;
}

void TreeBuilder::Add(pugi::xml_node root, std::uint32_t nesting) {
    Open(root);
    pugi::xml_node parent = root, at = root.first_child();
    while (!m_open.empty() && !m_isTooDeep) {
        const pugi::xml_node_type type = at.type();
        if (type == pugi::node_element) {
            Open(at);
            m_isTooDeep = m_open.size() > nesting;
            parent = at;
            at = at.first_child();
        } else if (at) {
            if (type == pugi::node_pcdata || type == pugi::node_cdata)
                AddText(at.value());
            at = at.next_sibling();
        } else {
            Close();
            at = parent.next_sibling();
            parent = parent.parent();
        }
    }
    while (!m_open.empty())
        Close();
}

void TreeBuilder::Open(pugi::xml_node node) {
    const auto number = static_cast<std::uint32_t>(m_tree.m_nodes.size());
    if (m_closed != none)
        m_tree.m_nodes[m_closed].isLast = 0;
    XmlNode made;
    made.parent = m_open.empty() ? 0 : number - m_open.back();
    made.attributes = static_cast<std::uint32_t>(m_tree.m_attributes.size());
    made.offset = OffsetOf(node.name());
    m_tree.m_nodes.push_back(made);
    m_open.push_back(number);
    m_closed = none;
    m_textEnd = nullptr;

    std::string_view name = node.name();
    if (const std::size_t colon = name.find(':'); colon != std::string_view::npos) {
        Use(name.substr(0, colon));
        name.remove_prefix(colon + 1);
    }
    m_tree.m_nodes.back().tag = NumberOfName(name) & 0x7FFFFFFFu;
    AddAttributes(node);
    AddText(node.value());
}

void TreeBuilder::AddAttributes(pugi::xml_node node) {
    const bool hasSeveral = node.first_attribute() != node.last_attribute();
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        std::string_view name = attribute.name();
        if (hasSeveral)
            NoteUse(NumberOfName(name));
        if (const std::size_t colon = name.find(':'); colon != std::string_view::npos) {
            if (name.substr(0, colon) == "xmlns") {
                m_declared.emplace(name.substr(colon + 1));
            } else {
                Use(name.substr(0, colon));
                name.remove_prefix(colon + 1);
            }
        }
        const char* value = attribute.value();
        m_tree.m_attributes.push_back({NumberOfName(name), *value == '\0' ? 0 : OffsetOf(value)});
    }
}

void TreeBuilder::NoteUse(std::uint32_t name) {
    if (name >= m_lastUse.size())
        m_lastUse.resize(name + 1, none);
    const std::uint32_t element = m_open.back();
    if (m_lastUse[name] == element && m_repeated.count++ == 0)
        m_repeated = {std::string(m_tree.NameOf(name)), element, 1};
    m_lastUse[name] = element;
}

void TreeBuilder::AddText(const char* piece) {
    const std::size_t length = std::strlen(piece);
    if (length == 0)
        return;
    if (m_textEnd != nullptr) { // "a<!-- c -->b" and CDATA leave several texts; whoever reads a value wants one
        std::memmove(m_textEnd, piece, length + 1);
        m_textEnd += length;
        return;
    }
    const std::uint32_t offset = OffsetOf(piece);
    if (m_closed == none)
        m_tree.m_nodes.back().text = offset;
    else
        m_tree.m_tails.emplace(m_closed, offset);
    m_textEnd = m_text + offset + length;
}

void TreeBuilder::Close() {
    const std::uint32_t number = m_open.back();
    m_tree.m_nodes[number].size = static_cast<std::uint32_t>(m_tree.m_nodes.size()) - number;
    m_open.pop_back();
    m_closed = number;
    m_textEnd = nullptr;
}

std::uint32_t TreeBuilder::NumberOfName(std::string_view name) {
    if (const std::uint32_t* known = m_tree.m_names.Find(0, name))
        return *known;
    const auto number = static_cast<std::uint32_t>(m_tree.m_names.Entries().size());
    m_tree.m_names.Insert(0, name, number);
    return number;
}

void TreeBuilder::Use(std::string_view prefix) {
    if (m_used.find(prefix) == m_used.end() && m_used.size() < mostPrefixes)
        m_used.emplace(prefix, m_open.back());
}

std::vector<TreeBuilder::Prefix> TreeBuilder::UnboundPrefixes() const {
    std::vector<Prefix> unbound;
    for (const auto& [name, element] : m_used)
        if (m_declared.find(name) == m_declared.end() && name != "xml")
            unbound.push_back({name, element});
    return unbound;
}

} // namespace OdxImport
