#include "document/Kinds.h"

namespace Fuzz {

using namespace ImportDame;

Shadows AttributesOf(VImportDoc& document, VQualified& qualified) {
    Shadows children;
    children.push_back(MakeShadow<AttributeKind>(document, qualified.Attributes()));
    return children;
}

VInterchangeable& InterchangeableKind::Add(VImportDoc&, Collection& collection, Bytes& bytes) {
    switch (bytes.Below(3)) {
    case 0:
        return collection.AddNewBitField();
    case 1:
        return collection.AddNewDataObject();
    default:
        return collection.AddNewGapObject();
    }
}

Shadows InterchangeableKind::ChildrenOf(VImportDoc& document, VInterchangeable& element) {
    Shadows children = AttributesOf(document, element);
    if (auto* const bitField = dynamic_cast<VBitField*>(&element))
        children.push_back(MakeShadow<InterchangeableKind>(document, bitField->InterchangeableCollection()));
    return children;
}

VDiagComm& DiagCommKind::Add(VImportDoc&, Collection& collection, Bytes& bytes) {
    switch (bytes.Below(3)) {
    case 0:
        return collection.AddNewDiagJob();
    case 1:
        return collection.AddNewDiagService();
    default:
        return collection.AddNewDiagService(0x22U);
    }
}

Shadows DiagCommKind::ChildrenOf(VImportDoc& document, VDiagComm& element) {
    Shadows children = AttributesOf(document, element);
    if (auto* const service = dynamic_cast<VDiagService*>(&element))
        children.push_back(MakeShadow<ShapeKind>(document, service->DiagServiceShapeCollection()));
    return children;
}

Shadows EcuVariantKind::ChildrenOf(VImportDoc& document, VEcuVariant& element) {
    Shadows children = AttributesOf(document, element);
    children.push_back(MakeShadow<DiagCommKind>(document, element.DiagCommCollection()));
    return children;
}

} // namespace Fuzz
