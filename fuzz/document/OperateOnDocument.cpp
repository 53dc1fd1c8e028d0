#include "ConcreteDumper.h"
#include "document/Kinds.h"

#include <ImportDame/DataTypeDefaultVisitor.h>
#include <KoLogging/Logging.h>

namespace Fuzz {

using namespace ImportDame;

namespace {

/// Counts the lines that a dump writes about data types while it lives.
class LineCounter : private NArdenaSharedUtil::Logging::VLogSink {
public:
    LineCounter() {
        auto& logging = NArdenaSharedUtil::Logging::VLogging::GetInstance();
        logging.SetSink(this);
        logging.SetEnabled(true);
    }

    LineCounter(const LineCounter&) = delete;

    ~LineCounter() override {
        auto& logging = NArdenaSharedUtil::Logging::VLogging::GetInstance();
        logging.SetEnabled(false);
        logging.SetSink(nullptr);
    }

    [[nodiscard]] int DataTypeLines() const { return m_dataTypeLines; }

private:
    void Write(NArdenaSharedUtil::Logging::VSeverityLevel, unsigned long, const wchar_t* text) override {
        const std::wstring_view line = text;
        Expect(line.starts_with(L"IMPORTDAME DUMP: "), "a record that is no line of a dump");
        m_dataTypeLines += line.substr(0, line.find(L'\'')).ends_with(L"DataType: ") ? 1 : 0;
    }

    int m_dataTypeLines = 0;
};

/// Counts the data types of which a dump writes a line.
class DumpedTypes : public VDataTypeDefaultVisitor {
public:
    int Count(VDataTypeCollection& collection) {
        for (VDataType& dataType : collection)
            dataType.Accept(*this);
        return m_count;
    }

private:
    void VisitDataType(VDataType&) override { ++m_count; }

    void VisitMuxDataType(VMuxDataType&) override {}

    int m_count = 0;
};

/// A document with what should be in it.
class DocumentShadow {
public:
    DocumentShadow() {
        m_shadows.push_back(MakeShadow<DiagCommKind>(m_document, Base().DiagCommCollection()));
        m_shadows.push_back(
            MakeShadow<TroubleCodeCollectionKind>(m_document, m_document.TroubleCodeCollectionCollection()));
        m_shadows.push_back(MakeShadow<DataTypeKind>(m_document, m_document.DataTypeCollection()));
        m_shadows.push_back(MakeShadow<InterchangeableKind>(m_document, m_document.InterchangeableCollection()));
        m_shadows.push_back(MakeShadow<EcuVariantKind>(m_document, Base().GetEcuVariantCollection()));
        m_shadows.push_back(MakeShadow<UnitKind>(m_document, m_document.UnitCollection()));
    }

    void Step(Bytes& bytes) {
        const std::size_t choice = bytes.Below(m_shadows.size() + 1);
        if (choice < m_shadows.size())
            return m_shadows[choice]->Step(bytes);
        m_isBaseImported = bytes.Bool();
        Base().IsImported(m_isBaseImported);
        m_shadows[0]->NoteOwnerIsImported(m_isBaseImported);
    }

    void ExpectSame() {
        for (const auto& shadow : m_shadows)
            shadow->ExpectSame();
        Expect(Base().IsImported() == m_isBaseImported, "another imported flag of the base variant");
        Expect(Base().IsImportedCompletly() == (m_isBaseImported && m_shadows[0]->IsImportedThroughout()),
               "completely imported or not");
        Expect(m_document.IsConstructed(), "the document is not registered");
    }

    void Dump() {
        const LineCounter counter;
        ConcreteDumper().Dump(m_document);
        Expect(counter.DataTypeLines() == DumpedTypes().Count(m_document.DataTypeCollection()),
               "another number of dumped data types");
    }

private:
    VBaseVariant& Base() { return m_document.GetBaseVariant(); }

    VImportDoc m_document;
    Shadows m_shadows;
    bool m_isBaseImported = false;
};

} // namespace

void OperateOnDocument(Input input) {
    Bytes bytes(input);
    DocumentShadow document;
    while (!bytes.IsEmpty())
        document.Step(bytes);
    document.ExpectSame();
    document.Dump();
    document.ExpectSame();
}

} // namespace Fuzz
