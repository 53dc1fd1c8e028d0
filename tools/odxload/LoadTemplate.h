#ifndef ODXLOAD_LOADTEMPLATE_H
#define ODXLOAD_LOADTEMPLATE_H

#include "LoadEncoding.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace OdxLoad {

/// A document with parts that are repeated, each between the lines "<?repeat?>" and "<?end?>". In them "@" stands for
/// the number of the repetition, from 1, in seven digits; "@-" for the number before it. All parts are repeated the
/// same number of times.
class LoadTemplate {
public:
    /// UTF-8, without an XML declaration. Throws std::invalid_argument where a part does not end.
    LoadTemplate(std::string_view text, Encoding encoding);

    static constexpr std::uint64_t mostRepetitions = 9'999'999;

    /// The number of repetitions that makes a document of about this many bytes, at least one.
    std::uint64_t RepetitionsFor(std::uint64_t bytes) const;

    /// Of the document with so many repetitions.
    std::uint64_t SizeOf(std::uint64_t repetitions) const;

    void Write(std::ostream& out, std::uint64_t repetitions) const;

private:
    enum class Number { None, Own, Previous };

    /// A text and the number behind it.
    struct Piece {
        std::string text;
        Number number = Number::None;
    };

    struct Part {
        std::vector<Piece> pieces;
        bool isRepeated = false;
    };

    void AddPart(std::string_view text, bool isRepeated);
    void WriteOnce(std::ostream& out, const Part& part, std::uint64_t number) const;
    std::string Digits(std::uint64_t number) const;

    Encoding m_encoding;
    std::vector<Part> m_parts;
    std::uint64_t m_fixedSize = 0;
    std::uint64_t m_repeatedSize = 0;
};

} // namespace OdxLoad

#endif
