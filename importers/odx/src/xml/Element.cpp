#include "xml/Element.h"

#include "xml/Walk.h"

namespace OdxImport {

std::string_view Element::Text() const {
    return Trimmed(m_node.child_value());
}

Element Element::FirstChild() const {
    return {FirstElement(m_node), m_document};
}

Element Element::Next() const {
    return {NextElement(m_node), m_document};
}

Element Element::Taken() const {
    if (m_node)
        m_document->FatesOfElements().SetImported(XmlDocument::KeyOf(m_node));
    return *this;
}

void Element::TakeAll() const {
    if (!m_node)
        return;
    WalkElements(m_node, [this](pugi::xml_node node, std::uint32_t) {
        m_document->FatesOfElements().SetImported(XmlDocument::KeyOf(node));
        return true;
    });
}

void Element::LeaveOut(Fate fate, const char* reason) const {
    if (m_node)
        m_document->FatesOfElements().SetLeftOut(XmlDocument::KeyOf(m_node), fate, reason);
}

} // namespace OdxImport
