#include "Data.h"
#include "ProtobufModel.h"

namespace Bench {

namespace {

enum MemberKind : unsigned int { dataObject, bitField, gap };

struct Policy {
    static auto& Elements(bench::Document& document) { return *document.mutable_packets(); }

    static bool IsImported(const bench::Packet& packet) { return packet.base().is_imported(); }

    static void Fill(bench::Packet& packet, std::size_t index) {
        const auto& data = Sample<PacketData<char>>(index);
        packet.mutable_base()->set_qualifier(data.qualifier);
        packet.mutable_base()->set_is_imported(true);
        for (const auto& qualifier : data.objects)
            Fill(*packet.add_members(), dataObject, qualifier).mutable_constant()->set_text(data.constant);
        auto& bits = Fill(*packet.add_members(), bitField, data.bitField);
        for (const auto& qualifier : data.bits)
            Fill(*bits.add_members(), dataObject, qualifier);
        Fill(*packet.add_members(), gap, {}).set_gap(data.gap);
    }

    static void Add(Checksum& checksum, const bench::Packet& packet) {
        checksum.Add(packet.base().qualifier());
        for (const auto& member : packet.members())
            Add(checksum, member);
    }

private:
    static bench::Interchangeable& Fill(bench::Interchangeable& member, MemberKind kind, const std::string& qualifier) {
        member.set_kind(kind);
        member.mutable_base()->set_is_imported(true);
        member.mutable_base()->set_qualifier(qualifier);
        return member;
    }

    static void Add(Checksum& checksum, const bench::Interchangeable& member) {
        if (member.kind() == gap)
            return checksum.Add(std::uint64_t{member.gap()});
        checksum.Add(member.base().qualifier());
        if (member.kind() == dataObject) {
            checksum.Add(std::uint64_t{member.has_constant()});
            if (checksum.IsWhole() && member.has_constant())
                checksum.Add(member.constant().text());
        }
        for (const auto& nested : member.members())
            Add(checksum, nested);
    }
};

} // namespace

std::vector<Subject> ProtobufPackets() {
    return ProtobufSubjects<ProtobufModel<Policy>>();
}

} // namespace Bench
