#include "mapping/DataTypes.h"

#include "mapping/CodedTypes.h"
#include "report/Silence.h"

#include <algorithm>

namespace OdxImport {

namespace {

constexpr int deepestMeasured = 24;
constexpr std::uint32_t lastByte = 0x0FFFFFFF; ///< so that bit positions stay within 32 bits

std::optional<std::uint64_t> BytesAsBits(Element element, const Numbers& numbers) {
    const auto bytes = numbers.Whole(element, lastByte);
    return bytes ? std::optional(std::uint64_t{*bytes} * 8) : std::nullopt;
}

const Numbers& SilentNumbers() {
    static const Numbers numbers(Silence());
    return numbers;
}

std::vector<Element> ParamsIn(Element list) {
    std::vector<Element> params;
    for (const Element param : Children(list, "PARAM"))
        params.push_back(param);
    return params;
}

} // namespace

std::optional<std::uint64_t> DataTypes::FixedBits(Element dataObject) {
    return FixedBits(dataObject, 0);
}

std::optional<std::uint64_t> DataTypes::FixedBits(Element dataObject, int depth) {
    if (!dataObject || depth > deepestMeasured)
        return std::nullopt;
    const Sight sight{dataObject.Identity(), m_workspace.ViewOf(dataObject)};
    const auto [known, isNew] = m_bits.try_emplace(sight);
    if (!isNew)
        return known->second;
    // Until it is measured the length counts as unknown, so a structure within itself ends here.
    const std::optional<std::uint64_t> bits = MeasureBits(dataObject, depth);
    m_bits[sight] = bits;
    return bits;
}

std::optional<std::uint64_t> DataTypes::MeasureBits(Element dataObject, int depth) {
    if (dataObject.Is("DATA-OBJECT-PROP") || dataObject.Is("DTC-DOP"))
        return LookAtCodedType(dataObject, m_workspace).FixedBits();
    if (dataObject.Is("STRUCTURE") || dataObject.Is("ENV-DATA")) {
        const auto size = BytesAsBits(dataObject.Child("BYTE-SIZE"), SilentNumbers());
        return size ? size : BitsOfParams(dataObject, depth + 1);
    }
    if (dataObject.Is("STATIC-FIELD")) {
        const auto size = BytesAsBits(dataObject.Child("ITEM-BYTE-SIZE"), SilentNumbers());
        const auto count = SilentNumbers().Whole(dataObject.Child("FIXED-NUMBER-OF-ITEMS"), 0xFFFF);
        return size && count ? std::optional(*size * *count) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> DataTypes::BitsOfParams(Element structure, int depth) {
    std::uint64_t behind = 0, most = 0;
    for (const Element param : Children(structure.Child("PARAMS"), "PARAM")) {
        const Placement at = PlacementOf(param, SilentNumbers(), depth);
        if (!at.bits)
            return std::nullopt;
        behind = at.byte.value_or((behind + 7) / 8) * 8 + at.bit + *at.bits;
        most = std::max(most, behind);
    }
    return (most + 7) / 8 * 8;
}

std::vector<Placement> DataTypes::PlacementsOf(const std::vector<Element>& params) {
    std::vector<Placement> placements;
    placements.reserve(params.size());
    for (const Element param : params)
        placements.push_back(PlacementOf(param, SilentNumbers(), 0));
    return placements;
}

std::vector<CodedConstant> DataTypes::ConstantsOf(Element packet) {
    const std::vector<Element> params = ParamsIn(packet.Child("PARAMS"));
    return CodedConstantsOf(params, PlacementsOf(params), m_workspace);
}

std::optional<std::uint64_t> DataTypes::StartOf(Element where) {
    if (where.Is("CASE") || where.Is("DEFAULT-CASE")) {
        const Element mux = where.Is("CASE") ? where.Parent().Parent() : where.Parent();
        return BytesAsBits(mux.Child("BYTE-POSITION"), SilentNumbers()).value_or(0);
    }
    if (where.Is("DYNAMIC-LENGTH-FIELD"))
        return BytesAsBits(where.Child("OFFSET"), SilentNumbers()).value_or(0);
    if (!where.Is("PARAM"))
        return 0;
    const auto sightOf = [this](Element param) { return Sight{param.Identity(), m_workspace.ViewOf(param)}; };
    if (const auto known = m_starts.find(sightOf(where)); known != m_starts.end())
        return known->second;
    const std::vector<Element> params = ParamsIn(where.Parent()); // those of all at once, as any may be asked for
    const auto starts = StartsOf(PlacementsOf(params));
    for (std::size_t i = 0; i < params.size(); ++i)
        m_starts.emplace(sightOf(params[i]), starts[i]);
    return m_starts.at(sightOf(where));
}

Placement DataTypes::PlacementOf(Element param, const Numbers& numbers, int depth) {
    Placement at;
    if (const auto byte = numbers.Whole(param.Child("BYTE-POSITION"), lastByte))
        at.byte = *byte;
    at.bit = numbers.Whole(param.Child("BIT-POSITION"), 7).value_or(0);
    at.bits = BitsOfParam(param, depth);
    return at;
}

Placement::Order DataTypes::OrderOfParam(Element param) const {
    const Element dataObject = LookAtDataObject(param);
    const Element owner = dataObject ? dataObject : param;
    if (!owner.Child("DIAG-CODED-TYPE"))
        return Placement::AnyOrder;
    return LookAtCodedType(owner, m_workspace).byteOrder == ImportDame::VProperties::highLow ? Placement::HighByteFirst
                                                                                             : Placement::LowByteFirst;
}

std::optional<std::uint64_t> DataTypes::BitsOfParam(Element param, int depth) {
    const std::string_view kind = param.Attribute("type");
    if (kind == "CODED-CONST" || kind == "NRC-CONST")
        return LookAtCodedType(param, m_workspace).FixedBits();
    if (kind == "RESERVED")
        return SilentNumbers().Whole(param.Child("BIT-LENGTH")).value_or(8);
    if (kind == "MATCHING-REQUEST-PARAM")
        return BytesAsBits(param.Child("BYTE-LENGTH"), SilentNumbers()).value_or(8);
    return FixedBits(LookAtDataObject(param), depth + 1);
}

Element DataTypes::LookAtDataObject(Element param) const {
    if (param.Attribute("type") != "TABLE-KEY")
        return LookAtTarget(param, "DOP-REF", "DOP-SNREF", anyDataObject);
    const Element row = m_workspace.Look(param.Child("TABLE-ROW-REF"), Tags::tableRow);
    const Element table = row ? row.Parent() : LookAtTarget(param, "TABLE-REF", "TABLE-SNREF", anyTable);
    return LookAtTarget(table, "KEY-DOP-REF", "KEY-DOP-SNREF", simpleDataObject);
}

Element DataTypes::LookAtTarget(Element owner, const char* link, const char* nameLink, Wanted wanted) const {
    if (!owner)
        return {};
    if (const Element byId = owner.Child(link))
        return m_workspace.Look(byId, wanted.kinds);
    const std::string_view name = owner.Child(nameLink).Attribute("SHORT-NAME");
    return name.empty() ? Element()
                        : m_workspace.Layers().FindByName(m_workspace.ContextOf(owner), wanted.category, name);
}

} // namespace OdxImport
