#ifndef ODXIMPORT_XML_WALK_H
#define ODXIMPORT_XML_WALK_H

#include <cstdint>
#include <pugixml.hpp>
#include <string_view>

namespace OdxImport {

/// Without the white space of XML around it.
inline std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view space = " \n\t\r";
    const std::size_t first = text.find_first_not_of(space);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(space) - first + 1);
}

inline pugi::xml_node ElementFrom(pugi::xml_node node) {
    while (node && node.type() != pugi::node_element)
        node = node.next_sibling();
    return node;
}

inline pugi::xml_node FirstElement(pugi::xml_node node) {
    return ElementFrom(node.first_child());
}

inline pugi::xml_node NextElement(pugi::xml_node node) {
    return ElementFrom(node.next_sibling());
}

/// Visits `root` and the elements below it in document order, without recursion. `visit(node, depth)` says whether to
/// go below the node; `root` has depth 1.
template <class Visit>
void WalkElements(pugi::xml_node root, Visit visit) {
    pugi::xml_node node = root;
    std::uint32_t depth = 1;
    while (node) {
        if (visit(node, depth)) {
            if (const pugi::xml_node child = FirstElement(node)) {
                node = child;
                ++depth;
                continue;
            }
        }
        while (node != root && !NextElement(node)) {
            node = node.parent();
            --depth;
        }
        if (node == root)
            return;
        node = NextElement(node);
    }
}

} // namespace OdxImport

#endif
