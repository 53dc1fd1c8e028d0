#include "support/Corpora.h"

#include "xml/Walk.h"

#include <algorithm>
#include <stdexcept>

namespace OdxTests {

using namespace OdxImport;

Bytes ToBytes(std::string_view text) {
    Bytes bytes(text.size());
    std::copy(text.begin(), text.end(), bytes.Data());
    return bytes;
}

std::string Codes(const DiagnosticCollector& diagnostics) {
    std::string codes;
    for (const Diagnostic& diagnostic : diagnostics.Kept())
        codes.append(codes.empty() ? "" : " ").append(InfoOf(diagnostic.rule).code);
    return codes;
}

TextCorpus& TextCorpus::Add(std::string_view xml) {
    corpus.Add({"doc" + std::to_string(++m_count) + ".odx", {}, ToBytes(xml)}, 200);
    return *this;
}

TextCorpus& TextCorpus::AddContainer(std::string_view name, std::string_view lists) {
    std::string xml = "<ODX MODEL-VERSION=\"2.2.0\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">"
                      "<DIAG-LAYER-CONTAINER ID=\"";
    xml.append(name).append("\"><SHORT-NAME>").append(name).append("</SHORT-NAME>").append(lists);
    return Add(xml + "</DIAG-LAYER-CONTAINER></ODX>");
}

TextCorpus& TextCorpus::Connect() {
    corpus.Connect();
    return *this;
}

Layer& TextCorpus::Layer(std::string_view shortName) {
    for (const auto& layer : corpus.Layers().All())
        if (layer->shortName == shortName)
            return *layer;
    throw std::runtime_error("no layer " + std::string(shortName));
}

Element TextCorpus::ById(std::string_view id) {
    Element found;
    for (const auto& document : corpus.Documents())
        WalkElements(document->Root(), [&](Element element, std::uint32_t) {
            if (!found && element.Attribute("ID") == id)
                found = element;
            return true;
        });
    return found;
}

} // namespace OdxTests
