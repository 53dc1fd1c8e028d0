#ifndef ODXIMPORT_XML_ELEMENT_H
#define ODXIMPORT_XML_ELEMENT_H

#include "xml/XmlDocument.h"

#include <string_view>

namespace OdxImport {

/// Without the white space of XML around it.
inline std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view space = " \n\t\r";
    const std::size_t first = text.find_first_not_of(space);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(space) - first + 1);
}

/// An element of a document, or none. Looking at it leaves its account open; `Take…` settles it as imported. None that
/// an element was asked for still knows the document.
class Element {
public:
    Element() = default;

    Element(const XmlNode& node, XmlDocument& document) : m_node(&node), m_document(&document) {}

    explicit operator bool() const { return m_node != nullptr; }

    bool operator==(const Element& other) const { return m_node == other.m_node; }

    std::string_view Tag() const { return m_node ? Tree().NameOf(m_node->tag) : std::string_view(); }

    bool Is(std::string_view tag) const { return Tag() == tag; }

    /// Without the white space around it.
    std::string_view Text() const { return m_node ? Trimmed(Tree().TextOf(*m_node)) : std::string_view(); }

    /// As it stands in the document: before the first child, and behind the element.
    std::string_view OwnText() const { return Tree().At(m_node->text); }

    std::string_view TextBehind() const { return Tree().TailOf(*m_node); }

    /// Without the white space around it. Empty when there is no such attribute.
    std::string_view Attribute(std::string_view name) const {
        const char* value = m_node ? Tree().ValueOf(*m_node, name) : nullptr;
        return value != nullptr ? Trimmed(value) : std::string_view();
    }

    bool HasAttribute(std::string_view name) const { return m_node && Tree().ValueOf(*m_node, name) != nullptr; }

    std::string_view ShortName() const { return Child("SHORT-NAME").Text(); }

    /// The first one with the tag.
    Element Child(std::string_view tag) const;

    Element FirstChild() const { return At(m_node && m_node->size > 1 ? m_node + 1 : nullptr); }

    Element Next() const { return At(IsLast() ? nullptr : m_node + m_node->size); }

    /// No child of its parent follows.
    bool IsLast() const { return m_node == nullptr || m_node->isLast != 0; }

    Element Parent() const { return At(m_node && m_node->parent != 0 ? m_node - m_node->parent : nullptr); }

    /// The child, its account settled as imported.
    Element Take(std::string_view tag) const { return Child(tag).Taken(); }

    Element Taken() const {
        if (m_node)
            m_document->FatesOfElements().SetImported(Number());
        return *this;
    }

    /// The element and everything below it.
    void TakeAll() const;
    /// With everything below it that nobody else has use for. `reason` is a literal.
    void LeaveOut(Fate fate, const char* reason) const;

    /// What it says cannot be used: it is dropped even where it is taken elsewhere. `reason` is a literal.
    void Refuse(const char* reason) const;

    bool IsRefused() const;

    /// Its account is settled, as imported or as refused.
    bool IsTaken() const { return m_node && (m_document->FatesOfElements().IsImported(Number()) || IsRefused()); }

    Location Where() const { return m_document->LocationOf(*this); }

    XmlDocument& Document() const { return *m_document; }

    /// In document order, from 0.
    std::uint32_t Number() const { return Tree().NumberOf(*m_node); }

    /// Where the name stands in the text.
    std::size_t Offset() const { return m_node->offset; }

    /// Bytes of the text from its name to the next element behind it.
    std::size_t Length() const { return m_document->LengthOf(*this); }

    /// Tells elements apart as a key of a table.
    const void* Identity() const { return m_node; }

private:
    /// Of the same document.
    Element At(const XmlNode* node) const {
        Element element = *this;
        element.m_node = node;
        return element;
    }

    const XmlTree& Tree() const { return m_document->Tree(); }

    const XmlNode* m_node = nullptr;
    XmlDocument* m_document = nullptr;
};

inline Element Element::Child(std::string_view tag) const {
    Element child = FirstChild();
    while (child && !child.Is(tag))
        child = child.Next();
    return child;
}

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
