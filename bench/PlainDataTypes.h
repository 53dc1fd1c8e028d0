/// @file
/// The data types as plain structs.
#pragma once

#include "PlainModel.h"

#include <string>

namespace Bench::Plain::DataTypes {

struct CodedProperties {
    unsigned int encoding = 0;
    unsigned int byteOrder = 1;
    unsigned int bitLength = 8;
    unsigned int bitMask = 0xFFFFFFFF;
};

struct FieldProperties {
    unsigned int sizeInfo = 0;
    unsigned int minLength = 0;
    unsigned int maxLength = 255;
    unsigned int quantity = 0;
};

struct DisplayProperties {
    unsigned int format = 0;
    unsigned int precision = 0;
    std::wstring unit;
    bool isSigned = false;
};

struct PhysicalProperties {
    unsigned int encoding = 0;
    unsigned int bitLength = 8;
    DisplayProperties display;
};

struct Conversion {
    virtual ~Conversion() = default;

    Value inverse;
    bool hasInverse = false;
};

struct Segment : Conversion {
    double numerator = 1.0;
    unsigned int denominator = 1;
    double offset = 0.0;
    Range range;
};

struct TextRow : Conversion {
    Range range;
    Text mapped;
    Text additionalInfo;
};

struct ValueRow {
    virtual ~ValueRow() = default;

    double coded = 0.0;
    double mapped = 0.0;
};

struct Function {
    virtual ~Function() = default;

    std::wstring version;
    std::wstring entryPoint;
    std::wstring syntax;
    std::wstring encryption;
    std::wstring sourceFile;
    Owned<std::wstring> additionalFiles;
};

struct Identity;
struct Linear;
struct PiecewiseLinear;
struct TextTable;
struct ValueTable;
struct Formula;
struct Procedure;

struct Visitor {
    virtual ~Visitor() = default;
    virtual void Visit(Identity& type) = 0;
    virtual void Visit(Linear& type) = 0;
    virtual void Visit(PiecewiseLinear& type) = 0;
    virtual void Visit(TextTable& type) = 0;
    virtual void Visit(ValueTable& type) = 0;
    virtual void Visit(Formula& type) = 0;
    virtual void Visit(Procedure& type) = 0;
};

/// Calls three hooks for every data type.
struct Traverser : Visitor {
    void Visit(Identity& type) override;
    void Visit(Linear& type) override;
    void Visit(PiecewiseLinear& type) override;
    void Visit(TextTable& type) override;
    void Visit(ValueTable& type) override;
    void Visit(Formula& type) override;
    void Visit(Procedure& type) override;

    virtual void PreProcess(Identity& type);
    virtual void PreProcess(Linear& type);
    virtual void PreProcess(PiecewiseLinear& type);
    virtual void PreProcess(TextTable& type);
    virtual void PreProcess(ValueTable& type);
    virtual void PreProcess(Formula& type);
    virtual void PreProcess(Procedure& type);

    virtual void Descend(Identity& type);
    virtual void Descend(Linear& type);
    virtual void Descend(PiecewiseLinear& type);
    virtual void Descend(TextTable& type);
    virtual void Descend(ValueTable& type);
    virtual void Descend(Formula& type);
    virtual void Descend(Procedure& type);

    virtual void PostProcess(Identity& type);
    virtual void PostProcess(Linear& type);
    virtual void PostProcess(PiecewiseLinear& type);
    virtual void PostProcess(TextTable& type);
    virtual void PostProcess(ValueTable& type);
    virtual void PostProcess(Formula& type);
    virtual void PostProcess(Procedure& type);
};

struct DataType : Qualified {
    using Qualified::Qualified;
    virtual void Accept(Visitor& visitor) = 0;

    Owned<Range> invalidRanges;
    unsigned int reason = 0;
    bool mayBeModified = true;
    unsigned int layer = 0;
    CodedProperties coded;
};

/// A kind of data types that a visitor can tell from the others.
template <class Self>
struct Visitable : DataType {
    using DataType::DataType;

    void Accept(Visitor& visitor) override { visitor.Visit(static_cast<Self&>(*this)); }
};

struct Identity : Visitable<Identity> {
    using Visitable::Visitable;
    FieldProperties field;
    DisplayProperties display;
};

struct Linear : Visitable<Linear> {
    using Visitable::Visitable;
    PhysicalProperties physical;
    DisplayProperties display;
    Segment segment;
};

struct PiecewiseLinear : Visitable<PiecewiseLinear> {
    using Visitable::Visitable;
    PhysicalProperties physical;
    DisplayProperties display;
    Owned<Segment> segments;
};

struct TextTable : Visitable<TextTable> {
    using Visitable::Visitable;
    FieldProperties field;
    Owned<TextRow> rows;
    Text defaultValue;
};

struct ValueTable : Visitable<ValueTable> {
    using Visitable::Visitable;
    PhysicalProperties physical;
    DisplayProperties display;
    bool isInterpolated = false;
    Owned<ValueRow> rows;
};

struct Formula : Visitable<Formula> {
    using Visitable::Visitable;
    PhysicalProperties physical;
    std::wstring toPhysical;
    std::wstring toCoded;
    bool hasToCoded = false;
};

struct Procedure : Visitable<Procedure> {
    using Visitable::Visitable;
    FieldProperties field;
    PhysicalProperties physical;
    FieldProperties physicalField;
    Owned<Function> toPhysical;
    Owned<Function> toCoded;
};

} // namespace Bench::Plain::DataTypes
