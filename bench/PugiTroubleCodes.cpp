#include "Data.h"
#include "Model.h"

#include <pugixml.hpp>

namespace Bench {

namespace {

void Fill(pugi::xml_node troubleCode, std::size_t index) {
    const auto& data = Sample<TroubleCodeData<char>>(index);
    troubleCode.append_attribute("code") = CodeOf(index);
    troubleCode.append_attribute("imported") = true;
    troubleCode.append_attribute("text") = data.errorText.c_str();
    troubleCode.append_attribute("oid") = data.objectIdentifier.c_str();
    for (std::size_t place = 0; place < data.items.size(); ++place) {
        pugi::xml_node item = troubleCode.append_child("item");
        item.append_attribute("text") = data.items[place].c_str();
        if (place == 1)
            item.append_attribute("enum") = data.enumIndex;
    }
    pugi::xml_node attribute = troubleCode.append_child("attribute");
    attribute.append_attribute("qualifier") = data.attributeQualifier.c_str();
    attribute.append_attribute("value") = data.attributeValue.c_str();
}

void Add(Checksum& checksum, pugi::xml_node troubleCode) {
    checksum.Add(std::uint64_t{troubleCode.attribute("code").as_uint()});
    checksum.Add(troubleCode.attribute("text").value());
    checksum.Add(troubleCode.attribute("oid").value());
    for (pugi::xml_node item : troubleCode.children("item")) {
        checksum.Add(item.attribute("text").value());
        checksum.Add(std::uint64_t{item.attribute("enum").as_uint()});
    }
    for (pugi::xml_node attribute : troubleCode.children("attribute")) {
        checksum.Add(attribute.attribute("qualifier").value());
        checksum.Add(attribute.attribute("value").value());
    }
}

class PugiTroubleCodes : public Model {
public:
    void Build(std::size_t count) override {
        pugi::xml_node collection = m_document.append_child("collection");
        for (std::size_t index = 0; index < count; ++index)
            Fill(collection.append_child("code"), index);
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (pugi::xml_node troubleCode : m_document.first_child())
            Add(checksum, troubleCode);
        return checksum.Value();
    }

    void Copy() override { m_document.append_copy(m_document.first_child()); }

    bool FindCode(unsigned int code) override {
        return bool(m_document.first_child().find_child(
            [&](pugi::xml_node node) { return node.attribute("code").as_uint() == code; }));
    }

    std::size_t ImportedCount() override {
        std::size_t count = 0;
        for (pugi::xml_node troubleCode : m_document.first_child())
            count += troubleCode.attribute("imported").as_bool() ? 1U : 0U;
        return count;
    }

    void RemoveFromFront(std::size_t count) override {
        pugi::xml_node collection = m_document.first_child();
        for (; count > 0; --count)
            collection.remove_child(collection.first_child());
    }

    void Clear() override { m_document.first_child().remove_children(); }

private:
    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<Model> MakePugiTroubleCodes() {
    return std::make_unique<PugiTroubleCodes>();
}

} // namespace Bench
