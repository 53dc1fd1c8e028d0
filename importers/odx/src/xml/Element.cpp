#include "xml/Element.h"

#include "xml/Walk.h"

namespace OdxImport {

namespace {

bool IsSpace(char c) {
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

} // namespace

std::string_view Element::Text() const {
    std::string_view text = m_node.child_value();
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
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
