/// @file
/// The data that every model holds, in its kind of characters. They are made out of few samples beforehand, so that
/// making them is not what is measured.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Bench {

/// A text with a number in it. Requires: ASCII.
template <class Character>
std::basic_string<Character> MakeText(std::string_view before, std::size_t number, std::string_view behind = {}) {
    const std::string digits = std::to_string(number);
    std::basic_string<Character> text(before.begin(), before.end());
    text.append(digits.begin(), digits.end()).append(behind.begin(), behind.end());
    return text;
}

/// The data of the index-th element; those of elements far apart are equal.
template <class Data>
const Data& Sample(std::size_t index) {
    static const std::vector<Data> samples = [] {
        std::vector<Data> made;
        for (std::size_t number = 0; number < 70; ++number)
            made.push_back(Data::Make(number));
        return made;
    }();
    return samples[index % samples.size()];
}

/// The code of the index-th trouble code.
inline unsigned int CodeOf(std::size_t index) {
    return static_cast<unsigned int>(0x10000 + 3 * index);
}

/// A trouble code as an importer would deliver it: a record of three texts, the second one enumerated, and one
/// attribute.
template <class Character>
struct TroubleCodeData {
    using Text = std::basic_string<Character>;

    Text errorText;
    Text objectIdentifier;
    std::array<Text, 3> items;
    unsigned short enumIndex;
    Text attributeQualifier;
    Text attributeValue;

    static TroubleCodeData Make(std::size_t number) {
        return {
            .errorText = MakeText<Character>("Signal of sensor ", number, " outside its valid range"),
            .objectIdentifier = MakeText<Character>("DTC_00", number),
            .items = {MakeText<Character>("Symptom ", number), MakeText<Character>("confirmed ", number % 2),
                      MakeText<Character>("Drive to the next workshop ", number % 4)},
            .enumIndex = static_cast<unsigned short>(number % 2),
            .attributeQualifier = MakeText<Character>("Priority", number % 3),
            .attributeValue = MakeText<Character>("", number % 8),
        };
    }
};

enum class Kind { identity, linear, piecewiseLinear, textTable, valueTable, formula, procedure };

/// A scalar data type of one of the seven kinds, in turn. A row is a segment of a piecewise linear type or a row of a
/// table; other kinds take from the first two what they need.
template <class Character>
struct DataTypeData {
    using Text = std::basic_string<Character>;

    struct Row {
        Text start;
        Text end;
        Text text;
        double first;
        double second;
    };

    Kind kind;
    Text qualifier;
    Text name;
    unsigned int bitLength;
    std::array<Row, 3> rows;

    static DataTypeData Make(std::size_t number) {
        const auto makeRow = [=](std::size_t row) {
            return Row{MakeText<Character>("", 10 * row), MakeText<Character>("", 10 * row + 9),
                       MakeText<Character>("Operating state ", number + row), 0.5 + static_cast<double>(row),
                       static_cast<double>(number)};
        };
        return {
            .kind = static_cast<Kind>(number % 7),
            .qualifier = MakeText<Character>("DT_Signal_", number),
            .name = MakeText<Character>("Signal ", number, " of the engine"),
            .bitLength = static_cast<unsigned int>(8 * (1 + number % 4)),
            .rows = {makeRow(0), makeRow(1), makeRow(2)},
        };
    }
};

/// A packet of two data objects with constant values, a bit field of two more, and a gap.
template <class Character>
struct PacketData {
    using Text = std::basic_string<Character>;

    Text qualifier;
    std::array<Text, 2> objects;
    Text constant;
    Text bitField;
    std::array<Text, 2> bits;
    unsigned int gap;

    static PacketData Make(std::size_t number) {
        return {
            .qualifier = MakeText<Character>("PKT_Response_", number),
            .objects = {MakeText<Character>("SID_", number), MakeText<Character>("LID_", number)},
            .constant = MakeText<Character>("", 0x22 + number),
            .bitField = MakeText<Character>("Status_Bits_", number),
            .bits = {MakeText<Character>("Lamp_", number), MakeText<Character>("Stored_", number)},
            .gap = static_cast<unsigned int>(number % 8),
        };
    }
};

} // namespace Bench
