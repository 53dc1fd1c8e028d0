#include "order/ContentOrder.h"

#include <ImportDame/AdditionalFile.h>
#include <ImportDame/AdditionalFileCollection.h>
#include <ImportDame/Function.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/Value.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <compare>
#include <string>
#include <tuple>
#include <utility>

namespace SqliteBackend {

namespace {

/// A double in an order that knows every bit pattern.
struct OrderedDouble {
    double value;

    std::strong_ordering operator<=>(const OrderedDouble& other) const { return std::strong_order(value, other.value); }

    bool operator==(const OrderedDouble& other) const { return (*this <=> other) == 0; }
};

/// Kind (absent, number, other text, field), number, texts, physical flag.
using ValueKey = std::tuple<int, OrderedDouble, std::vector<std::wstring>, bool>;
using RangeKey = std::pair<ValueKey, ValueKey>;

bool ReadNumber(const std::wstring& text, double& number) {
    std::string narrow;
    for (const wchar_t character : text) {
        if (character < L'+' || character > L'e')
            return false;
        narrow += static_cast<char>(character);
    }
    const char* end = narrow.data() + narrow.size();
    const auto [last, error] = std::from_chars(narrow.data(), end, number);
    return error == std::errc() && last == end && std::isfinite(number);
}

ValueKey KeyOf(ImportDame::VValue value) {
    std::vector<std::wstring> texts;
    if (value.IsField()) {
        const auto size = static_cast<unsigned int>(value.GetFieldSize());
        for (unsigned int index = 0; index < size; ++index)
            texts.emplace_back(value.GetElement(index));
        return {3, OrderedDouble{0.0}, std::move(texts), value.IsPhysical()};
    }
    texts.emplace_back(value.Get());
    double number = 0.0;
    const bool isNumber = ReadNumber(texts.front(), number);
    return {isNumber ? 1 : 2, OrderedDouble{isNumber ? number : 0.0}, std::move(texts), value.IsPhysical()};
}

ValueKey AbsentValue() {
    return {0, {0.0}, {}, false};
}

RangeKey KeyOf(ImportDame::VRange& range) {
    return {range.HasStartValue() ? KeyOf(range.GetStartValue()) : AbsentValue(),
            range.HasEndValue() ? KeyOf(range.GetEndValue()) : AbsentValue()};
}

using TextKey = std::tuple<std::wstring, bool, std::wstring>;

TextKey KeyOf(const ImportDame::VText& text) {
    return {text.GetText(), text.HasTextId(), text.HasTextId() ? text.GetTextId() : L""};
}

auto KeyOf(ImportDame::VInvalidRange& range) {
    return std::make_tuple(KeyOf(static_cast<ImportDame::VRange&>(range)), static_cast<unsigned>(range.GetInvalidity()),
                           KeyOf(range.AssignedText()));
}

auto KeyOf(ImportDame::VLinearConversion& conversion) {
    const bool hasInverse = conversion.HasCompuInverseValue();
    return std::make_tuple(KeyOf(conversion.GetRange()), OrderedDouble{conversion.GetFactorNumerator()},
                           conversion.GetFactorDenominator(), OrderedDouble{conversion.GetOffset()},
                           hasInverse ? KeyOf(conversion.GetCompuInverseValue()) : AbsentValue());
}

auto KeyOf(ImportDame::VAdditionalFile& file) {
    return std::wstring(file.GetPath());
}

auto KeyOf(ImportDame::VFunction& function) {
    std::vector<std::wstring> files;
    for (ImportDame::VAdditionalFile* file : InContentOrder(function.AdditionalFileCollection()))
        files.emplace_back(file->GetPath());
    return std::make_tuple(std::wstring(function.GetEntryPoint()), std::wstring(function.GetVersion()),
                           std::wstring(function.GetSyntax()), std::wstring(function.GetEncryption()),
                           std::wstring(function.SourceFile().GetPath()), std::move(files));
}

template <class Element, class Collection>
std::vector<Element*> Sorted(Collection& collection) {
    using Key = decltype(KeyOf(std::declval<Element&>()));
    std::vector<std::pair<Key, Element*>> keyed;
    for (Element& element : collection)
        keyed.emplace_back(KeyOf(element), &element);
    std::sort(keyed.begin(), keyed.end(), [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<Element*> elements;
    elements.reserve(keyed.size());
    for (const auto& [key, element] : keyed)
        elements.push_back(element);
    return elements;
}

} // namespace

std::vector<ImportDame::VInvalidRange*> InContentOrder(ImportDame::VInvalidRangeCollection& collection) {
    return Sorted<ImportDame::VInvalidRange>(collection);
}

std::vector<ImportDame::VLinearConversion*> InContentOrder(ImportDame::VLinearConversionCollection& collection) {
    return Sorted<ImportDame::VLinearConversion>(collection);
}

std::vector<ImportDame::VFunction*> InContentOrder(ImportDame::VFunctionCollection& collection) {
    return Sorted<ImportDame::VFunction>(collection);
}

std::vector<ImportDame::VAdditionalFile*> InContentOrder(ImportDame::VAdditionalFileCollection& collection) {
    return Sorted<ImportDame::VAdditionalFile>(collection);
}

} // namespace SqliteBackend
