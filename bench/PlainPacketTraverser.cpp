#include "PlainPackets.h"

// In a source of its own, as the library's is: the compiler does not see which hooks are empty.

namespace Bench::Plain::Packets {

void Traverser::Visit(DataObject& object) {
    CallHooks(*this, object);
}

void Traverser::Visit(BitField& bitField) {
    CallHooks(*this, bitField);
}

void Traverser::Visit(Gap& gap) {
    CallHooks(*this, gap);
}

void Traverser::Visit(Packet& packet) {
    CallHooks(*this, packet);
}

void Traverser::PreProcess(DataObject&) {}

void Traverser::PreProcess(BitField&) {}

void Traverser::PreProcess(Gap&) {}

void Traverser::PreProcess(Packet&) {}

void Traverser::Descend(DataObject&) {}

void Traverser::Descend(BitField& bitField) {
    for (const auto& member : bitField.members)
        member->Accept(*this);
}

void Traverser::Descend(Gap&) {}

void Traverser::Descend(Packet& packet) {
    for (const auto& member : packet.members)
        member->Accept(*this);
}

void Traverser::PostProcess(DataObject&) {}

void Traverser::PostProcess(BitField&) {}

void Traverser::PostProcess(Gap&) {}

void Traverser::PostProcess(Packet&) {}

} // namespace Bench::Plain::Packets
