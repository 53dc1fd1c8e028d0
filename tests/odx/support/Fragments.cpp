#include "support/Fragments.h"

#include "support/Imports.h"

#include <numeric>
#include <set>
#include <sstream>

namespace OdxTests {

namespace {

std::string Values(const std::string& tag, const std::string& numbers) {
    std::string text = "<" + tag + ">";
    std::istringstream stream(numbers);
    for (std::string number; stream >> number;)
        text += "<V>" + number + "</V>";
    return text + "</" + tag + ">";
}

} // namespace

std::string Coded(const std::string& base, int bits, const std::string& inner) {
    return "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='" + base + "'><BIT-LENGTH>" +
           std::to_string(bits) + "</BIT-LENGTH>" + inner + "</DIAG-CODED-TYPE>";
}

std::string Dop(const std::string& name, const std::string& coded, const std::string& physical,
                const std::string& method, const std::string& tail) {
    return "<DATA-OBJECT-PROP ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME><COMPU-METHOD>" + method +
           "</COMPU-METHOD>" + coded + "<PHYSICAL-TYPE BASE-DATA-TYPE='" + physical + "'/>" + tail +
           "</DATA-OBJECT-PROP>";
}

std::string Dictionary(const std::string& dops, const std::string& more) {
    return "<DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS>" + more +
           "</DIAG-DATA-DICTIONARY-SPEC>";
}

std::string Method(const std::string& category, const std::string& scales, const std::string& way) {
    return "<CATEGORY>" + category + "</CATEGORY><" + way + "><COMPU-SCALES>" + scales + "</COMPU-SCALES></" + way +
           ">";
}

std::string Coefficients(const std::string& numerator, const std::string& denominator) {
    return "<COMPU-RATIONAL-COEFFS>" + Values("COMPU-NUMERATOR", numerator) +
           (denominator.empty() ? "" : Values("COMPU-DENOMINATOR", denominator)) + "</COMPU-RATIONAL-COEFFS>";
}

std::wstring Ranges(ImportDame::VDataType& type) {
    std::multiset<std::wstring> texts;
    for (ImportDame::VInvalidRange& range : type.InvalidRangeCollection()) {
        ImportDame::VValue end = range.HasStartValue() ? range.GetStartValue() : range.GetEndValue();
        texts.insert(Describe(range) + (end.IsPhysical() ? L"physical" : L""));
    }
    return std::accumulate(texts.begin(), texts.end(), std::wstring());
}

} // namespace OdxTests
