#ifndef ODXIMPORT_ACCOUNTING_KNOWNELEMENTS_H
#define ODXIMPORT_ACCOUNTING_KNOWNELEMENTS_H

#include <string_view>

namespace OdxImport {

enum class Standing {
    Unknown, ///< no element that is known
    Frame,   ///< holds others together and has no content of its own
    NoPlace, ///< the model has no place for it or what is below it
    NotUsed  ///< would be imported, but nothing that is imported has or uses it
};

struct KnownElement {
    Standing standing = Standing::Unknown;
    const char* reason = ""; ///< why it is left out
};

KnownElement LookUpElement(std::string_view tag);

} // namespace OdxImport

#endif
