/// @file
/// The life of a document, step by step: what the failing allocations are tried on.
#pragma once

#include <ImportDame/ImportDame.h>

#include <memory>
#include <span>
#include <string>

namespace Scenario {

/// Has an object that no collection holds give itself up.
struct DestroyChild {
    void operator()(ImportDame::VImportDocChild* child) const { child->Destroy(); }
};

/// What the steps build and keep at hand. Copies die before the documents that they belong to.
struct World {
    std::unique_ptr<ImportDame::VImportDoc> document;
    std::unique_ptr<ImportDame::VImportDoc> target; ///< Copies are made for it.
    const ImportDame::VImportDoc* destroyed = nullptr;

    ImportDame::VTroubleCodeCollection* codes = nullptr;
    ImportDame::VTroubleCode* code = nullptr;
    ImportDame::VItemMapping mapping;
    ImportDame::VRecordTemplateMapping otherTemplate;
    std::unique_ptr<ImportDame::VRecordItem> item;

    ImportDame::VAttribute* attribute = nullptr;
    ImportDame::VInvalidRange* invalidRange = nullptr;
    ImportDame::VLinearConversion* conversion = nullptr;
    ImportDame::VTextTableRow* textRow = nullptr;
    ImportDame::VFunction* function = nullptr;
    ImportDame::VUnit* unit = nullptr;
    ImportDame::VValue value;

    ImportDame::VIdentityDataType* identity = nullptr;
    ImportDame::VLinearDataType* linear = nullptr;
    ImportDame::VPiecewiseLinearDataType* piecewise = nullptr;
    ImportDame::VValueTableDataType* valueTable = nullptr;
    ImportDame::VTextTableDataType* textTable = nullptr;
    ImportDame::VFormulaDataType* formula = nullptr;
    ImportDame::VProcedureDataType* procedure = nullptr;
    ImportDame::VPacketDataType* packet = nullptr;
    ImportDame::VMuxDataType* mux = nullptr;
    ImportDame::VNumeratorIterDataType* numerator = nullptr;
    ImportDame::VEndMarkerIterDataType* endMarker = nullptr;
    ImportDame::VEndOfServiceIterDataType* endOfService = nullptr;
    std::unique_ptr<ImportDame::VDataType, DestroyChild> made;
    std::unique_ptr<ImportDame::VTroubleCode, DestroyChild> madeCode;
    std::unique_ptr<ImportDame::VTroubleCodeCollection, DestroyChild> madeCodes;
    std::unique_ptr<ImportDame::VAttribute, DestroyChild> madeAttribute;
    std::unique_ptr<ImportDame::VAttributeCollection, DestroyChild> madeAttributes;

    ImportDame::VDataObject* dataObject = nullptr;
    ImportDame::VBitField* bitField = nullptr;
    ImportDame::VGapObject* gap = nullptr;
    ImportDame::VCase* muxCase = nullptr;

    ImportDame::VEcuVariant* ecuVariant = nullptr;
    ImportDame::VDiagService* service = nullptr;
    ImportDame::VDiagJob* job = nullptr;
    ImportDame::VDiagServiceShape* shape = nullptr;
    ImportDame::VServiceMapping mappingOfService;
};

/// One operation of the library that may allocate; what cannot fail may follow it.
struct Step {
    const char* name;
    void (*run)(World& world);
};

std::span<const Step> TroubleCodeSteps();
std::span<const Step> ValueSteps();
std::span<const Step> DataTypeSteps();
std::span<const Step> PacketSteps();
std::span<const Step> VariantSteps();
std::span<const Step> CopyAndEndSteps();

/// Everything that the public interface shows of the documents, as one text; equal for equal contents.
std::wstring Describe(World& world);

} // namespace Scenario
