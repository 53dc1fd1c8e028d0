#include "Data.h"
#include "Model.h"

#include <ImportDame/ImportDame.h>

namespace Bench {

namespace {

using namespace ImportDame;

/// The base variant: a service and an attribute for each element.
class LibraryVariant : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index) {
            const std::wstring qualifier = MakeText<wchar_t>("Read_", index, "_Stored");
            Services().AddNewDiagService().SetQualifier(qualifier.c_str());
            Attributes().AddNewAttribute().SetQualifier(qualifier.c_str());
        }
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (VDiagComm& service : Services())
            checksum.Add(service.GetQualifier());
        for (VAttribute& attribute : Attributes())
            checksum.Add(attribute.GetQualifier());
        return checksum.Value();
    }

    bool FindQualifier(const wchar_t* qualifier) override { return Attributes().Find(qualifier) != Attributes().End(); }

    void InitCache() override { Services().InitCache(); }

    std::size_t LookUp(std::size_t count) override {
        std::size_t found = 0;
        for (std::size_t index = 0; index < count; ++index)
            found += Services().GetFromCache(MakeText<wchar_t>("Read_", index, "_Stored").c_str()) ? 1U : 0U;
        return found;
    }

    std::size_t ImportedCount() override { return Services().ImportedCount(); }

    void Clear() override {
        Services().Clear();
        Attributes().Clear();
    }

private:
    VDiagCommCollection& Services() { return m_document.GetBaseVariant().DiagCommCollection(); }

    VAttributeCollection& Attributes() { return m_document.GetBaseVariant().Attributes(); }

    VImportDoc m_document;
};

} // namespace

std::unique_ptr<Model> MakeLibraryVariant() {
    return std::make_unique<LibraryVariant>();
}

} // namespace Bench
