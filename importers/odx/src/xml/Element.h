#ifndef ODXIMPORT_XML_ELEMENT_H
#define ODXIMPORT_XML_ELEMENT_H

#include "xml/XmlDocument.h"

#include <pugixml.hpp>
#include <string_view>

namespace OdxImport {

/// An element of a document, or none. Looking at it leaves its account open; `Take…` settles it as imported.
class Element {
public:
    Element() = default;

    Element(pugi::xml_node node, XmlDocument& document) : m_node(node), m_document(&document) {}

    explicit operator bool() const { return static_cast<bool>(m_node); }

    bool operator==(const Element& other) const { return m_node == other.m_node; }

    std::string_view Tag() const { return m_node.name(); }

    bool Is(std::string_view tag) const { return Tag() == tag; }

    /// Without the white space around it.
    std::string_view Text() const;

    /// Empty when there is no such attribute.
    std::string_view Attribute(const char* name) const { return m_node.attribute(name).value(); }

    bool HasAttribute(const char* name) const { return static_cast<bool>(m_node.attribute(name)); }

    std::string_view ShortName() const { return Child("SHORT-NAME").Text(); }

    Element Child(const char* tag) const { return {m_node.child(tag), m_document}; }

    Element FirstChild() const;
    Element Next() const;

    Element Parent() const { return {m_node.parent(), m_document}; }

    /// The child, its account settled as imported.
    Element Take(const char* tag) const { return Child(tag).Taken(); }

    Element Taken() const;
    /// The element and everything below it.
    void TakeAll() const;
    /// With everything below it that nobody else has use for. `reason` is a literal.
    void LeaveOut(Fate fate, const char* reason) const;

    bool IsTaken() const { return m_node && m_document->FatesOfElements().IsImported(XmlDocument::KeyOf(m_node)); }

    Location Where() const { return m_document->LocationOf(m_node); }

    XmlDocument& Document() const { return *m_document; }

    pugi::xml_node Node() const { return m_node; }

    /// Tells elements apart as a key of a table.
    const void* Identity() const { return m_node.internal_object(); }

private:
    Element(pugi::xml_node node, XmlDocument* document) : m_node(node), m_document(document) {}

    pugi::xml_node m_node;
    XmlDocument* m_document = nullptr;
};

/// The children that are elements: for (Element child : Children(parent)).
class Children {
public:
    class Iterator {
    public:
        Iterator(Element at, const char* tag) : m_at(at), m_tag(tag) { Skip(); }

        Element operator*() const { return m_at; }

        Iterator& operator++() {
            m_at = m_at.Next();
            Skip();
            return *this;
        }

        bool operator!=(const Iterator& other) const { return !(m_at == other.m_at); }

    private:
        void Skip() {
            while (m_tag != nullptr && m_at && !m_at.Is(m_tag))
                m_at = m_at.Next();
        }

        Element m_at;
        const char* m_tag;
    };

    explicit Children(Element parent, const char* tag = nullptr) : m_parent(parent), m_tag(tag) {}

    Iterator begin() const { return {m_parent.FirstChild(), m_tag}; }

    Iterator end() const { return {Element(), m_tag}; }

private:
    Element m_parent;
    const char* m_tag;
};

} // namespace OdxImport

#endif
