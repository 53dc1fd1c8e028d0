/// @file
/// The packets as plain structs.
#pragma once

#include "PlainModel.h"

namespace Bench::Plain::Packets {

struct DataObject;
struct BitField;
struct Gap;
struct Packet;

struct Visitor {
    virtual ~Visitor() = default;
    virtual void Visit(DataObject& object) = 0;
    virtual void Visit(BitField& bitField) = 0;
    virtual void Visit(Gap& gap) = 0;
    virtual void Visit(Packet& packet) = 0;
};

/// Calls three hooks for every packet and every member. Enters bit fields and packets.
struct Traverser : Visitor {
    void Visit(DataObject& object) override;
    void Visit(BitField& bitField) override;
    void Visit(Gap& gap) override;
    void Visit(Packet& packet) override;

    virtual void PreProcess(DataObject& object);
    virtual void PreProcess(BitField& bitField);
    virtual void PreProcess(Gap& gap);
    virtual void PreProcess(Packet& packet);

    virtual void Descend(DataObject& object);
    virtual void Descend(BitField& bitField);
    virtual void Descend(Gap& gap);
    virtual void Descend(Packet& packet);

    virtual void PostProcess(DataObject& object);
    virtual void PostProcess(BitField& bitField);
    virtual void PostProcess(Gap& gap);
    virtual void PostProcess(Packet& packet);
};

struct Interchangeable : Qualified {
    using Qualified::Qualified;
    virtual void Accept(Visitor& visitor) = 0;
};

struct DataObject : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int semantics = 0;
    void* dataType = nullptr;
    bool hasDefault = false;
    Value defaultValue;
    bool hasConstant = false;
    Value constant;
    DataObject* selector = nullptr;
};

struct BitField : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int semantics = 0;
    void* dataType = nullptr;
    Owned<Interchangeable> members;
};

struct Gap : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int bitLength = 0;
};

struct Packet : Qualified {
    using Qualified::Qualified;

    virtual void Accept(Visitor& visitor) { visitor.Visit(*this); }

    Owned<Range> invalidRanges;
    unsigned int reason = 0;
    bool mayBeModified = true;
    unsigned int layer = 0;
    Owned<Interchangeable> members;
    bool hasDid = false;
    unsigned int did = 0;
    bool showContentsOnlyForTester = false;
};

} // namespace Bench::Plain::Packets
