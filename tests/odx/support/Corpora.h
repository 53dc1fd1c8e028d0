#ifndef ODXTESTS_SUPPORT_CORPORA_H
#define ODXTESTS_SUPPORT_CORPORA_H

#include "Corpus.h"
#include "OdxImport/Diagnostics.h"
#include "report/Reporter.h"

#include <string>
#include <string_view>
#include <vector>

namespace OdxTests {

OdxImport::Bytes ToBytes(std::string_view text);

/// Codes of the kept problems in the order they came: "ODX0302 ODX0305".
std::string Codes(const OdxImport::DiagnosticCollector& diagnostics);

/// Documents of a test, read from texts.
class TextCorpus {
public:
    TextCorpus() : reporter(diagnostics), corpus(reporter) {}

    /// A whole document.
    TextCorpus& Add(std::string_view xml);
    /// A container with these lists of layers in it.
    TextCorpus& AddContainer(std::string_view name, std::string_view lists);
    TextCorpus& Connect();

    OdxImport::Layer& Layer(std::string_view shortName);
    /// First element with this ID in any document.
    OdxImport::Element ById(std::string_view id);

    std::string Codes() const { return OdxTests::Codes(diagnostics); }

    OdxImport::DiagnosticCollector diagnostics;
    OdxImport::Reporter reporter;
    OdxImport::Corpus corpus;

private:
    int m_count = 0;
};

} // namespace OdxTests

#endif
