#ifndef ODXIMPORT_LINKS_LINKINDEX_H
#define ODXIMPORT_LINKS_LINKINDEX_H

#include "links/NameTable.h"
#include "report/Reporter.h"
#include "xml/Element.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// Why links are dropped.
inline constexpr const char* deadLink = "the link leads to nothing that can be used";

/// Every ID of every document, and the documents and layers that DOCREF can name.
///
/// An ID is unique within its file; where a file breaks that across layers, a layer's own ID comes first.
class LinkIndex {
public:
    explicit LinkIndex(const Reporter& reporter) : m_reporter(reporter) {}

    /// Documents outlive the index.
    void Add(XmlDocument& document);

    /// What an element with ID-REF, DOCREF and DOCTYPE leads to. None and every repair are reported; a link to none is
    /// refused.
    Element Follow(Element link) const;

    /// The same, with `missing` reported when it leads nowhere.
    Element Follow(Element link, Rule missing) const;

    /// The same without a report.
    Element Peek(Element link) const;

    /// IDs of this layer are found from the other one without DOCREF.
    void Import(Element importingLayer, Element importedLayer);

    /// The layer around the element, or else what its document is about.
    Element FragmentOf(Element element) const;

private:
    using FragmentNumber = std::uint32_t;

    struct Target {
        Element element;
        FragmentNumber fragment = 0;
        bool isShared = false; ///< another layer of the file has the ID, too
    };

    struct Fragment {
        Element element;
        std::uint32_t document = 0;
        FragmentNumber namesake; ///< the next one of its kind and name, or none
        std::vector<FragmentNumber> imported;
    };

    /// All fragments of one kind and name, in their order.
    struct Namesakes {
        FragmentNumber first;
        FragmentNumber last;
        std::uint32_t count;
    };

    struct Found {
        Element element;
        bool isAmbiguous = false; ///< another one fits as well
    };

    struct Anywhere {
        Element element;
        bool isAmbiguous = false;
    };

    struct Place {
        std::uint32_t document;
        FragmentNumber fragment;
    };

    FragmentNumber AddFragment(Element element, std::uint32_t document);
    void AddId(Place place, Element element, std::string_view id);
    void ReportTwice(Element element, std::string_view id, Element first) const;
    FragmentNumber NumberOf(Element element) const;
    Element Find(const Fragment& fragment, FragmentNumber number, std::string_view id) const;
    Element FindNear(FragmentNumber from, std::string_view id) const;
    Found FindIn(const Namesakes& fragments, Element link, std::string_view id) const;
    int DistanceOf(FragmentNumber fragment, Element target, Element link, FragmentNumber from) const;
    Found FindKnown(Element link, std::string_view id) const;
    Found FindByDocref(Element link, std::string_view id) const;
    const Anywhere* FindAnywhere(std::string_view id) const;
    void ReportFound(Rule rule, Element link, Element target) const;

    const Reporter& m_reporter;
    std::uint32_t m_documentCount = 0;
    std::vector<Fragment> m_fragments;
    std::unordered_map<const void*, FragmentNumber> m_numbers;
    NameTable<Namesakes> m_fragmentNames;   ///< by kind of fragment
    NameTable<Target> m_ids;                ///< by document, or by fragment above `fragmentScope`
    mutable NameTable<Anywhere> m_anywhere; ///< made when it is first needed
};

} // namespace OdxImport

#endif
