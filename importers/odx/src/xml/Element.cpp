#include "xml/Element.h"

namespace OdxImport {

void Element::TakeAll() const {
    if (!m_node)
        return;
    const std::uint32_t first = Number();
    for (std::uint32_t number = first; number != first + m_node->size; ++number)
        m_document->FatesOfElements().SetImported(number);
}

void Element::LeaveOut(Fate fate, const char* reason) const {
    if (m_node)
        m_document->FatesOfElements().SetLeftOut(Number(), fate, reason);
}

void Element::Refuse(const char* reason) const {
    if (m_node)
        m_document->FatesOfElements().SetRefused(Number(), reason);
}

bool Element::IsRefused() const {
    return m_node && m_document->FatesOfElements().IsRefused(Number());
}

} // namespace OdxImport
