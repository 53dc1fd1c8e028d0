#include "Data.h"
#include "Model.h"
#include "PlainModel.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Bench::Plain {

namespace {

struct TroubleCode;

struct Visitor {
    virtual ~Visitor() = default;
    virtual void Visit(TroubleCode& troubleCode) = 0;
};

struct RecordItem {
    virtual ~RecordItem() = default;

    Text text;
    bool isEnum = false;
    unsigned short enumIndex = 0;

    RecordItem() = default;
    RecordItem(const RecordItem&) = default;
};

struct TroubleCode {
    explicit TroubleCode(Document& owner) : document(owner) {}

    TroubleCode(const TroubleCode& other)
        : document(other.document), code(other.code), errorText(other.errorText), isImported(other.isImported),
          items(CopyAll(other.items)), attributes(CopyAll(other.attributes)), objectIdentifier(other.objectIdentifier) {
    }

    virtual ~TroubleCode() = default;

    virtual void Accept(Visitor& visitor) { visitor.Visit(*this); }

    Document& document;
    unsigned int code = 0;
    Text errorText;
    bool isImported = true;
    Owned<RecordItem> items;
    Owned<Attribute> attributes;
    std::wstring objectIdentifier;
};

std::unique_ptr<TroubleCode> Make(Document& document, std::size_t index) {
    const auto& data = Sample<TroubleCodeData<wchar_t>>(index);
    auto troubleCode = std::make_unique<TroubleCode>(document);
    troubleCode->code = CodeOf(index);
    troubleCode->errorText.text = data.errorText.c_str();
    troubleCode->objectIdentifier = data.objectIdentifier.c_str();
    for (const auto& item : data.items) {
        troubleCode->items.push_back(std::make_unique<RecordItem>());
        troubleCode->items.back()->text.text = item.c_str();
    }
    troubleCode->items[1]->isEnum = true;
    troubleCode->items[1]->enumIndex = data.enumIndex;
    troubleCode->attributes.push_back(std::make_unique<Attribute>(document));
    troubleCode->attributes.back()->qualifier = data.attributeQualifier.c_str();
    troubleCode->attributes.back()->value = data.attributeValue.c_str();
    return troubleCode;
}

class Walker : public Visitor {
public:
    explicit Walker(Depth depth) : m_checksum(depth) {}

    void Visit(TroubleCode& troubleCode) override {
        m_checksum.Add(std::uint64_t{troubleCode.code});
        m_checksum.Add(troubleCode.errorText.text.c_str());
        m_checksum.Add(troubleCode.objectIdentifier.c_str());
        for (const auto& item : troubleCode.items) {
            m_checksum.Add(item->text.text.c_str());
            m_checksum.Add(std::uint64_t{item->enumIndex});
        }
        for (const auto& attribute : troubleCode.attributes) {
            m_checksum.Add(attribute->qualifier.c_str());
            m_checksum.Add(attribute->value.c_str());
        }
    }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    Checksum m_checksum;
};

class PlainTroubleCodes : public Model {
public:
    void Build(std::size_t count) override {
        auto& collection = m_collections.emplace_back();
        for (std::size_t index = 0; index < count; ++index)
            collection.push_back(Make(m_document, index));
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (const auto& troubleCode : First())
            troubleCode->Accept(walker);
        return walker.Value();
    }

    void Copy() override { m_collections.push_back(CopyAll(First())); }

    bool FindCode(unsigned int code) override {
        return std::any_of(First().begin(), First().end(), [&](const auto& element) { return element->code == code; });
    }

    std::size_t ImportedCount() override { return CountImported(First()); }

    void RemoveFromFront(std::size_t count) override {
        for (; count > 0; --count)
            First().erase(First().begin());
    }

    void Clear() override { First().clear(); }

private:
    Owned<TroubleCode>& First() { return m_collections.front(); }

    Document m_document;
    std::vector<Owned<TroubleCode>> m_collections;
};

} // namespace

} // namespace Bench::Plain

std::unique_ptr<Bench::Model> Bench::MakePlainTroubleCodes() {
    return std::make_unique<Plain::PlainTroubleCodes>();
}
