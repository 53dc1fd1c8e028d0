#include "PlainDataTypes.h"

#include "Data.h"
#include "Model.h"

namespace Bench::Plain::DataTypes {

namespace {

using Data = DataTypeData<wchar_t>;

template <class T>
T& AddNew(Owned<T>& elements) {
    return *elements.emplace_back(std::make_unique<T>());
}

void Fill(Range& range, const Data::Row& row) {
    range.hasStart = range.hasEnd = true;
    range.start.text = row.start.c_str();
    range.end.text = row.end.c_str();
}

void Fill(Segment& segment, const Data::Row& row) {
    segment.numerator = row.first;
    segment.offset = row.second;
}

/// Gives every kind of data type what is particular to it.
class Filler : public Visitor {
public:
    explicit Filler(const Data& data) : m_data(data) {}

    void Visit(Identity& type) override { type.display.unit = m_data.rows[0].text.c_str(); }

    void Visit(Linear& type) override { Fill(type.segment, m_data.rows[0]); }

    void Visit(PiecewiseLinear& type) override {
        for (const auto& row : m_data.rows) {
            Segment& segment = AddNew(type.segments);
            Fill(segment, row);
            Fill(segment.range, row);
        }
    }

    void Visit(TextTable& type) override {
        for (const auto& data : m_data.rows) {
            TextRow& row = AddNew(type.rows);
            row.mapped.text = data.text.c_str();
            Fill(row.range, data);
        }
    }

    void Visit(ValueTable& type) override {
        for (const auto& data : m_data.rows) {
            ValueRow& row = AddNew(type.rows);
            row.coded = data.first;
            row.mapped = data.second;
        }
    }

    void Visit(Formula& type) override {
        type.toPhysical = m_data.rows[0].text.c_str();
        type.toCoded = m_data.rows[1].text.c_str();
        type.hasToCoded = true;
    }

    void Visit(Procedure& type) override {
        Function& function = AddNew(type.toPhysical);
        function.entryPoint = m_data.rows[0].text.c_str();
        function.sourceFile = m_data.rows[1].text.c_str();
    }

private:
    const Data& m_data;
};

std::unique_ptr<DataType> MakeOfKind(Document& document, Kind kind) {
    switch (kind) {
    case Kind::identity:
        return std::make_unique<Identity>(document);
    case Kind::linear:
        return std::make_unique<Linear>(document);
    case Kind::piecewiseLinear:
        return std::make_unique<PiecewiseLinear>(document);
    case Kind::textTable:
        return std::make_unique<TextTable>(document);
    case Kind::valueTable:
        return std::make_unique<ValueTable>(document);
    case Kind::formula:
        return std::make_unique<Formula>(document);
    case Kind::procedure:
        break;
    }
    return std::make_unique<Procedure>(document);
}

void AddLimits(Checksum& checksum, const Range& range) {
    checksum.Add(range.start.text);
    checksum.Add(range.end.text);
}

class Walker : public Visitor {
public:
    explicit Walker(Depth depth) : m_checksum(depth) {}

    void Walk(DataType& type) {
        m_checksum.Add(type.qualifier);
        m_checksum.Add(type.name.text);
        m_checksum.Add(std::uint64_t{type.coded.bitLength});
        type.Accept(*this);
    }

    void Visit(Identity& type) override { m_checksum.Add(type.display.unit); }

    void Visit(Linear& type) override { Add(m_checksum, type.segment); }

    void Visit(PiecewiseLinear& type) override {
        m_checksum.AddSet(type.segments, [](Checksum& checksum, const std::unique_ptr<Segment>& segment) {
            Add(checksum, *segment);
            if (checksum.IsWhole())
                AddLimits(checksum, segment->range);
        });
    }

    void Visit(TextTable& type) override {
        for (const auto& row : type.rows) {
            m_checksum.Add(row->mapped.text);
            if (m_checksum.IsWhole())
                AddLimits(m_checksum, row->range);
        }
    }

    void Visit(ValueTable& type) override {
        for (const auto& row : type.rows) {
            m_checksum.Add(row->coded);
            m_checksum.Add(row->mapped);
        }
    }

    void Visit(Formula& type) override {
        m_checksum.Add(type.toPhysical);
        m_checksum.Add(type.toCoded);
    }

    void Visit(Procedure& type) override {
        for (const auto& function : type.toPhysical) {
            m_checksum.Add(function->entryPoint);
            m_checksum.Add(function->sourceFile);
        }
    }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    static void Add(Checksum& checksum, const Segment& segment) {
        checksum.Add(segment.numerator);
        checksum.Add(segment.offset);
    }

    Checksum m_checksum;
};

class LimitReader : public Visitor {
public:
    void Visit(Identity&) override {}

    void Visit(Linear&) override {}

    void Visit(ValueTable&) override {}

    void Visit(Formula&) override {}

    void Visit(Procedure&) override {}

    void Visit(PiecewiseLinear& type) override {
        for (const auto& segment : type.segments)
            AddLimits(m_checksum, segment->range);
    }

    void Visit(TextTable& type) override {
        for (const auto& row : type.rows)
            AddLimits(m_checksum, row->range);
    }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    Checksum m_checksum{Depth::touch};
};

class Counter : public Traverser {
public:
    void PreProcess(Identity&) override { ++m_count; }

    void PreProcess(Linear&) override { ++m_count; }

    void PreProcess(PiecewiseLinear&) override { ++m_count; }

    void PreProcess(TextTable&) override { ++m_count; }

    void PreProcess(ValueTable&) override { ++m_count; }

    void PreProcess(Formula&) override { ++m_count; }

    void PreProcess(Procedure&) override { ++m_count; }

    [[nodiscard]] std::size_t Count() const { return m_count; }

private:
    std::size_t m_count = 0;
};

class PlainDataTypes : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index) {
            const auto& data = Sample<Data>(index);
            auto type = MakeOfKind(m_document, data.kind);
            type->qualifier = data.qualifier.c_str();
            type->name.text = data.name.c_str();
            type->coded.bitLength = data.bitLength;
            Filler filler(data);
            type->Accept(filler);
            m_types.push_back(std::move(type));
        }
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (const auto& type : m_types)
            walker.Walk(*type);
        return walker.Value();
    }

    std::uint64_t ReadLimits() override {
        LimitReader reader;
        for (const auto& type : m_types)
            type->Accept(reader);
        return reader.Value();
    }

    std::size_t ImportedCount() override { return CountImported(m_types); }

    std::size_t Traverse() override {
        Counter counter;
        for (const auto& type : m_types)
            type->Accept(counter);
        return counter.Count();
    }

    void Clear() override { m_types.clear(); }

private:
    Document m_document;
    Owned<DataType> m_types;
};

} // namespace

} // namespace Bench::Plain::DataTypes

std::unique_ptr<Bench::Model> Bench::MakePlainDataTypes() {
    return std::make_unique<Plain::DataTypes::PlainDataTypes>();
}
