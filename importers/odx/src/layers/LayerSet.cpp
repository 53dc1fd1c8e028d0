#include "layers/LayerSet.h"

#include "links/Kinds.h"
#include "report/Words.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace OdxImport {

namespace {

constexpr std::array<std::pair<std::string_view, LayerKind>, 5> layerKinds{
    {{"ECU-SHARED-DATA", LayerKind::EcuSharedData},
     {"PROTOCOL", LayerKind::Protocol},
     {"FUNCTIONAL-GROUP", LayerKind::FunctionalGroup},
     {"BASE-VARIANT", LayerKind::BaseVariant},
     {"ECU-VARIANT", LayerKind::EcuVariant}}};

constexpr std::array<const char*, 10> dataObjectLists{
    "DATA-OBJECT-PROPS",        "DTC-DOPS",          "STRUCTURES", "STATIC-FIELDS", "DYNAMIC-LENGTH-FIELDS",
    "DYNAMIC-ENDMARKER-FIELDS", "END-OF-PDU-FIELDS", "MUXS",       "ENV-DATAS",     "ENV-DATA-DESCS"};

} // namespace

std::optional<LayerKind> LayerKindOf(std::string_view tag) {
    for (const auto& [name, kind] : layerKinds)
        if (name == tag)
            return kind;
    return std::nullopt;
}

void LayerSet::Add(XmlDocument& document) {
    const Element container = document.Root().Child("DIAG-LAYER-CONTAINER");
    for (const Element list : Children(container)) {
        for (const Element element : Children(list)) {
            const std::optional<LayerKind> kind = LayerKindOf(element.Tag());
            if (!kind)
                continue;
            Layer& layer = *m_layers.emplace_back(std::make_unique<Layer>());
            layer.kind = *kind;
            layer.element = element;
            layer.shortName = element.ShortName();
            if (layer.shortName.empty()) {
                layer.shortName = element.Attribute("ID");
                m_reporter.Report(Rule::ShortNameMissing, element.Where(), "this layer has no SHORT-NAME");
            }
            m_byElement.emplace(element.Identity(), &layer);
            ReportNamesake(layer);
        }
    }
}

void LayerSet::ReportNamesake(const Layer& layer) {
    const auto [first, isNew] = m_byName.emplace(layer.shortName, &layer);
    if (isNew || layer.shortName.empty())
        return;
    const Location where = first->second->element.Where();
    m_reporter.Report(
        Rule::ShortNameTwice, layer.element.Where(),
        Words({layer.element.Tag(), " \"", layer.shortName, "\" has the name of the ", first->second->element.Tag(),
               " in line ", std::to_string(where.line), " of ", where.file}));
}

void LayerSet::Connect() {
    for (const auto& layer : m_layers)
        ConnectImports(*layer);
    for (const auto& layer : m_layers)
        ConnectParents(*layer);
    CutCircles();
    for (const auto& layer : m_layers)
        AddOwn(*layer);
}

void LayerSet::AddOwn(Layer& layer) {
    for (const Element object : Children(layer.element.Child("DIAG-COMMS"))) {
        const bool isLink = object.Is("DIAG-COMM-REF");
        const Element diagComm = isLink ? m_links.Follow(object) : object;
        if (!diagComm)
            continue;
        if (isLink && std::find(Tags::diagComm.begin(), Tags::diagComm.end(), diagComm.Tag()) == Tags::diagComm.end()) {
            m_reporter.Report(Rule::LinkWrongKind, object.Where(),
                              "DIAG-COMM-REF leads to a " + std::string(diagComm.Tag()));
            object.Refuse(deadLink);
        } else {
            AddOwn(layer, Category::DiagComm, diagComm);
        }
    }
    const Element dictionary = layer.element.Child("DIAG-DATA-DICTIONARY-SPEC");
    for (const char* list : dataObjectLists)
        for (const Element object : Children(dictionary.Child(list)))
            AddOwn(layer, Category::DataObject, object);
    for (const Element object : Children(dictionary.Child("TABLES"), "TABLE"))
        AddOwn(layer, Category::Table, object);
    for (const Element object : Children(layer.element.Child("GLOBAL-NEG-RESPONSES")))
        AddOwn(layer, Category::GlobalNegResponse, object);
}

void LayerSet::AddOwn(Layer& layer, Category category, Element object) {
    std::string_view name = object.ShortName();
    if (name.empty()) {
        m_reporter.Report(Rule::ShortNameMissing, object.Where(),
                          std::string(object.Tag()) + " has no SHORT-NAME; its ID is used");
        name = object.Attribute("ID");
    }
    if (object.Attribute("ID").empty())
        m_reporter.Report(Rule::IdMissing, object.Where(), std::string(object.Tag()) + " has no ID");
    ObjectTable& table = layer.own[static_cast<std::size_t>(category)];
    if (const LayerObject* known = table.Find(0, name)) {
        m_reporter.Report(Rule::ShortNameTwice, object.Where(),
                          std::string(object.Tag()) + " \"" + std::string(name) + "\" has the name of the " +
                              std::string(known->element.Tag()) + " in line " +
                              std::to_string(known->element.Where().line));
    }
    table.Insert(0, name, {object, Around(object)});
}

std::vector<Layer*> LayerSet::OfKind(LayerKind kind) const {
    std::vector<Layer*> found;
    for (const auto& layer : m_layers)
        if (layer->kind == kind)
            found.push_back(layer.get());
    return found;
}

Layer* LayerSet::Around(Element element) const {
    const auto found = m_byElement.find(m_links.FragmentOf(element).Identity());
    return found == m_byElement.end() ? nullptr : found->second;
}

Layer* LayerSet::BaseVariantOf(const Layer& ecuVariant) {
    for (const ParentLink& link : ecuVariant.parents)
        if (link.parent->kind == LayerKind::BaseVariant)
            return link.parent;
    return nullptr;
}

} // namespace OdxImport
