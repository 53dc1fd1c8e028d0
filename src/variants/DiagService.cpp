#include <ImportDame/DiagService.h>

#include <ImportDame/DiagCommVisitor.h>
#include <ImportDame/DiagServiceShape.h>

namespace ImportDame {

VDiagService::VDiagService(VImportDoc& importDoc) : VDiagService(importDoc, 0) {}

VDiagService::VDiagService(VImportDoc& importDoc, const unsigned int& serviceId)
    : VDiagComm(importDoc), m_serviceId(serviceId), m_diagServiceShapeCollection(importDoc) {}

VDiagService::VDiagService(const VDiagService& other)
    : VDiagComm(other), m_serviceId(other.m_serviceId), m_semantic(other.m_semantic), m_functClass(other.m_functClass),
      m_diagServiceShapeCollection(other.ImportDoc()) {}

VDiagService::~VDiagService() = default;

void VDiagService::IsImported(bool isImported) {
    VDiagComm::IsImported(isImported);
    for (VDiagServiceShape& shape : m_diagServiceShapeCollection)
        shape.IsImported(isImported);
}

bool VDiagService::IsImported() {
    return VDiagComm::IsImported();
}

void VDiagService::Accept(VDiagCommVisitor& visitor) {
    visitor.VisitDiagService(*this);
}

bool VDiagService::IsImportedCompletly() {
    bool isImported = IsImported();
    for (VDiagServiceShape& shape : m_diagServiceShapeCollection)
        isImported = shape.IsImported() && isImported;
    return isImported;
}

void VDiagService::InitCache() {
    m_diagServiceShapeCollection.InitCache();
}

void VDiagService::SetServiceId(const unsigned int& serviceId) {
    m_serviceId = serviceId;
}

void VDiagService::SetSemantic(const wchar_t* semantic) {
    m_semantic.Set(semantic);
}

void VDiagService::SetFunctClass(const wchar_t* functClass) {
    m_functClass.Set(functClass);
}

} // namespace ImportDame
