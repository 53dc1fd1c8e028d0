#include "Data.h"
#include "LibraryTraversal.h"
#include "Model.h"

#include <ImportDame/ImportDame.h>

namespace Bench {

namespace {

using namespace ImportDame;
using Data = DataTypeData<wchar_t>;

void Fill(VLinearConversion& conversion, const Data::Row& row) {
    conversion.SetFactorNumerator(row.first);
    conversion.SetOffset(row.second);
}

void Fill(VRange& range, const Data::Row& row) {
    range.SetStartValue(VValue(row.start.c_str()));
    range.SetEndValue(VValue(row.end.c_str()));
}

/// Gives every kind of data type what is particular to it.
class Filler : public VDataTypeDefaultVisitor {
public:
    explicit Filler(const Data& data) : m_data(data) {}

    void VisitDataType(VDataType&) override {}

    void VisitIdentityDataType(VIdentityDataType& type) override {
        type.CodedProperties().SetAtomicBitLength(m_data.bitLength);
        type.PhysicalDisplayProperties().SetUnit(m_data.rows[0].text.c_str());
    }

    void VisitLinearDataType(VLinearDataType& type) override {
        type.CodedAtomProperties().SetBitLength(m_data.bitLength);
        Fill(type.LinearConversion(), m_data.rows[0]);
    }

    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& type) override {
        type.CodedAtomProperties().SetBitLength(m_data.bitLength);
        for (const auto& row : m_data.rows) {
            auto& conversion = type.LinearConversionCollection().AddNewLinearConversion();
            Fill(conversion, row);
            Fill(conversion.GetRange(), row);
        }
    }

    void VisitTextTableDataType(VTextTableDataType& type) override {
        type.CodedProperties().SetAtomicBitLength(m_data.bitLength);
        for (const auto& data : m_data.rows) {
            auto& row = type.TextTableRowCollection().AddNewTextTableRow();
            row.SetMappedValue(data.text.c_str());
            Fill(row.GetRange(), data);
        }
    }

    void VisitValueTableDataType(VValueTableDataType& type) override {
        type.CodedAtomProperties().SetBitLength(m_data.bitLength);
        for (const auto& data : m_data.rows) {
            auto& row = type.ValueTableRowCollection().AddNewValueTableRow();
            row.SetCodedValue(data.first);
            row.SetMappedValue(data.second);
        }
    }

    void VisitFormulaDataType(VFormulaDataType& type) override {
        type.CodedAtomProperties().SetBitLength(m_data.bitLength);
        type.SetCodedToPhysFormula(m_data.rows[0].text.c_str());
        type.SetPhysToCodedFormula(m_data.rows[1].text.c_str());
    }

    void VisitProcedureDataType(VProcedureDataType& type) override {
        type.CodedProperties().SetAtomicBitLength(m_data.bitLength);
        auto& function = type.CodedToPhysFunctionCollection().AddNewFunction();
        function.SetEntryPoint(m_data.rows[0].text.c_str());
        function.SourceFile().SetPath(m_data.rows[1].text.c_str());
    }

private:
    const Data& m_data;
};

VDataType& AddNew(VDataTypeCollection& types, Kind kind) {
    switch (kind) {
    case Kind::identity:
        return types.AddNewIdentityDataType();
    case Kind::linear:
        return types.AddNewLinearDataType();
    case Kind::piecewiseLinear:
        return types.AddNewPiecewiseLinearDataType();
    case Kind::textTable:
        return types.AddNewTextTableDataType();
    case Kind::valueTable:
        return types.AddNewValueTableDataType();
    case Kind::formula:
        return types.AddNewFormulaDataType();
    case Kind::procedure:
        break;
    }
    return types.AddNewProcedureDataType();
}

void AddLimits(Checksum& checksum, VRange& range) {
    checksum.Add(range.GetStartValue().Get());
    checksum.Add(range.GetEndValue().Get());
}

void Add(Checksum& checksum, VLinearConversion& conversion) {
    checksum.Add(conversion.GetFactorNumerator());
    checksum.Add(conversion.GetOffset());
}

class Walker : public VDataTypeDefaultVisitor {
public:
    explicit Walker(Depth depth) : m_checksum(depth) {}

    void VisitDataType(VDataType&) override {}

    void Walk(VDataType& type) {
        m_checksum.Add(type.GetQualifier());
        m_checksum.Add(type.GetName());
        type.Accept(*this);
    }

    void VisitIdentityDataType(VIdentityDataType& type) override {
        AddBitLength(type.CodedProperties().GetAtomicBitLength());
        m_checksum.Add(type.PhysicalDisplayProperties().GetUnit());
    }

    void VisitLinearDataType(VLinearDataType& type) override {
        AddBitLength(type.CodedAtomProperties().GetBitLength());
        Add(m_checksum, type.LinearConversion());
    }

    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& type) override {
        AddBitLength(type.CodedAtomProperties().GetBitLength());
        m_checksum.AddSet(type.LinearConversionCollection(), [](Checksum& checksum, VLinearConversion& conversion) {
            Add(checksum, conversion);
            if (checksum.IsWhole())
                AddLimits(checksum, conversion.GetRange());
        });
    }

    void VisitTextTableDataType(VTextTableDataType& type) override {
        AddBitLength(type.CodedProperties().GetAtomicBitLength());
        for (VTextTableRow& row : type.TextTableRowCollection()) {
            m_checksum.Add(row.GetMappedValue());
            if (m_checksum.IsWhole())
                AddLimits(m_checksum, row.GetRange());
        }
    }

    void VisitValueTableDataType(VValueTableDataType& type) override {
        AddBitLength(type.CodedAtomProperties().GetBitLength());
        for (VValueTableRow& row : type.ValueTableRowCollection()) {
            m_checksum.Add(row.GetCodedValue());
            m_checksum.Add(row.GetMappedValue());
        }
    }

    void VisitFormulaDataType(VFormulaDataType& type) override {
        AddBitLength(type.CodedAtomProperties().GetBitLength());
        m_checksum.Add(type.GetCodedToPhysFormula());
        m_checksum.Add(type.GetPhysToCodedFormula());
    }

    void VisitProcedureDataType(VProcedureDataType& type) override {
        AddBitLength(type.CodedProperties().GetAtomicBitLength());
        for (VFunction& function : type.CodedToPhysFunctionCollection()) {
            m_checksum.Add(function.GetEntryPoint());
            m_checksum.Add(function.SourceFile().GetPath());
        }
    }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    void AddBitLength(unsigned int bitLength) { m_checksum.Add(std::uint64_t{bitLength}); }

    Checksum m_checksum;
};

class LimitReader : public VDataTypeDefaultVisitor {
public:
    void VisitDataType(VDataType&) override {}

    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& type) override {
        for (VLinearConversion& conversion : type.LinearConversionCollection())
            AddLimits(m_checksum, conversion.GetRange());
    }

    void VisitTextTableDataType(VTextTableDataType& type) override {
        for (VTextTableRow& row : type.TextTableRowCollection())
            AddLimits(m_checksum, row.GetRange());
    }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    Checksum m_checksum{Depth::touch};
};

class LibraryDataTypes : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index) {
            const auto& data = Sample<Data>(index);
            VDataType& type = AddNew(Types(), data.kind);
            type.SetQualifier(data.qualifier.c_str());
            type.SetName(data.name.c_str());
            Filler(data).DispatchDataType(type);
        }
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (VDataType& type : Types())
            walker.Walk(type);
        return walker.Value();
    }

    std::uint64_t ReadLimits() override {
        LimitReader reader;
        for (VDataType& type : Types())
            reader.DispatchDataType(type);
        return reader.Value();
    }

    std::size_t ImportedCount() override { return Types().ImportedCount(); }

    std::size_t Traverse() override { return CountByTraverser(m_document); }

    void Dump() override { DumpToNowhere(m_document); }

    void RemoveFromFront(std::size_t count) override {
        for (; count > 0; --count)
            Types().Remove(Types().Begin());
    }

    void Clear() override { Types().Clear(); }

private:
    VDataTypeCollection& Types() { return m_document.DataTypeCollection(); }

    VImportDoc m_document;
};

} // namespace

std::unique_ptr<Model> MakeLibraryDataTypes() {
    return std::make_unique<LibraryDataTypes>();
}

} // namespace Bench
