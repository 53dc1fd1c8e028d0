#ifndef ODXIMPORT_MAPPING_DATATYPES_H
#define ODXIMPORT_MAPPING_DATATYPES_H

#include "mapping/CodedConstants.h"
#include "mapping/Naming.h"
#include "mapping/Numbers.h"
#include "mapping/ParamLayout.h"
#include "mapping/ScalarTypes.h"
#include "mapping/TypeMembers.h"

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ImportDame {
class VBasePacketDataType;
class VDataObject;
class VDataType;
class VInterchangeableCollection;
} // namespace ImportDame

namespace OdxImport {

/// The data type of every data object, made once, and once more for each variant that sees it otherwise. Complex ones
/// are made empty and filled from a queue, so that structures may lie in each other however deep.
class DataTypes {
public:
    DataTypes(Workspace& workspace, const Naming& naming, Units& units);

    /// The type of a data object of any kind, of a structure, request, response or table; null for other elements.
    ImportDame::VDataType* For(Element dataObject);

    /// What a link by ID or by name in `owner` leads to; none without such a link, or when it leads to nothing of these
    /// kinds, which is reported.
    Element Target(Element owner, const char* link, const char* nameLink, Wanted wanted);

    /// The type of a coded type that stands in `owner`; equal ones share one type.
    ImportDame::VDataType& ForCodedType(const CodedType& coded, Element owner);
    ImportDame::VDataType& ForBytes(std::uint32_t count);

    /// The KEY of a row, read as the data object for the keys of the table says. Settles it.
    std::optional<std::string> KeyOf(Element row, Element table) const;

    /// What a row of a table leads to.
    Element ContentOfRow(Element row);

    /// Bits in the message where the description alone tells.
    std::optional<std::uint64_t> FixedBits(Element dataObject);

    /// The constants of a request, response or structure, without settling or reporting anything.
    std::vector<CodedConstant> ConstantsOf(Element packet);

    /// In bits from the start of what a member is in, `where` being what it was made of; nothing behind something of
    /// unknown length. Members of fields are those of the first repetition.
    std::optional<std::uint64_t> StartOf(Element where);

    /// Notes which data object a key parameter became, and which one needs the value of a key.
    void BecameKey(Element param, ImportDame::VDataObject& object);
    void NeedsKey(ImportDame::VDataObject& object, Element keyParam);

    /// Gives a member of `owner` the type of the data object `source`.
    void SetMemberType(ImportDame::VDataType& owner, ImportDame::VDataObject& member, ImportDame::VDataType& type,
                       Element source, Element where);

    struct DtcDop {
        Element element;
        ImportDame::VDataType* type;
        Layer* view; ///< the variant that looked when it was first asked for; null: none
    };

    /// Every DTC-DOP that a type was asked for, in this order.
    const std::vector<DtcDop>& DtcDops() const { return m_dtcDops; }

    /// Which types have members of which, as far as they are filled.
    const TypeMembers& Members() const { return m_members; }

    /// Fills everything that was asked for, then cuts circles and connects keys.
    void Finish();

private:
    using Filler = void (DataTypes::*)(ImportDame::VDataType&, Element);
    struct Kind;

    struct Open {
        ImportDame::VDataType* type;
        Element element;
        Filler fill;
        Layer* view;      ///< the variant that the object is read for; null: its own layer
        bool isRepeating; ///< it was or will be read for its own layer, too
    };

    struct KeyUser {
        ImportDame::VDataObject* object;
        Element keyParam;
        const Layer* view;
    };

    template <class Value>
    using BySight = std::unordered_map<Sight, Value, SightHash>;

    static const Kind* KindOf(std::string_view tag);
    bool MayRepeat(Element dataObject);

    std::optional<std::uint64_t> FixedBits(Element dataObject, int depth);
    std::optional<std::uint64_t> MeasureBits(Element dataObject, int depth);
    std::optional<std::uint64_t> BitsOfParams(Element structure, int depth);
    std::optional<std::uint64_t> BitsOfParam(Element param, int depth);
    Placement PlacementOf(Element param, const Numbers& numbers, int depth);
    std::vector<Placement> PlacementsOf(const std::vector<Element>& params);
    Placement::Order OrderOfParam(Element param) const;
    /// What the value of the parameter is, of a table key the key of its table.
    Element LookAtDataObject(Element param) const;
    Element LookAtTarget(Element owner, const char* link, const char* nameLink, Wanted wanted) const;

    void FillPacket(ImportDame::VDataType& type, Element element);
    void AddMembers(ImportDame::VDataType& packet, ImportDame::VInterchangeableCollection& members,
                    const std::vector<LayoutItem>& items, const std::vector<Element>& params);
    void FillMux(ImportDame::VDataType& type, Element element);
    void FillTable(ImportDame::VDataType& type, Element element);
    void FillEnvDataDesc(ImportDame::VDataType& type, Element element);
    void FillStaticField(ImportDame::VDataType& type, Element element);
    void FillDynamicLengthField(ImportDame::VDataType& type, Element element);
    void FillEndMarkerField(ImportDame::VDataType& type, Element element);
    void FillEndOfPduField(ImportDame::VDataType& type, Element element);
    void FillField(ImportDame::VBasePacketDataType& type, Element element);
    void AddTableRow(ImportDame::VDataType& type, Element row, Element table);
    void AddEnvData(ImportDame::VDataType& type, Element envData);

    /// One data object that has the type of what the link leads to.
    void AddContent(ImportDame::VDataType& owner, ImportDame::VInterchangeableCollection& members, Element named,
                    Element target);
    void ConnectKeys();

    Workspace& m_workspace;
    const Naming& m_naming;
    ScalarTypes m_scalars;
    TypeMembers m_members;
    BySight<ImportDame::VDataType*> m_types;
    BySight<std::optional<std::uint64_t>> m_bits;
    BySight<std::optional<std::uint64_t>> m_starts;              ///< by parameter
    std::map<std::wstring, ImportDame::VDataType*> m_codedTypes; ///< by the name that says all about them
    BySight<ImportDame::VDataObject*> m_keys;                    ///< by parameter
    std::vector<KeyUser> m_keyUsers;
    const Layer* m_filledFor = nullptr; ///< the variant that an object is repeated for
    std::deque<Open> m_open;
    std::vector<DtcDop> m_dtcDops;
};

} // namespace OdxImport

#endif
