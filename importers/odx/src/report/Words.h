#ifndef ODXIMPORT_REPORT_WORDS_H
#define ODXIMPORT_REPORT_WORDS_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace OdxImport {

/// The pieces in one text.
inline std::string Words(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

} // namespace OdxImport

#endif
