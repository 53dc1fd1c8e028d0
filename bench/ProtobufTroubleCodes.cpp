#include "Data.h"
#include "ProtobufModel.h"

namespace Bench {

namespace {

struct Policy {
    static auto& Elements(bench::Document& document) {
        if (document.collections().empty())
            document.add_collections();
        return *document.mutable_collections(0)->mutable_elements();
    }

    static bool IsImported(const bench::TroubleCode& troubleCode) { return troubleCode.is_imported(); }

    static void Fill(bench::TroubleCode& troubleCode, std::size_t index) {
        const auto& data = Sample<TroubleCodeData<char>>(index);
        troubleCode.set_code(CodeOf(index));
        troubleCode.set_is_imported(true);
        troubleCode.mutable_error_text()->set_text(data.errorText);
        troubleCode.set_object_identifier(data.objectIdentifier);
        for (const auto& item : data.items)
            troubleCode.add_items()->mutable_text()->set_text(item);
        troubleCode.mutable_items(1)->set_is_enum(true);
        troubleCode.mutable_items(1)->set_enum_index(data.enumIndex);
        bench::Attribute& attribute = *troubleCode.add_attributes();
        attribute.mutable_base()->set_is_imported(true);
        attribute.mutable_base()->set_qualifier(data.attributeQualifier);
        attribute.set_value(data.attributeValue);
    }

    static void Add(Checksum& checksum, const bench::TroubleCode& troubleCode) {
        checksum.Add(std::uint64_t{troubleCode.code()});
        checksum.Add(troubleCode.error_text().text());
        checksum.Add(troubleCode.object_identifier());
        for (const auto& item : troubleCode.items()) {
            checksum.Add(item.text().text());
            checksum.Add(std::uint64_t{item.enum_index()});
        }
        for (const auto& attribute : troubleCode.attributes()) {
            checksum.Add(attribute.base().qualifier());
            checksum.Add(attribute.value());
        }
    }
};

class TroubleCodes : public ProtobufModel<Policy> {
public:
    using ProtobufModel::ProtobufModel;

    void Copy() override { Document().add_collections()->CopyFrom(Document().collections(0)); }

    bool FindCode(unsigned int code) override {
        const auto& elements = Policy::Elements(Document());
        return std::any_of(elements.begin(), elements.end(),
                           [&](const auto& element) { return element.code() == code; });
    }
};

} // namespace

std::vector<Subject> ProtobufTroubleCodes() {
    return ProtobufSubjects<TroubleCodes>();
}

} // namespace Bench
