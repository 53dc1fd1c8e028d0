#include "mapping/DocumentMapper.h"

#include "mapping/DataTypes.h"
#include "mapping/FaultMemory.h"
#include "mapping/Naming.h"
#include "mapping/Services.h"
#include "mapping/SpecialData.h"
#include "mapping/TroubleCodes.h"
#include "mapping/Units.h"
#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>

namespace OdxImport {

namespace {

class DocumentMapper {
public:
    DocumentMapper(Workspace& workspace, ProgressSink& progress)
        : m_workspace(workspace), m_progress(progress), m_naming(workspace), m_units(workspace, m_naming),
          m_types(workspace, m_naming, m_units), m_codes(workspace, m_naming),
          m_services(workspace, m_naming, m_types) {}

    void Map(const std::string& language) {
        Layer& base = m_workspace.BaseVariant();
        std::vector<Layer*> variants{&base};
        variants.insert(variants.end(), m_workspace.EcuVariants().begin(), m_workspace.EcuVariants().end());
        DescribeDocument(base, language);
        for (const auto& layer : m_workspace.Layers().All())
            if (m_workspace.IsPart(*layer))
                TakeLayer(*layer);

        ImportDame::VBaseVariant& baseVariant = m_workspace.Document().GetBaseVariant();
        const std::uint64_t steps = variants.size() * 2 + 1;
        std::uint64_t step = 0;
        for (Layer* layer : variants) {
            m_progress.Step(Phase::Mapping, step++, steps);
            MapObjects(*layer);
        }
        for (Layer* layer : variants) {
            m_progress.Step(Phase::Mapping, step++, steps);
            if (layer == &base)
                MapVariant(baseVariant, *layer);
            else
                MapVariant(baseVariant.GetEcuVariantCollection().AddNewEcuVariant(), *layer);
        }
        m_types.Finish();
        MapTroubleCodes();
        m_progress.Step(Phase::Mapping, steps, steps);
    }

private:
    void DescribeDocument(Layer& base, const std::string& language) const {
        ImportDame::VImportDoc& document = m_workspace.Document();
        document.SetEcuName(Widen(base.shortName).c_str());
        const Element container = base.element.Parent().Parent();
        Element admin = base.element.Child("ADMIN-DATA");
        if (!admin)
            admin = container.Child("ADMIN-DATA");
        document.SetLanguage(
            Widen(language.empty() ? admin.Child("LANGUAGE").Text() : std::string_view(language)).c_str());
        for (const Element revision : Children(admin.Child("DOC-REVISIONS"), "DOC-REVISION"))
            if (const Element label = revision.Child("REVISION-LABEL")) // the last one is the newest
                document.SetKDIVersion(Widen(label.Text()).c_str());
    }

    /// What is read of a layer beyond its objects.
    void TakeLayer(Layer& layer) {
        layer.element.Taken().Take("SHORT-NAME");
        layer.element.Child("LONG-NAME").TakeAll();
        for (const Element link : Children(layer.element.Take("PARENT-REFS"), "PARENT-REF"))
            LayerSet::TakeParentLink(link);
        for (const Element link : Children(layer.element.Take("IMPORT-REFS"), "IMPORT-REF"))
            link.Taken();
        for (const Element link : Children(layer.element.Child("DIAG-COMMS"), "DIAG-COMM-REF"))
            link.Taken();
        m_units.AddAllOf(layer);
    }

    /// The base variant comes first; a variant that sees everything as it does has nothing to add.
    void MapObjects(Layer& layer) {
        LayerSet& layers = m_workspace.Layers();
        if (layers.IsAsItsBase(layer))
            return;
        m_workspace.LookAs(layer.kind == LayerKind::EcuVariant ? &layer : nullptr);
        layers.Effective(layer, Category::DataObject).ForEach([&](const ObjectTable::Entry& entry) {
            m_types.For(entry.value.element);
            return true;
        });
        layers.Effective(layer, Category::Table).ForEach([&](const ObjectTable::Entry& entry) {
            m_types.For(entry.value.element);
            return true;
        });
    }

    /// Those of every DTC-DOP that the layers have or that something in them leads to.
    void MapTroubleCodes() {
        std::vector<FaultMemory> memories;
        for (const DataTypes::DtcDop& dtcDop : m_types.DtcDops()) {
            m_workspace.LookAs(dtcDop.view);
            memories.push_back({&m_codes.Add(dtcDop.element), dtcDop.type});
        }
        m_workspace.LookAs(nullptr);
        MapFaultMemories(memories, m_services, m_types, m_workspace);
    }

    void MapVariant(ImportDame::VVariant& variant, Layer& layer) {
        m_naming.Describe(variant, layer.element);
        DescribeContainer(variant, layer.element.Parent().Parent());
        m_workspace.LookAs(layer.kind == LayerKind::EcuVariant ? &layer : nullptr);
        m_services.AddAll(variant, layer);
        if (layer.kind == LayerKind::EcuVariant)
            variant.SetReferenceFromVariantQualifier(Mention(m_workspace.BaseVariant().shortName).c_str());
        variant.SetTargetVariantQualifier(Widen(layer.shortName).c_str());
    }

    /// A container has no object of its own: what it says goes to the first of its variants.
    void DescribeContainer(ImportDame::VVariant& variant, Element container) const {
        if (container.IsTaken())
            return;
        container.Taken().Take("SHORT-NAME");
        AddAttribute(variant.Attributes(), L"CONTAINER", Naming::NameOf(container));
        AddSpecialData(variant.Attributes(), container, m_workspace);
        AddAdminData(variant.Attributes(), container, m_workspace);
    }

    Workspace& m_workspace;
    ProgressSink& m_progress;
    Naming m_naming;
    Units m_units;
    DataTypes m_types;
    TroubleCodes m_codes;
    Services m_services;
};

} // namespace

void MapDocument(Workspace& workspace, const std::string& language, ProgressSink& progress) {
    DocumentMapper(workspace, progress).Map(language);
}

} // namespace OdxImport
