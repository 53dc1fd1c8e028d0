#include "support/Imports.h"

#include "support/Corpora.h"

#include <atomic>
#include <fstream>
#include <stdexcept>

namespace OdxTests {

using namespace ImportDame;

Imported::Imported(const OdxImport::ImportOptions& options) {
    OdxImport::NoProgress progress;
    result = OdxImport::Import(options, document, diagnostics, ledger, progress);
}

Imported::Imported(const std::filesystem::path& input)
    : Imported([&] {
          OdxImport::ImportOptions options;
          options.inputs.push_back(input);
          return options;
      }()) {}

std::string Imported::Codes() const {
    return OdxTests::Codes(diagnostics);
}

VDataType& Imported::FindDataType(const wchar_t* qualifier) {
    for (VDataType& type : document.DataTypeCollection())
        if (std::wstring_view(type.GetQualifier()) == qualifier)
            return type;
    throw std::runtime_error("no such data type");
}

TemporaryFile::TemporaryFile(std::string_view name, std::string_view content) {
    static std::atomic<int> count = 0;
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    m_folder =
        std::filesystem::temp_directory_path() / ("odxtest-" + std::to_string(stamp) + "-" + std::to_string(++count));
    std::filesystem::create_directories(m_folder);
    m_path = m_folder / name;
    std::ofstream(m_path, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

namespace {

class Describer final : public VInterchangeableVisitor {
public:
    std::wstring text;

    void VisitDataObject(VDataObject& object) override {
        Begin();
        text += object.GetQualifier();
        text += L':';
        if (object.GetDataType() != nullptr)
            text += object.GetDataType()->GetQualifier();
        if (object.HasConstValue())
            text += std::wstring(L"=") + object.GetConstValue().Get();
    }

    void VisitBitField(VBitField& field) override {
        Begin();
        text += L'[' + Describe(field.InterchangeableCollection()) + L']';
    }

    void VisitGapObject(VGapObject& gap) override {
        Begin();
        text += std::wstring(gap.GetQualifier()) + L"gap:" + std::to_wstring(gap.GetBitLength());
    }

private:
    void Begin() {
        if (!text.empty())
            text += L' ';
    }
};

} // namespace

std::wstring Describe(VInterchangeableCollection& members) {
    Describer describer;
    for (VInterchangeable& member : members)
        describer.DispatchInterchangeable(member);
    return describer.text;
}

std::wstring Describe(VRange& range) {
    std::wstring text = L"[";
    if (range.HasStartValue())
        text += range.GetStartValue().Get();
    text += L',';
    if (range.HasEndValue())
        text += range.GetEndValue().Get();
    return text + L']';
}

std::wstring Attribute(VAttributeCollection& attributes, const wchar_t* qualifier) {
    const auto found = attributes.Find(qualifier);
    return found == attributes.End() ? L"(none)" : (*found).GetValue();
}

std::string BaseVariant(std::string_view content) {
    std::string xml = "<ODX MODEL-VERSION=\"2.2.0\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">"
                      "<DIAG-LAYER-CONTAINER ID=\"c\"><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID=\"b\">"
                      "<SHORT-NAME>B</SHORT-NAME>";
    xml += content;
    return xml + "</BASE-VARIANT></BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>";
}

} // namespace OdxTests
