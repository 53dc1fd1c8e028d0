#include "Data.h"
#include "Model.h"

#include <pugixml.hpp>

#include <string_view>

namespace Bench {

namespace {

void Fill(pugi::xml_node packet, const PacketData<char>& data) {
    packet.append_attribute("qualifier") = data.qualifier.c_str();
    packet.append_attribute("imported") = true;
    for (const auto& qualifier : data.objects) {
        pugi::xml_node object = packet.append_child("object");
        object.append_attribute("qualifier") = qualifier.c_str();
        object.append_attribute("constant") = data.constant.c_str();
    }
    pugi::xml_node bitField = packet.append_child("bits");
    bitField.append_attribute("qualifier") = data.bitField.c_str();
    for (const auto& qualifier : data.bits)
        bitField.append_child("object").append_attribute("qualifier") = qualifier.c_str();
    packet.append_child("gap").append_attribute("bits") = data.gap;
}

void Add(Checksum& checksum, pugi::xml_node member) {
    const std::string_view kind = member.name();
    if (kind == "gap")
        return checksum.Add(std::uint64_t{member.attribute("bits").as_uint()});
    checksum.Add(member.attribute("qualifier").value());
    if (kind == "object") {
        const pugi::xml_attribute constant = member.attribute("constant");
        checksum.Add(std::uint64_t{bool(constant)});
        if (checksum.IsWhole())
            checksum.Add(constant.value());
    }
    for (pugi::xml_node nested : member)
        Add(checksum, nested);
}

class Counter : public pugi::xml_tree_walker {
public:
    bool for_each(pugi::xml_node&) override {
        ++m_count;
        return true;
    }

    [[nodiscard]] std::size_t Count() const { return m_count; }

private:
    std::size_t m_count = 0;
};

class PugiPackets : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index)
            Fill(m_document.append_child("packet"), Sample<PacketData<char>>(index));
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (pugi::xml_node packet : m_document)
            Add(checksum, packet);
        return checksum.Value();
    }

    std::size_t ImportedCount() override {
        std::size_t count = 0;
        for (pugi::xml_node packet : m_document)
            count += packet.attribute("imported").as_bool() ? 1U : 0U;
        return count;
    }

    std::size_t Traverse() override {
        Counter counter;
        m_document.traverse(counter);
        return counter.Count();
    }

    void Clear() override { m_document.remove_children(); }

private:
    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<Model> MakePugiPackets() {
    return std::make_unique<PugiPackets>();
}

} // namespace Bench
