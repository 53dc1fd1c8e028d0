/// @file
/// What the collections of this folder have in common, for the contract of all collections.
#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/AdditionalFile.h>
#include <ImportDame/AdditionalFileCollection.h>
#include <ImportDame/Function.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>
#include <ImportDame/ValueTableRow.h>
#include <ImportDame/ValueTableRowCollection.h>

#include <optional>
#include <string>

namespace TestSupport {

/// A collection of no document that hands removed elements back.
template <class Collection, class TheElement, bool isOrdered>
struct FreeCollectionTraits {
    using Element = TheElement;

    struct Owner {
        Collection collection;
    };

    static constexpr bool ordered = isOrdered;
    static constexpr bool removeDeletes = false;
    static constexpr std::optional<FailedCheck> removeAtEnd = std::nullopt;
    static constexpr std::optional<FailedCheck> removePositionAtEnd = std::nullopt;
};

template <>
struct CollectionTraits<ImportDame::VLinearConversionCollection>
    : FreeCollectionTraits<ImportDame::VLinearConversionCollection, ImportDame::VLinearConversion, false> {
    static Element& AddNew(ImportDame::VLinearConversionCollection& collection) {
        return collection.AddNewLinearConversion();
    }

    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{102001, "false", "LinearConversionCollection.cpp", 99};
};

template <>
struct CollectionTraits<ImportDame::VFunctionCollection>
    : FreeCollectionTraits<ImportDame::VFunctionCollection, ImportDame::VFunction, false> {
    static Element& AddNew(ImportDame::VFunctionCollection& collection) { return collection.AddNewFunction(); }

    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101072, "false", "FunctionCollection.cpp", 98};
};

template <>
struct CollectionTraits<ImportDame::VAdditionalFileCollection>
    : FreeCollectionTraits<ImportDame::VAdditionalFileCollection, ImportDame::VAdditionalFile, false> {
    static Element& AddNew(ImportDame::VAdditionalFileCollection& collection) {
        return collection.AddNewAdditionalFile();
    }

    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101048, "false", "AdditionalFileCollection.cpp", 98};
};

template <>
struct CollectionTraits<ImportDame::VTextTableRowCollection>
    : FreeCollectionTraits<ImportDame::VTextTableRowCollection, ImportDame::VTextTableRow, true> {
    static Element& AddNew(ImportDame::VTextTableRowCollection& collection) { return collection.AddNewTextTableRow(); }

    static constexpr std::optional<FailedCheck> removeAbsent = std::nullopt;
};

template <>
struct CollectionTraits<ImportDame::VValueTableRowCollection>
    : FreeCollectionTraits<ImportDame::VValueTableRowCollection, ImportDame::VValueTableRow, true> {
    static Element& AddNew(ImportDame::VValueTableRowCollection& collection) {
        return collection.AddNewValueTableRow();
    }

    static constexpr std::optional<FailedCheck> removeAbsent = std::nullopt;
};

/// The data type is never looked at.
struct InvalidRangeOwner {
    alignas(8) unsigned char storage[8]{};
    ImportDame::VInvalidRangeCollection collection{reinterpret_cast<ImportDame::VDataType&>(storage)};
};

template <>
struct CollectionTraits<ImportDame::VInvalidRangeCollection>
    : FreeCollectionTraits<ImportDame::VInvalidRangeCollection, ImportDame::VInvalidRange, false> {
    using Owner = InvalidRangeOwner;

    static Element& AddNew(ImportDame::VInvalidRangeCollection& collection) { return collection.AddNewInvalidRange(); }

    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{102000, "false", "InvalidRangeCollection.cpp", 92};
};

template <>
struct CollectionTraits<ImportDame::VUnitCollection>
    : FreeCollectionTraits<ImportDame::VUnitCollection, ImportDame::VUnit, true> {
    struct Owner {
        ImportDame::VImportDoc document;
        ImportDame::VUnitCollection collection{document};
    };

    static Element& AddNew(ImportDame::VUnitCollection& collection) {
        static unsigned int number = 0; // removal goes by the display name
        Element& unit = collection.AddNewUnit();
        unit.SetDisplayName(std::to_wstring(++number).c_str());
        return unit;
    }

    static constexpr std::optional<FailedCheck> removeAbsent = std::nullopt;
};

} // namespace TestSupport
