#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VDataTypeCollection> {
    using Element = ImportDame::VDataType;

    struct Exposed : ImportDame::VDataTypeCollection {
        using VDataTypeCollection::_Insert;
        using VDataTypeCollection::_Remove;
        using VDataTypeCollection::VDataTypeCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    static Element& AddNew(Exposed& collection) { return collection.AddNewIdentityDataType(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101057, "iter != End()", "DataTypeCollection.cpp", 147};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101058, "iter != End()", "DataTypeCollection.cpp", 155};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101059, "iter != m_collection.end()", "DataTypeCollection.cpp", 163};
};
