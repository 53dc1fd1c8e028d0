#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VEcuVariantCollection> {
    using Element = ImportDame::VEcuVariant;

    struct Exposed : ImportDame::VEcuVariantCollection {
        using VEcuVariantCollection::_Remove;
        using VEcuVariantCollection::VEcuVariantCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    static Element& AddNew(Exposed& collection) { return collection.AddNewEcuVariant(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101065, "iter != End()", "EcuVariantCollection.cpp", 138};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101070, "iter != End()", "EcuVariantCollection.cpp", 148};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101071, "iter != mCollection.end()", "EcuVariantCollection.cpp", 158};
};
