#include "accounting/Accounting.h"

#include "accounting/KnownElements.h"
#include "accounting/Places.h"
#include "layers/Layer.h"
#include "report/Words.h"
#include "xml/Walk.h"

#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace OdxImport {

namespace {

constexpr const char* unknownReason = "the element is not known at its place";

class Accountant {
public:
    Accountant(XmlDocument& document, const Reporter& reporter) : m_document(document), m_reporter(reporter) {}

    void Enter(Ledger& ledger) {
        std::vector<Fates::Verdict> open; ///< of the elements around, by depth
        WalkElements(m_document.Root(), [&](Element element, std::uint32_t depth) {
            open.resize(depth - 1);
            open.push_back(Judge(element, open.empty() ? nullptr : &open.back()));
            Count(element.Tag(), open.back());
            return true;
        });
        for (const auto& [tag, count] : m_counts) {
            ledger.See(tag, count.seen);
            if (count.imported != 0)
                ledger.Settle(tag, Fate::Imported, "", count.imported);
            for (const auto& [verdict, number] : count.leftOut)
                ledger.Settle(tag, verdict.first, verdict.second, number);
        }
    }

private:
    struct Counter {
        std::uint64_t seen = 0;
        std::uint64_t imported = 0;
        std::vector<std::pair<std::pair<Fate, const char*>, std::uint64_t>> leftOut;
    };

    Fates::Verdict Judge(Element element, const Fates::Verdict* around) {
        if (const auto own = m_document.FatesOfElements().Of(element.Number()))
            return *own;
        if (around != nullptr && around->fate != Fate::Imported)
            return *around;
        const KnownElement known = LookUpElement(element.Tag());
        if (known.standing != Standing::Unknown && !IsLookedFor(element))
            return {Fate::Dropped, unknownReason};
        if (known.standing == Standing::Frame)
            return {Fate::Imported, ""};
        if (known.standing != Standing::Unknown)
            return {Fate::NotRepresented, known.reason};
        m_reporter.Report(Rule::ElementUnknown, element.Where(),
                          Words({element.Tag(), " is not known in ", element.Parent().Tag()}));
        return {Fate::Dropped, unknownReason};
    }

    /// It stands where it is read. It is reported where not.
    bool IsLookedFor(Element element) {
        const Place* place = PlaceOf(element.Tag());
        const Element parent = element.Parent();
        if (place == nullptr || !parent)
            return true;
        const bool isAtPlace = place->parent.empty() ? LayerKindOf(parent.Tag()).has_value() : parent.Is(place->parent);
        if (isAtPlace && (!place->isReadOnce || FirstIn(parent, element.Tag()) == element))
            return true;
        m_reporter.Report(Rule::ElementUnknown, element.Where(),
                          isAtPlace ? Words({parent.Tag(), " has a ", element.Tag(), " before; this one is not read"})
                                    : Words({element.Tag(), " is not known in ", parent.Tag()}));
        return false;
    }

    /// Remembered, so that long lists are searched once.
    Element FirstIn(Element parent, std::string_view tag) {
        const auto [first, isNew] = m_first.try_emplace({parent.Number(), tag});
        if (isNew)
            first->second = parent.Child(tag);
        return first->second;
    }

    void Count(std::string_view tag, const Fates::Verdict& verdict) {
        Counter& counter = m_counts[tag];
        ++counter.seen;
        if (verdict.fate == Fate::Imported) {
            ++counter.imported;
            return;
        }
        const std::pair<Fate, const char*> key(verdict.fate, verdict.reason);
        for (auto& [known, number] : counter.leftOut) {
            if (known == key) {
                ++number;
                return;
            }
        }
        counter.leftOut.emplace_back(key, 1);
    }

    XmlDocument& m_document;
    const Reporter& m_reporter;
    std::unordered_map<std::string_view, Counter> m_counts;
    std::map<std::pair<std::uint32_t, std::string_view>, Element> m_first; ///< of a tag, by number of its parent
};

} // namespace

void AccountFor(XmlDocument& document, Ledger& ledger, const Reporter& reporter) {
    Accountant(document, reporter).Enter(ledger);
}

} // namespace OdxImport
