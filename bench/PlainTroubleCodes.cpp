#include "TroubleCodeData.h"
#include "TroubleCodeModel.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Bench {

namespace {

struct Document;
struct TroubleCode;

struct Visitor {
    virtual ~Visitor() = default;
    virtual void Visit(TroubleCode& troubleCode) = 0;
};

struct Text {
    std::wstring text;
    std::wstring textId;
    bool hasTextId = false;
};

struct Attribute {
    explicit Attribute(Document& owner) : document(owner) {}

    Attribute(const Attribute& other);
    virtual ~Attribute() = default;

    Document& document;
    std::wstring qualifier;
    Text name;
    Text description;
    bool isImported = true;
    std::wstring sourceInfo;
    std::vector<std::unique_ptr<Attribute>> attributes;
    std::wstring objectIdentifier;
    unsigned int uniquenessId = 0;
    std::wstring value;
};

struct RecordItem {
    virtual ~RecordItem() = default;

    Text text;
    bool isEnum = false;
    unsigned short enumIndex = 0;

    RecordItem() = default;
    RecordItem(const RecordItem&) = default;
};

template <class T>
std::vector<std::unique_ptr<T>> CopyAll(const std::vector<std::unique_ptr<T>>& elements) {
    std::vector<std::unique_ptr<T>> copies;
    for (const auto& element : elements)
        copies.push_back(std::make_unique<T>(*element));
    return copies;
}

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
    std::vector<std::unique_ptr<RecordItem>> items;
    std::vector<std::unique_ptr<Attribute>> attributes;
    std::wstring objectIdentifier;
};

struct Document {
    std::vector<std::vector<std::unique_ptr<TroubleCode>>> collections;
};

Attribute::Attribute(const Attribute& other)
    : document(other.document), qualifier(other.qualifier), name(other.name), description(other.description),
      isImported(other.isImported), sourceInfo(other.sourceInfo), attributes(CopyAll(other.attributes)),
      objectIdentifier(other.objectIdentifier), uniquenessId(other.uniquenessId), value(other.value) {}

std::unique_ptr<TroubleCode> Make(Document& document, const TroubleCodeData& data) {
    auto troubleCode = std::make_unique<TroubleCode>(document);
    troubleCode->code = data.code;
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
        m_checksum.Add(troubleCode.code);
        m_checksum.Add(troubleCode.errorText.text.c_str());
        m_checksum.Add(troubleCode.objectIdentifier.c_str());
        for (const auto& item : troubleCode.items) {
            m_checksum.Add(item->text.text.c_str());
            m_checksum.Add(item->enumIndex);
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

class PlainModel : public TroubleCodeModel {
public:
    void Build(std::size_t count) override {
        TroubleCodeSource source;
        auto& collection = m_document.collections.emplace_back();
        for (std::size_t index = 0; index < count; ++index)
            collection.push_back(Make(m_document, source.Get(index)));
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (const auto& troubleCode : First())
            troubleCode->Accept(walker);
        return walker.Value();
    }

    void Copy() override { m_document.collections.push_back(CopyAll(First())); }

    bool Find(unsigned int code) override {
        return std::any_of(First().begin(), First().end(), [&](const auto& element) { return element->code == code; });
    }

    std::size_t ImportedCount() override {
        return static_cast<std::size_t>(
            std::count_if(First().begin(), First().end(), [](const auto& element) { return element->isImported; }));
    }

    void RemoveFromFront(std::size_t count) override {
        for (; count > 0; --count)
            First().erase(First().begin());
    }

    void Clear() override { First().clear(); }

private:
    std::vector<std::unique_ptr<TroubleCode>>& First() { return m_document.collections.front(); }

    Document m_document;
};

} // namespace

std::unique_ptr<TroubleCodeModel> MakePlainModel() {
    return std::make_unique<PlainModel>();
}

} // namespace Bench
