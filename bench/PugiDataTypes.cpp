#include "Data.h"
#include "Model.h"

#include <pugixml.hpp>

namespace Bench {

namespace {

using Data = DataTypeData<char>;

/// How many rows a kind has; what they hold.
std::size_t RowCount(Kind kind) {
    const bool hasTable = kind == Kind::piecewiseLinear || kind == Kind::textTable || kind == Kind::valueTable;
    return hasTable ? 3 : kind == Kind::linear ? 1 : 0;
}

void Fill(pugi::xml_node row, Kind kind, const Data::Row& data) {
    if (kind == Kind::textTable) {
        row.append_attribute("text") = data.text.c_str();
    } else {
        row.append_attribute("first") = data.first;
        row.append_attribute("second") = data.second;
    }
    if (kind == Kind::textTable || kind == Kind::piecewiseLinear) {
        row.append_attribute("start") = data.start.c_str();
        row.append_attribute("end") = data.end.c_str();
    }
}

void Fill(pugi::xml_node type, const Data& data) {
    type.append_attribute("kind") = static_cast<unsigned int>(data.kind);
    type.append_attribute("qualifier") = data.qualifier.c_str();
    type.append_attribute("name") = data.name.c_str();
    type.append_attribute("imported") = true;
    type.append_attribute("bits") = data.bitLength;
    for (std::size_t row = 0; row < RowCount(data.kind); ++row)
        Fill(type.append_child("row"), data.kind, data.rows[row]);
    if (data.kind == Kind::identity)
        type.append_attribute("unit") = data.rows[0].text.c_str();
    if (data.kind == Kind::formula || data.kind == Kind::procedure) {
        type.append_attribute("first") = data.rows[0].text.c_str();
        type.append_attribute("second") = data.rows[1].text.c_str();
    }
}

void Add(Checksum& checksum, pugi::xml_node row, Kind kind) {
    if (kind == Kind::textTable) {
        checksum.Add(row.attribute("text").value());
    } else {
        checksum.Add(row.attribute("first").as_double());
        checksum.Add(row.attribute("second").as_double());
    }
    if (checksum.IsWhole() && (kind == Kind::textTable || kind == Kind::piecewiseLinear)) {
        checksum.Add(row.attribute("start").value());
        checksum.Add(row.attribute("end").value());
    }
}

void Add(Checksum& checksum, pugi::xml_node type) {
    const auto kind = static_cast<Kind>(type.attribute("kind").as_uint());
    checksum.Add(type.attribute("qualifier").value());
    checksum.Add(type.attribute("name").value());
    checksum.Add(std::uint64_t{type.attribute("bits").as_uint()});
    const auto rows = type.children("row");
    if (kind == Kind::piecewiseLinear)
        checksum.AddSet(rows, [=](Checksum& sum, pugi::xml_node row) { Add(sum, row, kind); });
    else
        for (pugi::xml_node row : rows)
            Add(checksum, row, kind);
    if (kind == Kind::identity)
        checksum.Add(type.attribute("unit").value());
    if (kind == Kind::formula || kind == Kind::procedure) {
        checksum.Add(type.attribute("first").value());
        checksum.Add(type.attribute("second").value());
    }
}

class PugiDataTypes : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index)
            Fill(m_document.append_child("type"), Sample<Data>(index));
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (pugi::xml_node type : m_document)
            Add(checksum, type);
        return checksum.Value();
    }

    std::size_t ImportedCount() override {
        std::size_t count = 0;
        for (pugi::xml_node type : m_document)
            count += type.attribute("imported").as_bool() ? 1U : 0U;
        return count;
    }

    void Clear() override { m_document.remove_children(); }

private:
    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<Model> MakePugiDataTypes() {
    return std::make_unique<PugiDataTypes>();
}

} // namespace Bench
