#include "Data.h"
#include "Model.h"
#include "PlainModel.h"

namespace Bench::Plain {

namespace {

struct Shape : Qualified {
    using Qualified::Qualified;
};

struct Service : Qualified {
    using Qualified::Qualified;

    unsigned int serviceId = 0;
    std::wstring semantic;
    std::wstring functionalClass;
    Owned<Shape> shapes;
    std::map<std::wstring, Shape*> shapeCache;
};

class PlainVariant : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index) {
            const std::wstring qualifier = MakeText<wchar_t>("Read_", index, "_Stored");
            m_services.push_back(std::make_unique<Service>(m_document));
            m_services.back()->qualifier = qualifier.c_str();
            m_attributes.push_back(std::make_unique<Attribute>(m_document));
            m_attributes.back()->qualifier = qualifier.c_str();
        }
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (const auto& service : m_services)
            checksum.Add(service->qualifier);
        for (const auto& attribute : m_attributes)
            checksum.Add(attribute->qualifier);
        return checksum.Value();
    }

    bool FindQualifier(const wchar_t* qualifier) override {
        return std::any_of(m_attributes.begin(), m_attributes.end(),
                           [=](const auto& attribute) { return attribute->qualifier == qualifier; });
    }

    void InitCache() override {
        m_cache.clear();
        for (const auto& service : m_services)
            m_cache.emplace(service->qualifier, service.get());
    }

    std::size_t LookUp(std::size_t count) override {
        std::size_t found = 0;
        for (std::size_t index = 0; index < count; ++index)
            found += m_cache.count(MakeText<wchar_t>("Read_", index, "_Stored"));
        return found;
    }

    std::size_t ImportedCount() override { return CountImported(m_services); }

    void Clear() override {
        m_services.clear();
        m_attributes.clear();
    }

private:
    Document m_document;
    Owned<Service> m_services;
    Owned<Attribute> m_attributes;
    std::map<std::wstring, Service*> m_cache;
};

} // namespace

} // namespace Bench::Plain

std::unique_ptr<Bench::Model> Bench::MakePlainVariant() {
    return std::make_unique<Plain::PlainVariant>();
}
