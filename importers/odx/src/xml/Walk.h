#ifndef ODXIMPORT_XML_WALK_H
#define ODXIMPORT_XML_WALK_H

#include "xml/Element.h"

#include <cstdint>

namespace OdxImport {

/// Visits `root` and the elements below it in document order, without recursion. `visit(element, depth)` says whether
/// to go below the element; `root` has depth 1. None is visited where there is none.
template <class Visit>
void WalkElements(Element root, Visit visit) {
    std::uint32_t depth = 1;
    for (Element at = root; at;) {
        if (visit(at, depth)) {
            if (const Element child = at.FirstChild()) {
                at = child;
                ++depth;
                continue;
            }
        }
        while (!(at == root) && at.IsLast()) {
            at = at.Parent();
            --depth;
        }
        if (at == root)
            return;
        at = at.Next();
    }
}

} // namespace OdxImport

#endif
