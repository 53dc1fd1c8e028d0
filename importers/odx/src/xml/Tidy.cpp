#include "xml/Tidy.h"

#include "xml/Walk.h"
#include "xml/XmlDocument.h"

#include <cstring>
#include <map>
#include <new>
#include <set>
#include <string>
#include <string_view>

namespace OdxImport {

namespace {

/// The parser says so when it has no memory.
void Require(bool isDone) {
    if (!isDone)
        throw std::bad_alloc();
}

class Tidier {
public:
    void Element(pugi::xml_node node) {
        StripTag(node);
        for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
            StripAttribute(node, attribute);
        JoinText(node);
    }

    void ReportUnbound(const XmlDocument& document, const Reporter& reporter) const {
        for (const auto& [prefix, node] : m_used)
            if (m_declared.find(prefix) == m_declared.end() && prefix != "xml")
                reporter.Report(Rule::PrefixUnbound, document.LocationOf(node),
                                "the prefix \"" + prefix + ":\" is not declared; read as if it were");
    }

private:
    void StripTag(pugi::xml_node node) {
        if (const char* colon = std::strchr(node.name(), ':')) {
            Use({node.name(), colon}, node);
            const std::string local = colon + 1; // set_name writes over the old name
            Require(node.set_name(local.c_str()));
        }
    }

    void StripAttribute(pugi::xml_node node, pugi::xml_attribute attribute) {
        const char* colon = std::strchr(attribute.name(), ':');
        if (colon == nullptr)
            return;
        const std::string_view prefix(attribute.name(), static_cast<std::size_t>(colon - attribute.name()));
        if (prefix == "xmlns") {
            m_declared.emplace(colon + 1);
            return;
        }
        Use(prefix, node);
        const std::string local = colon + 1;
        Require(attribute.set_name(local.c_str()));
    }

    void Use(std::string_view prefix, pugi::xml_node node) {
        if (m_used.find(prefix) == m_used.end() && m_used.size() < mostPrefixes)
            m_used.emplace(prefix, node);
    }

    /// "a<!-- c -->b" and CDATA leave several texts; whoever reads a value wants one.
    static void JoinText(pugi::xml_node node) {
        const pugi::xml_node first = node.first_child();
        if (!first || first.type() == pugi::node_element || FirstElement(node))
            return;
        std::string whole = node.value();
        for (pugi::xml_node piece = first; piece; piece = piece.next_sibling())
            if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata)
                whole += piece.value();
        while (node.first_child())
            node.remove_child(node.first_child());
        Require(node.text().set(whole.c_str()));
    }

    static constexpr std::size_t mostPrefixes = 16;

    std::map<std::string, pugi::xml_node, std::less<>> m_used; ///< with the first element that uses the prefix
    std::set<std::string, std::less<>> m_declared;
};

} // namespace

bool Tidy(XmlDocument& document, std::uint32_t nesting, const Reporter& reporter) {
    Tidier tidier;
    pugi::xml_node tooDeep;
    WalkElements(document.Root(), [&](pugi::xml_node node, std::uint32_t depth) {
        if (depth > nesting && !tooDeep)
            tooDeep = node;
        if (!tooDeep)
            tidier.Element(node);
        return !tooDeep;
    });
    if (tooDeep) {
        Location where = document.LocationOf(tooDeep);
        reporter.Report(Rule::NestingTooDeep, std::move(where),
                        "elements are nested deeper than " + std::to_string(nesting));
        return false;
    }
    tidier.ReportUnbound(document, reporter);
    return true;
}

} // namespace OdxImport
