/// @file
/// Traversers that write down which of their hooks are called.
#pragma once

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/ImportDocTraverser.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include <string>
#include <type_traits>
#include <vector>

namespace TestSupport {

/// The calls in order, each as the name of the hook and the qualifier of the element, if it has one.
using Calls = std::vector<std::wstring>;

template <class Element>
void Note(Calls& calls, const wchar_t* hook, Element& element) {
    std::wstring call(hook);
    if constexpr (std::is_base_of_v<ImportDame::VQualified, Element>)
        call.append(L" ").append(element.GetQualifier());
    calls.push_back(std::move(call));
}

// The three hooks of one kind of element, which go on to those of the base.
#define RECORD_HOOKS(Kind)                                                                                             \
    void PreProcess##Kind(ImportDame::V##Kind& element) override {                                                     \
        Note(calls, L"PreProcess" L## #Kind, element);                                                                 \
        Base::PreProcess##Kind(element);                                                                               \
    }                                                                                                                  \
    void Descend##Kind(ImportDame::V##Kind& element) override {                                                        \
        Note(calls, L"Descend" L## #Kind, element);                                                                    \
        Base::Descend##Kind(element);                                                                                  \
    }                                                                                                                  \
    void PostProcess##Kind(ImportDame::V##Kind& element) override {                                                    \
        Note(calls, L"PostProcess" L## #Kind, element);                                                                \
        Base::PostProcess##Kind(element);                                                                              \
    }

/// Adds the four repetition kinds and the recording of the hooks of all data types.
template <class Base_>
class RecordingDataTypes : public Base_ {
protected:
    using Base = Base_;

public:
    Calls calls;

    void VisitStaticIterDataType(ImportDame::VStaticIterDataType& element) override {
        Note(calls, L"VisitStaticIterDataType", element);
    }

    void VisitNumeratorIterDataType(ImportDame::VNumeratorIterDataType& element) override {
        Note(calls, L"VisitNumeratorIterDataType", element);
    }

    void VisitEndOfServiceIterDataType(ImportDame::VEndOfServiceIterDataType& element) override {
        Note(calls, L"VisitEndOfServiceIterDataType", element);
    }

    void VisitEndMarkerIterDataType(ImportDame::VEndMarkerIterDataType& element) override {
        Note(calls, L"VisitEndMarkerIterDataType", element);
    }

    using Base::VisitInvalidRangeCollection;

protected:
    RECORD_HOOKS(IdentityDataType)
    RECORD_HOOKS(TextTableDataType)
    RECORD_HOOKS(LinearDataType)
    RECORD_HOOKS(PiecewiseLinearDataType)
    RECORD_HOOKS(ValueTableDataType)
    RECORD_HOOKS(FormulaDataType)
    RECORD_HOOKS(ProcedureDataType)
    RECORD_HOOKS(PacketDataType)
    RECORD_HOOKS(MuxDataType)
    RECORD_HOOKS(InvalidRangeCollection)
};

using RecordingDataTypeTraverser = RecordingDataTypes<ImportDame::VDataTypeTraverser>;

/// An interchangeable traverser alone.
class RecordingInterchangeableTraverser : public ImportDame::VInterchangeableTraverser {
protected:
    using Base = ImportDame::VInterchangeableTraverser;

public:
    Calls calls;

protected:
    RECORD_HOOKS(DataObject)
    RECORD_HOOKS(BitField)
    RECORD_HOOKS(GapObject)
};

/// A traverser of whole documents.
class RecordingImportDocTraverser : public RecordingDataTypes<ImportDame::VImportDocTraverser> {
protected:
    RECORD_HOOKS(ImportDoc)
    RECORD_HOOKS(DataTypeCollection)
    RECORD_HOOKS(InterchangeableCollection)
    RECORD_HOOKS(DataObject)
    RECORD_HOOKS(BitField)
    RECORD_HOOKS(GapObject)
};

#undef RECORD_HOOKS

template <class Element>
Element& Named(Element& element, const wchar_t* qualifier) {
    element.SetQualifier(qualifier);
    return element;
}

} // namespace TestSupport
