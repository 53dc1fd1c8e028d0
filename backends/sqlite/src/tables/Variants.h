#ifndef SQLITEBACKEND_VARIANTS_H
#define SQLITEBACKEND_VARIANTS_H

#include "store/Insert.h"
#include "tables/Attributes.h"

#include <ImportDame/DiagCommVisitor.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/VariantVisitor.h>

#include <cstdint>
#include <functional>

namespace SqliteBackend {

/// The base variant, the ECU variants, and their diagnostic communications with their shapes.
class Variants : private ImportDame::VVariantVisitor, private ImportDame::VDiagCommVisitor {
public:
    static const char* const schema;

    Variants(Connection& connection, Tally& tally, Attributes& attributes);

    /// `written` is called after each diagnostic communication.
    void Write(ImportDame::VBaseVariant& variant, const std::function<void()>& written);

private:
    void VisitBaseVariant(ImportDame::VBaseVariant& variant) override;
    void VisitEcuVariant(ImportDame::VEcuVariant& variant) override;
    void VisitDiagService(ImportDame::VDiagService& service) override;
    void VisitDiagJob(ImportDame::VDiagJob& job) override;

    void WriteVariant(const char* kind, ImportDame::VVariant& variant);
    void WriteShapes(std::int64_t serviceRow, ImportDame::VDiagServiceShapeCollection& shapes);

    Attributes& m_attributes;
    Insert m_variants;
    Insert m_diagComms;
    Insert m_shapes;
    std::int64_t m_position = 0; // of the diagnostic communication in its variant
    const std::function<void()>* m_written = nullptr;
};

} // namespace SqliteBackend

#endif
