#pragma once

#include "FailedCheck.h"
#include "document/Shadow.h"

#include <ImportDame/ImportDame.h>

#include <algorithm>
#include <functional>
#include <map>

namespace Fuzz {

/// A vector for a collection. `Kind` says what is particular to it, see Kinds.h.
template <class Kind>
class CollectionShadow : public Shadow {
public:
    using Collection = typename Kind::Collection;
    using Element = typename Kind::Element;

    struct Entry {
        Element* element;
        std::wstring name;
        bool isImported;
        Shadows children;
    };

    CollectionShadow(ImportDame::VImportDoc& document, Collection& collection)
        : m_document(document), m_collection(collection) {}

    void Step(Bytes& bytes) override {
        if (bytes.Bool() && !m_entries.empty()) {
            Entry& entry = AnyEntry(bytes);
            if (!entry.children.empty())
                return entry.children[bytes.Below(entry.children.size())]->Step(bytes);
        }
        Operate(bytes);
        ExpectSameHere();
    }

    void ExpectSame() override {
        ExpectSameHere();
        for (Entry& entry : m_entries)
            for (const auto& child : entry.children)
                child->ExpectSame();
    }

    void NoteCopyOf(const Shadow& other) override {
        const auto& source = static_cast<const CollectionShadow&>(other);
        Expect(m_collection.Count() == source.m_entries.size(), "a copy of another size");
        m_entries.clear();
        auto position = m_collection.Begin();
        for (const Entry& entry : source.m_entries) {
            m_entries.push_back(MakeEntry(*position));
            NoteCopy(m_entries.back(), entry);
            ++position;
        }
    }

    [[nodiscard]] std::size_t ImportedCount() const override {
        return static_cast<std::size_t>(std::count_if(m_entries.begin(), m_entries.end(), IsImported));
    }

    void NoteOwnerIsImported(bool isImported) override {
        if constexpr (Kind::followsOwner)
            for (Entry& entry : m_entries)
                NoteIsImported(entry, isImported);
    }

    [[nodiscard]] bool IsImportedThroughout() const override {
        return !Kind::followsOwner || std::all_of(m_entries.begin(), m_entries.end(), [](const Entry& entry) {
            return entry.isImported && std::all_of(entry.children.begin(), entry.children.end(),
                                                   [](const auto& child) { return child->IsImportedThroughout(); });
        });
    }

    void NoteCache() override {
        if constexpr (HasCache()) {
            m_cache.clear();
            for (Entry& entry : m_entries) {
                m_cache.emplace(entry.name, entry.element);
                for (const auto& child : entry.children)
                    child->NoteCache();
            }
        }
    }

    std::vector<Entry>& Entries() { return m_entries; }

    /// The library made or deleted elements by itself; now it should be these. Elements without children only.
    void NoteNames(const std::vector<std::wstring>& names) {
        Expect(m_collection.Count() == names.size(), "another number of elements");
        m_entries.clear();
        for (Element& element : m_collection) {
            m_entries.push_back(MakeEntry(element));
            m_entries.back().name = names[m_entries.size() - 1];
        }
    }

private:
    static constexpr bool HasCache() {
        return requires(Collection & collection) {
            collection.InitCache();
        };
    }

    static constexpr bool RemovesPositions() {
        return requires(Collection & collection) {
            collection.Remove(collection.Begin());
        };
    }

    static constexpr bool HasImportedFlag() {
        return requires(Element & element) {
            element.IsImported(true);
        };
    }

    static bool IsImported(const Entry& entry) {
        if constexpr (Kind::isImportedByContent)
            return entry.children[0]->ImportedCount() != 0;
        else
            return entry.isImported;
    }

    static void NoteIsImported(Entry& entry, bool isImported) {
        entry.isImported = isImported;
        if constexpr (Kind::passesImportedOn)
            for (const auto& child : entry.children)
                child->NoteOwnerIsImported(isImported);
    }

    static void NoteCopy(Entry& copy, const Entry& source) {
        Expect(copy.element != source.element, "a copy that is the original");
        copy.name = source.name;
        copy.isImported = source.isImported;
        for (std::size_t index = 0; index < copy.children.size(); ++index)
            copy.children[index]->NoteCopyOf(*source.children[index]);
    }

    Entry MakeEntry(Element& element) {
        return {&element, Kind::NameOf(element), Kind::isImportedAtFirst, Kind::ChildrenOf(m_document, element)};
    }

    Entry& AnyEntry(Bytes& bytes) { return m_entries[bytes.Below(m_entries.size())]; }

    auto At(std::size_t index) {
        auto position = m_collection.Begin();
        for (; index > 0; --index)
            ++position;
        return position;
    }

    void Operate(Bytes& bytes) {
        switch (bytes.Below(12)) {
        case 0:
        case 1:
        case 2:
            return Note(Kind::Add(m_document, m_collection, bytes), m_entries.size());
        case 3:
            return OperateOnElement(bytes);
        case 4:
            return Rename(bytes);
        case 5:
            return SetIsImported(bytes);
        case 6:
            return Insert(bytes);
        case 7:
            return RemoveElement(bytes);
        case 8:
            return RemovePosition(bytes);
        case 9:
            return RemoveForeign(bytes);
        case 10:
            return InitCache();
        default:
            return bytes.Below(4) == 0 ? Clear() : SetAllImported(bytes);
        }
    }

    void Note(Element& element, std::size_t index) {
        Entry entry = MakeEntry(element);
        auto place = m_entries.begin() + static_cast<std::ptrdiff_t>(index);
        if constexpr (Kind::isSorted)
            place = std::find_if(m_entries.begin(), m_entries.end(),
                                 [&](const Entry& other) { return std::less<Element*>()(&element, other.element); });
        m_entries.insert(place, std::move(entry));
    }

    void OperateOnElement(Bytes& bytes) {
        if constexpr (requires(Entry & entry) { Kind::Operate(entry, bytes); })
            if (!m_entries.empty())
                Kind::Operate(AnyEntry(bytes), bytes);
    }

    void Rename(Bytes& bytes) {
        if (m_entries.empty())
            return;
        Entry& entry = AnyEntry(bytes);
        entry.name = Kind::Rename(*entry.element, AnyName(bytes));
    }

    void SetIsImported(Bytes& bytes) {
        if constexpr (HasImportedFlag())
            if (!m_entries.empty()) {
                Entry& entry = AnyEntry(bytes);
                const bool isImported = bytes.Bool();
                entry.element->IsImported(isImported);
                NoteIsImported(entry, isImported);
            }
    }

    void SetAllImported(Bytes& bytes) {
        if constexpr (requires { Kind::SetAllImported(m_collection, true); }) {
            const bool isImported = bytes.Bool();
            Kind::SetAllImported(m_collection, isImported);
            for (Entry& entry : m_entries)
                NoteIsImported(entry, isImported);
        }
    }

    void Insert(Bytes& bytes) {
        if constexpr (requires { m_collection.InsertNew(m_collection.Begin()); }) {
            const std::size_t index = bytes.Below(m_entries.size() % 255 + 1);
            const std::size_t choice = m_entries.empty() ? 0 : bytes.Below(3);
            if (choice == 0)
                return Note(m_collection.InsertNew(At(index)), index);
            // The copied element may move while the copy gets its place.
            const std::size_t source = bytes.Below(m_entries.size());
            const Element& original = *m_entries[source].element;
            Element& copy =
                choice == 1 ? m_collection.InsertCopy(At(index), original) : m_collection.AppendCopy(original);
            Entry entry = MakeEntry(copy);
            NoteCopy(entry, m_entries[source]);
            const std::size_t place = choice == 1 ? index : m_entries.size();
            m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(place), std::move(entry));
        }
    }

    /// The one that goes when this element is to be removed.
    auto Removed(Element& element) {
        return std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
            return Kind::removesByName ? entry.name == Kind::NameOf(element) : entry.element == &element;
        });
    }

    void Remove(Element& element) {
        const auto removed = Removed(element);
        if (removed == m_entries.end() && Kind::errorCodeOfElement != 0)
            return ExpectFailedCheck(Kind::errorCodeOfElement, [&] { m_collection.Remove(element); });
        m_collection.Remove(element);
        if (removed == m_entries.end())
            return;
        if constexpr (!RemovesPositions())
            std::unique_ptr<Element>(removed->element).reset(); // it was handed back
        m_entries.erase(removed);
    }

    void RemoveElement(Bytes& bytes) {
        if (!m_entries.empty())
            Remove(*AnyEntry(bytes).element);
    }

    void RemoveForeign(Bytes& bytes) {
        const auto other = Kind::MakeOther(m_document, m_collection);
        Remove(Kind::Add(m_document, *other, bytes));
    }

    void RemovePosition(Bytes& bytes) {
        if constexpr (RemovesPositions()) {
            const std::size_t index = bytes.Below(m_entries.size() % 255 + 1);
            if (index == m_entries.size())
                return ExpectFailedCheck(Kind::errorCodeOfPosition, [&] { m_collection.Remove(m_collection.End()); });
            m_collection.Remove(At(index));
            m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
        }
    }

    void InitCache() {
        if constexpr (HasCache()) {
            m_collection.InitCache();
            NoteCache();
        }
    }

    void Clear() {
        m_collection.Clear();
        m_entries.clear();
    }

    void ExpectSameHere() {
        Expect(m_collection.Count() == m_entries.size(), "another count");
        Expect(m_collection.IsEmpty() == m_entries.empty(), "wrongly empty or not empty");
        auto position = m_collection.Begin();
        for (const Entry& entry : m_entries) {
            Expect(position != m_collection.End() && &*position == entry.element, "another element");
            ExpectSame(entry);
            ++position;
        }
        Expect(position == m_collection.End(), "more elements");
        ExpectSameSummary();
    }

    void ExpectSame(const Entry& entry) {
        Expect(Kind::NameOf(*entry.element) == entry.name, "another name");
        if constexpr (HasImportedFlag())
            Expect(entry.element->IsImported() == entry.isImported, "another imported flag");
        if constexpr (requires { m_collection.Find(*entry.element); })
            Expect(&*m_collection.Find(*entry.element) == entry.element, "another element found");
        if constexpr (requires { Kind::FindName(m_collection, entry.name); }) {
            const auto first = std::find_if(m_entries.begin(), m_entries.end(),
                                            [&](const Entry& other) { return other.name == entry.name; });
            Expect(&*Kind::FindName(m_collection, entry.name) == first->element, "another element of this name");
        }
    }

    void ExpectSameSummary() {
        if constexpr (requires { m_collection.ImportedCount(); })
            Expect(m_collection.ImportedCount() == ImportedCount(), "another imported count");
        if constexpr (requires { m_collection.GetLastElement(); })
            Expect(m_collection.GetLastElement() == (m_entries.empty() ? nullptr : m_entries.back().element),
                   "another last element");
        if constexpr (HasCache()) {
            for (const auto& [name, element] : m_cache)
                Expect(m_collection.GetFromCache(name.c_str()) == element, "another element in the cache");
            if (!m_cache.contains(L"ABC"))
                Expect(m_collection.GetFromCache(L"ABC") == nullptr, "something in the cache");
        }
        if constexpr (requires { Kind::ExpectSameSummary(m_collection, m_entries); })
            Kind::ExpectSameSummary(m_collection, m_entries);
    }

    ImportDame::VImportDoc& m_document;
    Collection& m_collection;
    std::vector<Entry> m_entries;
    std::map<std::wstring, Element*> m_cache; ///< as it was taken, of elements that may be gone
};

template <class Kind>
std::unique_ptr<Shadow> MakeShadow(ImportDame::VImportDoc& document, typename Kind::Collection& collection) {
    return std::make_unique<CollectionShadow<Kind>>(document, collection);
}

} // namespace Fuzz
