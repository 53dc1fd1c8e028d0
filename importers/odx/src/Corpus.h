#ifndef ODXIMPORT_CORPUS_H
#define ODXIMPORT_CORPUS_H

#include "OdxImport/Importer.h"
#include "layers/LayerSet.h"
#include "links/LinkIndex.h"
#include "report/Reporter.h"
#include "source/Inputs.h"

#include <memory>
#include <vector>

namespace OdxImport {

/// Everything that was read: the documents, what links lead to, and the layers.
class Corpus {
public:
    explicit Corpus(const Reporter& reporter) : m_reporter(reporter), m_links(reporter), m_layers(m_links, reporter) {}

    /// Reads and connects everything.
    void Read(const ImportOptions& options, ProgressSink& progress);

    /// Adds one document; what is no ODX is reported and left out.
    void Add(SourceDocument&& source, std::uint32_t nesting);
    /// To be called once all documents are there.
    void Connect();

    const std::vector<std::unique_ptr<XmlDocument>>& Documents() const { return m_documents; }

    const std::vector<InputDocument>& Summaries() const { return m_summaries; }

    LinkIndex& Links() { return m_links; }

    LayerSet& Layers() { return m_layers; }

private:
    void CheckRoot(XmlDocument& document, InputDocument& summary) const;

    const Reporter& m_reporter;
    std::vector<std::unique_ptr<XmlDocument>> m_documents;
    std::vector<InputDocument> m_summaries;
    LinkIndex m_links;
    LayerSet m_layers;
};

} // namespace OdxImport

#endif
