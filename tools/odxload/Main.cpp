// OdxLoad TEMPLATE OUTPUT SIZE [ENCODING]: writes a document of about SIZE megabytes.

#include "LoadTemplate.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr double megabyte = 1e6;

std::optional<std::uint64_t> BytesOf(std::string_view text) {
    double size = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), size);
    if (error != std::errc() || end != text.data() + text.size() || size < 0.0 || size > 1e5)
        return std::nullopt;
    return static_cast<std::uint64_t>(size * megabyte);
}

int Write(const char* templateFile, const char* output, std::uint64_t bytes, OdxLoad::Encoding encoding) {
    std::ifstream in(templateFile, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (!in) {
        std::fprintf(stderr, "OdxLoad: %s cannot be read\n", templateFile);
        return 1;
    }
    const OdxLoad::LoadTemplate load(text, encoding);
    std::ofstream out(output, std::ios::binary);
    const std::uint64_t repetitions = load.RepetitionsFor(bytes);
    load.Write(out, repetitions);
    if (!out.flush()) {
        std::fprintf(stderr, "OdxLoad: %s cannot be written\n", output);
        return 1;
    }
    std::printf("%s: %llu bytes, %llu repetitions\n", output, static_cast<unsigned long long>(load.SizeOf(repetitions)),
                static_cast<unsigned long long>(repetitions));
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    const auto bytes = count > 3 ? BytesOf(arguments[3]) : std::nullopt;
    const auto encoding = OdxLoad::EncodingOf(count > 4 ? arguments[4] : "UTF-8");
    if (count > 5 || !bytes || !encoding) {
        std::fputs("usage: OdxLoad TEMPLATE OUTPUT MEGABYTES [UTF-8|ISO-8859-1|UTF-16LE|UTF-16BE]\n", stderr);
        return 2;
    }
    try {
        return Write(arguments[1], arguments[2], *bytes, *encoding);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "OdxLoad: %s\n", error.what());
        return 1;
    }
}
