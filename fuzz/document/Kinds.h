/// @file
/// What is particular to each of the seventeen collections. A kind has at least these:
///
///   Collection, Element
///   isSorted                                  the collection orders by address
///   isImportedAtFirst, followsOwner, passesImportedOn, isImportedByContent
///   removesByName                             `Remove` goes by the name of the element
///   errorCodeOfElement, errorCodeOfPosition   of the checks in `Remove`; 0 where it ignores what it does not hold
///   Add, MakeOther                            a new element in a collection; another collection of the class
///   NameOf, Rename                            something of the element that can be told from others
///   ChildrenOf                                shadows of the collections in the element
#pragma once

#include "document/CollectionShadow.h"

namespace Fuzz {

template <class C, class E, int ErrorCodeOfElement, int ErrorCodeOfPosition = 0>
struct PlainKind {
    using Collection = C;
    using Element = E;
    static constexpr bool isSorted = false;
    static constexpr bool isImportedAtFirst = true;
    static constexpr bool followsOwner = false;
    static constexpr bool passesImportedOn = false;
    static constexpr bool isImportedByContent = false;
    static constexpr bool removesByName = false;
    static constexpr int errorCodeOfElement = ErrorCodeOfElement;
    static constexpr int errorCodeOfPosition = ErrorCodeOfPosition;

    static std::unique_ptr<Collection> MakeOther(ImportDame::VImportDoc& document, Collection&) {
        if constexpr (std::is_constructible_v<Collection, ImportDame::VImportDoc&>)
            return std::make_unique<Collection>(document);
        else
            return std::make_unique<Collection>();
    }

    static Shadows ChildrenOf(ImportDame::VImportDoc&, Element&) { return {}; }
};

template <class C, class E, int ErrorCodeOfElement>
struct SortedKind : PlainKind<C, E, ErrorCodeOfElement> {
    static constexpr bool isSorted = true;
};

Shadows AttributesOf(ImportDame::VImportDoc& document, ImportDame::VQualified& qualified);

template <class C, class E, int ErrorCodeOfElement, int ErrorCodeOfPosition = 0>
struct QualifiedKind : PlainKind<C, E, ErrorCodeOfElement, ErrorCodeOfPosition> {
    static std::wstring NameOf(E& element) { return element.GetQualifier(); }

    static std::wstring Rename(E& element, const std::wstring& name) {
        element.SetQualifier(name.c_str());
        return name;
    }

    static Shadows ChildrenOf(ImportDame::VImportDoc& document, E& element) { return AttributesOf(document, element); }
};

struct AttributeKind : QualifiedKind<ImportDame::VAttributeCollection, ImportDame::VAttribute, 101049, 101050> {
    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes&) {
        return collection.AddNewAttribute();
    }

    static auto FindName(Collection& collection, const std::wstring& name) { return collection.Find(name.c_str()); }

    static void SetAllImported(Collection& collection, bool isImported) {
        collection.SetIsImportedAttributes(isImported);
    }
};

struct RecordItemKind : PlainKind<ImportDame::VRecordItemCollection, ImportDame::VRecordItem, 102011, 102012> {
    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes& bytes);
    static std::wstring NameOf(Element& element);
    static std::wstring Rename(Element& element, const std::wstring& name);
    static void ExpectSameSummary(Collection& collection,
                                  const std::vector<CollectionShadow<RecordItemKind>::Entry>& entries);
};

struct TroubleCodeKind : PlainKind<ImportDame::VTroubleCodeCollection, ImportDame::VTroubleCode, 102026, 102027> {
    static Element& Add(ImportDame::VImportDoc& document, Collection& collection, Bytes& bytes);
    static std::wstring NameOf(Element& element);
    static std::wstring Rename(Element& element, const std::wstring& name);
    static Collection::iterator FindName(Collection& collection, const std::wstring& name);
    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);
    static void SetAllImported(Collection& collection, bool isImported);
    static void Operate(CollectionShadow<TroubleCodeKind>::Entry& entry, Bytes& bytes);
};

struct TroubleCodeCollectionKind
    : PlainKind<ImportDame::VTroubleCodeCollectionCollection, ImportDame::VTroubleCodeCollection, 102029, 102030> {
    static constexpr bool isImportedByContent = true;

    static Element& Add(ImportDame::VImportDoc& document, Collection& collection, Bytes& bytes);
    static std::wstring NameOf(Element& element);
    static std::wstring Rename(Element& element, const std::wstring& name);
    static Collection::iterator FindName(Collection& collection, const std::wstring& name);
    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);
    static void Operate(CollectionShadow<TroubleCodeCollectionKind>::Entry& entry, Bytes& bytes);
    static void ExpectSameSummary(Collection& collection,
                                  const std::vector<CollectionShadow<TroubleCodeCollectionKind>::Entry>& entries);
};

struct UnitKind : PlainKind<ImportDame::VUnitCollection, ImportDame::VUnit, 0> {
    static constexpr bool removesByName = true;

    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewUnit(); }

    static std::wstring NameOf(Element& element) { return element.GetDisplayName(); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetDisplayName(name.c_str());
        return name;
    }

    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element) {
        return AttributesOf(document, element);
    }
};

struct InterchangeableKind
    : QualifiedKind<ImportDame::VInterchangeableCollection, ImportDame::VInterchangeable, 101073, 101075> {
    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes& bytes);
    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);

    static void SetAllImported(Collection& collection, bool isImported) {
        collection.SetIsImportedInterchangeables(isImported);
    }
};

struct ShapeKind
    : QualifiedKind<ImportDame::VDiagServiceShapeCollection, ImportDame::VDiagServiceShape, 101062, 101063> {
    static constexpr bool followsOwner = true;

    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes&) {
        return collection.AddNewDiagServiceShape();
    }
};

struct DiagCommKind : QualifiedKind<ImportDame::VDiagCommCollection, ImportDame::VDiagComm, 101060, 101061> {
    static constexpr bool followsOwner = true;
    static constexpr bool passesImportedOn = true;

    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes& bytes);
    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);
};

struct EcuVariantKind : QualifiedKind<ImportDame::VEcuVariantCollection, ImportDame::VEcuVariant, 101065, 101070> {
    static constexpr bool isImportedAtFirst = false;
    static constexpr bool passesImportedOn = true;

    static Element& Add(ImportDame::VImportDoc&, Collection& collection, Bytes&) {
        return collection.AddNewEcuVariant();
    }

    static auto FindName(Collection& collection, const std::wstring& name) { return collection.Find(name.c_str()); }

    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);
};

struct DataTypeKind : QualifiedKind<ImportDame::VDataTypeCollection, ImportDame::VDataType, 101057, 101058> {
    static Element& Add(ImportDame::VImportDoc& document, Collection& collection, Bytes& bytes);
    static Shadows ChildrenOf(ImportDame::VImportDoc& document, Element& element);

    static void SetAllImported(Collection& collection, bool isImported) {
        collection.SetIsImportedDataTypes(isImported, ImportDame::VDataType::selectedForImport);
    }
};

} // namespace Fuzz
