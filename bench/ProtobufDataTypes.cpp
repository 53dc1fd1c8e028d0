#include "Data.h"
#include "ProtobufModel.h"

namespace Bench {

namespace {

struct Policy {
    using Data = DataTypeData<char>;

    static auto& Elements(bench::Document& document) { return *document.mutable_data_types(); }

    static bool IsImported(const bench::DataType& type) { return type.base().is_imported(); }

    static void Fill(bench::DataType& type, std::size_t index) {
        const auto& data = Sample<Data>(index);
        type.mutable_base()->set_qualifier(data.qualifier);
        type.mutable_base()->mutable_name()->set_text(data.name);
        type.mutable_base()->set_is_imported(true);
        type.set_kind(static_cast<unsigned int>(data.kind));
        type.set_bit_length(data.bitLength);
        switch (data.kind) {
        case Kind::identity:
            return type.set_unit(data.rows[0].text);
        case Kind::linear:
            return SetNumbers(*type.add_rows(), data.rows[0]);
        case Kind::formula:
            type.set_to_physical(data.rows[0].text);
            return type.set_to_coded(data.rows[1].text);
        case Kind::procedure: {
            auto& function = *type.add_functions();
            function.set_entry_point(data.rows[0].text);
            return function.set_source_file(data.rows[1].text);
        }
        default:
            for (const auto& row : data.rows)
                Fill(*type.add_rows(), data.kind, row);
        }
    }

    static void Add(Checksum& checksum, const bench::DataType& type) {
        checksum.Add(type.base().qualifier());
        checksum.Add(type.base().name().text());
        checksum.Add(std::uint64_t{type.bit_length()});
        const auto kind = static_cast<Kind>(type.kind());
        if (kind == Kind::piecewiseLinear)
            checksum.AddSet(type.rows(), [=](Checksum& sum, const bench::Row& row) { Add(sum, kind, row); });
        else
            for (const auto& row : type.rows())
                Add(checksum, kind, row);
        if (kind == Kind::identity)
            checksum.Add(type.unit());
        if (kind == Kind::formula) {
            checksum.Add(type.to_physical());
            checksum.Add(type.to_coded());
        }
        for (const auto& function : type.functions()) {
            checksum.Add(function.entry_point());
            checksum.Add(function.source_file());
        }
    }

private:
    static void SetNumbers(bench::Row& row, const Data::Row& data) {
        row.set_first(data.first);
        row.set_second(data.second);
    }

    static void Fill(bench::Row& row, Kind kind, const Data::Row& data) {
        if (kind == Kind::textTable)
            row.mutable_text()->set_text(data.text);
        else
            SetNumbers(row, data);
        if (kind == Kind::valueTable)
            return;
        row.mutable_start()->set_text(data.start);
        row.mutable_end()->set_text(data.end);
    }

    static void Add(Checksum& checksum, Kind kind, const bench::Row& row) {
        if (kind == Kind::textTable) {
            checksum.Add(row.text().text());
        } else {
            checksum.Add(row.first());
            checksum.Add(row.second());
        }
        if (checksum.IsWhole() && row.has_start()) {
            checksum.Add(row.start().text());
            checksum.Add(row.end().text());
        }
    }
};

} // namespace

std::vector<Subject> ProtobufDataTypes() {
    return ProtobufSubjects<ProtobufModel<Policy>>();
}

} // namespace Bench
