#include "tables/Variants.h"

#include <ImportDame/BaseVariant.h>
#include <ImportDame/DiagComm.h>
#include <ImportDame/DiagCommCollection.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/DiagServiceShapeCollection.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>

namespace SqliteBackend {

const char* const Variants::schema = R"(
CREATE TABLE variant(
    id                               INTEGER PRIMARY KEY,
    kind                             TEXT NOT NULL CHECK(kind IN ('base variant', 'ECU variant')),
    @qualified,
    target_variant_qualifier         TEXT NOT NULL,
    reference_from_variant_qualifier TEXT NOT NULL,
    is_locked_in_target              INTEGER NOT NULL,
    is_imported_completely           INTEGER NOT NULL
);
CREATE TABLE diag_comm(
    id               INTEGER PRIMARY KEY,
    variant_id       INTEGER NOT NULL REFERENCES variant(id),
    position         INTEGER NOT NULL,
    kind             TEXT NOT NULL CHECK(kind IN ('service', 'job')),
    @qualified,
    service_id       INTEGER,
    semantic         TEXT,
    functional_class TEXT,
    CHECK((kind = 'service') = (service_id IS NOT NULL))
);
CREATE TABLE service_shape(
    id           INTEGER PRIMARY KEY,
    diag_comm_id INTEGER NOT NULL REFERENCES diag_comm(id),
    position     INTEGER NOT NULL,
    @qualified,
    sub_value    INTEGER NOT NULL
);
)";

Variants::Variants(Connection& connection, Tally& tally, Attributes& attributes)
    : m_attributes(attributes), m_variants(connection, tally, "variant"), m_diagComms(connection, tally, "diag_comm"),
      m_shapes(connection, tally, "service_shape") {}

void Variants::Write(ImportDame::VBaseVariant& variant, const std::function<void()>& written) {
    m_written = &written;
    DispatchVariant(variant);
    for (ImportDame::VEcuVariant& ecuVariant : variant.GetEcuVariantCollection())
        DispatchVariant(ecuVariant);
}

void Variants::VisitBaseVariant(ImportDame::VBaseVariant& variant) {
    WriteVariant("base variant", variant);
}

void Variants::VisitEcuVariant(ImportDame::VEcuVariant& variant) {
    WriteVariant("ECU variant", variant);
}

void Variants::WriteVariant(const char* kind, ImportDame::VVariant& variant) {
    const std::int64_t row = m_variants.NextRow();
    m_variants.Row(row, kind, variant, variant.GetTargetVariantQualifier(), variant.GetReferenceFromVariantQualifier(),
                   variant.GetVariantIsLockedInTarget(), variant.IsImportedCompletly());
    m_attributes.Write(AttributeOwner::Variant, row, variant.Attributes());
    m_position = 0;
    for (ImportDame::VDiagComm& diagComm : variant.DiagCommCollection()) {
        DispatchDiagComm(diagComm);
        ++m_position;
        (*m_written)();
    }
}

void Variants::VisitDiagService(ImportDame::VDiagService& service) {
    const std::int64_t row = m_diagComms.NextRow();
    m_diagComms.Row(row, m_variants.LastRow(), m_position, "service", service, service.GetServiceId(),
                    service.GetSemantic(), service.GetFunctClass());
    m_attributes.Write(AttributeOwner::DiagComm, row, service.Attributes());
    WriteShapes(row, service.DiagServiceShapeCollection());
}

void Variants::VisitDiagJob(ImportDame::VDiagJob& job) {
    const std::int64_t row = m_diagComms.NextRow();
    m_diagComms.Row(row, m_variants.LastRow(), m_position, "job", job, nullptr, nullptr, nullptr);
    m_attributes.Write(AttributeOwner::DiagComm, row, job.Attributes());
}

void Variants::WriteShapes(std::int64_t serviceRow, ImportDame::VDiagServiceShapeCollection& shapes) {
    std::int64_t position = 0;
    for (ImportDame::VDiagServiceShape& shape : shapes) {
        const std::int64_t row = m_shapes.NextRow();
        m_shapes.Row(row, serviceRow, position++, shape, shape.GetSubValue());
        m_attributes.Write(AttributeOwner::ServiceShape, row, shape.Attributes());
    }
}

} // namespace SqliteBackend
