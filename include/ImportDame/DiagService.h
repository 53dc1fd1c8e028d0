#pragma once

#include <ImportDame/DiagComm.h>
#include <ImportDame/DiagServiceShapeCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// A diagnostic service: a request with its response, identified by a service id, in one or more shapes.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the service
/// dies. The library stores id, semantic and functional class only.
class IMPORTDAME_API VDiagService : public VDiagComm {
public:
    explicit VDiagService(VImportDoc& importDoc);

    /// The document is borrowed, and has to live longer.
    VDiagService(VImportDoc& importDoc, const unsigned int& serviceId);

    /// Copies what a copy of a qualified object takes, service id, semantic and functional class; the copy has no
    /// shapes.
    VDiagService(const VDiagService& other);
    ~VDiagService() override;

    /// Sets the service's own flag, then that of every shape.
    void IsImported(bool isImported) override;

    /// The service's own flag.
    bool IsImported() override;

    void Accept(VDiagCommVisitor& visitor) override;

    /// Whether the service and every shape is imported.
    bool IsImportedCompletly() override;

    /// Rebuilds the name cache of the shapes.
    void InitCache() override;

    /// The first byte of the request; 0 at first.
    const unsigned int& GetServiceId() const { return m_serviceId; }

    void SetServiceId(const unsigned int& serviceId);

    /// What the service is for, in the words of the imported description.
    const wchar_t* GetSemantic() const { return m_semantic.Get(); }

    void SetSemantic(const wchar_t* semantic);

    /// The functional class.
    const wchar_t* GetFunctClass() const { return m_functClass.Get(); }

    void SetFunctClass(const wchar_t* functClass);

    VDiagServiceShapeCollection& DiagServiceShapeCollection() { return m_diagServiceShapeCollection; }

private:
    unsigned int m_serviceId = 0;
    detail::Text m_semantic;
    detail::Text m_functClass;
    VDiagServiceShapeCollection m_diagServiceShapeCollection;
};

} // namespace ImportDame
