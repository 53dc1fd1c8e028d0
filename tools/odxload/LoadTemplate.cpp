#include "LoadTemplate.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <stdexcept>

namespace OdxLoad {

namespace {

constexpr std::string_view repeatMark = "<?repeat?>\n";
constexpr std::string_view endMark = "<?end?>\n";
constexpr std::size_t digitCount = 7;

} // namespace

LoadTemplate::LoadTemplate(std::string_view text, Encoding encoding) : m_encoding(encoding) {
    const std::string declaration =
        "<?xml version=\"1.0\" encoding=\"" + std::string(DeclaredName(encoding)) + "\"?>\n";
    m_parts.push_back({{{std::string(ByteOrderMark(encoding)), Number::None}}, false});
    m_fixedSize = ByteOrderMark(encoding).size();
    AddPart(declaration, false);
    for (std::size_t begin = text.find(repeatMark); begin != std::string_view::npos; begin = text.find(repeatMark)) {
        AddPart(text.substr(0, begin), false);
        text.remove_prefix(begin + repeatMark.size());
        const std::size_t end = text.find(endMark);
        if (end == std::string_view::npos)
            throw std::invalid_argument("a part of the template does not end");
        AddPart(text.substr(0, end), true);
        text.remove_prefix(end + endMark.size());
    }
    AddPart(text, false);
}

void LoadTemplate::AddPart(std::string_view text, bool isRepeated) {
    Part part{{}, isRepeated};
    std::uint64_t size = 0;
    while (!text.empty()) {
        const std::size_t end = isRepeated ? std::min(text.find('@'), text.size()) : text.size();
        Piece piece{Encode(text.substr(0, end), m_encoding), Number::None};
        text.remove_prefix(end);
        if (!text.empty()) {
            const bool isPrevious = text.starts_with("@-");
            piece.number = isPrevious ? Number::Previous : Number::Own;
            text.remove_prefix(isPrevious ? 2 : 1);
            size += Digits(0).size();
        }
        size += piece.text.size();
        part.pieces.push_back(std::move(piece));
    }
    (isRepeated ? m_repeatedSize : m_fixedSize) += size;
    m_parts.push_back(std::move(part));
}

std::uint64_t LoadTemplate::RepetitionsFor(std::uint64_t bytes) const {
    if (m_repeatedSize == 0 || bytes <= m_fixedSize)
        return 1;
    const std::uint64_t count = (bytes - m_fixedSize + m_repeatedSize / 2) / m_repeatedSize;
    return std::clamp<std::uint64_t>(count, 1, mostRepetitions);
}

std::uint64_t LoadTemplate::SizeOf(std::uint64_t repetitions) const {
    return m_fixedSize + m_repeatedSize * repetitions;
}

void LoadTemplate::Write(std::ostream& out, std::uint64_t repetitions) const {
    for (const Part& part : m_parts)
        for (std::uint64_t number = 1; number <= (part.isRepeated ? repetitions : 1); ++number)
            WriteOnce(out, part, number);
}

void LoadTemplate::WriteOnce(std::ostream& out, const Part& part, std::uint64_t number) const {
    const std::string own = Digits(number), previous = Digits(number - 1);
    for (const Piece& piece : part.pieces) {
        out.write(piece.text.data(), static_cast<std::streamsize>(piece.text.size()));
        if (piece.number != Number::None)
            out << (piece.number == Number::Own ? own : previous);
    }
}

std::string LoadTemplate::Digits(std::uint64_t number) const {
    std::array<char, digitCount> digits;
    for (std::size_t i = digitCount; i-- > 0; number /= 10)
        digits[i] = static_cast<char>('0' + number % 10);
    return Encode({digits.data(), digits.size()}, m_encoding);
}

} // namespace OdxLoad
