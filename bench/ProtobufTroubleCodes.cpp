#include "NarrowData.h"
#include "TroubleCodeModel.h"

#include <google/protobuf/arena.h>
#include <trouble_codes.pb.h>

#include <algorithm>

namespace Bench {

namespace {

void Fill(bench::TroubleCode& troubleCode, unsigned int code, const NarrowData& data) {
    troubleCode.set_code(code);
    troubleCode.set_is_imported(true);
    troubleCode.mutable_error_text()->set_text(data.errorText);
    troubleCode.set_object_identifier(data.objectIdentifier);
    for (const auto& item : data.items)
        troubleCode.add_items()->mutable_text()->set_text(item);
    troubleCode.mutable_items(1)->set_is_enum(true);
    troubleCode.mutable_items(1)->set_enum_index(data.enumIndex);
    bench::Attribute& attribute = *troubleCode.add_attributes();
    attribute.set_is_imported(true);
    attribute.set_qualifier(data.attributeQualifier);
    attribute.set_value(data.attributeValue);
}

void Add(Checksum& checksum, const bench::TroubleCode& troubleCode) {
    checksum.Add(troubleCode.code());
    checksum.Add(troubleCode.error_text().text().c_str());
    checksum.Add(troubleCode.object_identifier().c_str());
    for (const auto& item : troubleCode.items()) {
        checksum.Add(item.text().text().c_str());
        checksum.Add(item.enum_index());
    }
    for (const auto& attribute : troubleCode.attributes()) {
        checksum.Add(attribute.qualifier().c_str());
        checksum.Add(attribute.value().c_str());
    }
}

class ProtobufModel : public TroubleCodeModel {
public:
    /// The arena owns the document.
    ProtobufModel() : m_document(google::protobuf::Arena::CreateMessage<bench::Document>(&m_arena)) {}

    /// The model owns the document.
    explicit ProtobufModel(std::unique_ptr<bench::Document> document)
        : m_owned(std::move(document)), m_document(m_owned.get()) {}

    void Build(std::size_t count) override {
        NarrowSource source;
        auto* const codes = m_document->add_collections()->mutable_trouble_codes();
        for (std::size_t index = 0; index < count; ++index)
            Fill(*codes->Add(), source.Code(index), source.Get(index));
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (const auto& troubleCode : First())
            Add(checksum, troubleCode);
        return checksum.Value();
    }

    void Copy() override { m_document->add_collections()->CopyFrom(m_document->collections(0)); }

    bool Find(unsigned int code) override {
        return std::any_of(First().begin(), First().end(), [&](const auto& element) { return element.code() == code; });
    }

    std::size_t ImportedCount() override {
        return static_cast<std::size_t>(
            std::count_if(First().begin(), First().end(), [](const auto& element) { return element.is_imported(); }));
    }

    void RemoveFromFront(std::size_t count) override {
        for (; count > 0; --count)
            First().DeleteSubrange(0, 1);
    }

    void Clear() override { First().DeleteSubrange(0, First().size()); }

private:
    google::protobuf::RepeatedPtrField<bench::TroubleCode>& First() {
        return *m_document->mutable_collections(0)->mutable_trouble_codes();
    }

    google::protobuf::Arena m_arena;
    std::unique_ptr<bench::Document> m_owned;
    bench::Document* m_document;
};

} // namespace

std::unique_ptr<TroubleCodeModel> MakeProtobufModel() {
    return std::make_unique<ProtobufModel>(std::make_unique<bench::Document>());
}

std::unique_ptr<TroubleCodeModel> MakeProtobufArenaModel() {
    return std::make_unique<ProtobufModel>();
}

} // namespace Bench
