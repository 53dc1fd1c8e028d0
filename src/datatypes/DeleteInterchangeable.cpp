#include <ImportDame/BitField.h>
#include <ImportDame/InterchangeableCollection.h>

#include <typeinfo>

namespace ImportDame::detail {

namespace {

/// The interchangeable as a bit field, or null. Looks at the exact class, of which a collection creates no other and
/// the process has one description: comparing descriptions would compare names wherever they are not the same.
VBitField* AsBitField(VInterchangeable& interchangeable) noexcept {
    return &typeid(interchangeable) == &typeid(VBitField) ? static_cast<VBitField*>(&interchangeable) : nullptr;
}

} // namespace

// Descends along the first members and comes back up, so that every bit field is empty when it dies and its destructor
// goes no deeper. The way back is kept in the bit fields themselves: while a nested bit field is being emptied, its
// place in its parent holds the parent's own parent.
void DeleteInterchangeable::operator()(VInterchangeable* interchangeable) const noexcept {
    const auto membersOf = [](VBitField& bitField) -> InterchangeableArray& {
        return bitField.InterchangeableCollection().m_collection;
    };
    VBitField* parent = nullptr;
    VBitField* current = AsBitField(*interchangeable);
    while (current && !(membersOf(*current).IsEmpty() && !parent)) {
        InterchangeableArray& members = membersOf(*current);
        if (members.IsEmpty()) {
            InterchangeableArray& siblings = membersOf(*parent);
            VInterchangeable* const grandparent = siblings.TakeOut(siblings.Begin()).release();
            delete current;
            current = parent;
            parent = static_cast<VBitField*>(grandparent);
        } else if (VBitField* const nested = AsBitField(members[0]); nested && !membersOf(*nested).IsEmpty()) {
            members.ExchangeFirst(parent);
            parent = current;
            current = nested;
        } else {
            members.TakeOut(members.Begin());
        }
    }
    delete interchangeable;
}

} // namespace ImportDame::detail
