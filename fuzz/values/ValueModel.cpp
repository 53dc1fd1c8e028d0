#include "values/ValueModel.h"

#include "FailedCheck.h"
#include "values/NumberModel.h"

#include <array>
#include <cstdio>

namespace Fuzz {

using ImportDame::VValue;

void ValueModel::SplitTo(std::wstring rest) {
    elements.clear();
    while (!rest.empty()) {
        const std::size_t separator = rest.find(L' ');
        if (separator == std::wstring::npos) {
            elements.push_back(rest);
            return;
        }
        elements.push_back(rest.substr(0, separator));
        rest.erase(0, separator + 1);
        while (!rest.empty() && rest[0] == L' ')
            rest.erase(0, 1);
    }
}

bool ValueModel::Equals(const ValueModel& other) const {
    if (isField != other.isField || isPhysical != other.isPhysical)
        return false;
    return isField ? elements == other.elements : text == other.text;
}

bool ValueModel::IsGreaterOrEqual(const ValueModel& other) const {
    if (isField != other.isField)
        return false;
    if (!isField)
        return NumberOf(text) >= NumberOf(other.text);
    if (elements.size() != other.elements.size())
        return elements.size() > other.elements.size();
    for (std::size_t index = 0; index < elements.size(); ++index)
        if (elements[index] != other.elements[index])
            return IntegerOf(elements[index]) >= IntegerOf(other.elements[index]);
    return true;
}

bool ValueModel::IsLessOrEqual(const ValueModel& other) const {
    if (isField != other.isField)
        return false;
    return !IsGreaterOrEqual(other) || Equals(other);
}

namespace {

void SetAsDouble(VValue& value, ValueModel& model, double number) {
    std::array<char, 512> digits;
    std::snprintf(digits.data(), digits.size(), "%f", number);
    const std::string text(digits.data());
    model.text.assign(text.begin(), text.end());
    model.isField = false;
    value.SetAsDouble(number);
}

void SetTextField(VValue& value, ValueModel& model, const std::wstring& text) {
    model.elements.clear();
    for (const wchar_t character : text)
        model.elements.emplace_back(1, character);
    model.isField = true;
    value.SetTextField(text.c_str());
}

void ClearField(VValue& value, ValueModel& model) {
    if (!model.isField)
        return ExpectFailedCheck(102039, [&] { value.ClearField(); });
    value.ClearField();
    model.elements.clear();
}

} // namespace

void Operate(VValue& value, ValueModel& model, Bytes& bytes) {
    switch (bytes.Below(7)) {
    case 0:
        model.text = bytes.Text();
        model.isField = false;
        return value.Set(model.text.c_str());
    case 1:
        model.elements.push_front(bytes.Text());
        model.isField = true;
        return value.AddFieldElement(model.elements.front().c_str());
    case 2:
        return SetTextField(value, model, bytes.Text());
    case 3: {
        const std::wstring text = bytes.Text();
        model.SplitTo(text);
        model.isField = true;
        return value.SetNonTextField(text.c_str());
    }
    case 4:
        return SetAsDouble(value, model, static_cast<std::int32_t>(bytes.Number()) / 64.0);
    case 5:
        model.isPhysical = bytes.Bool();
        return value.IsPhysical(model.isPhysical);
    default:
        return ClearField(value, model);
    }
}

void ExpectSame(VValue& value, const ValueModel& model) {
    Expect(value.IsField() == model.isField, "another quantity");
    Expect(value.IsPhysical() == model.isPhysical, "another physical flag");
    if (!model.isField) {
        Expect(value.Get() == model.text, "another text");
        ExpectFailedCheck(102037, [&] { value.GetFieldSize(); });
        ExpectFailedCheck(102038, [&] { value.IsFieldEmpty(); });
        return ExpectFailedCheck(102036, [&] { value.GetElement(0); });
    }
    ExpectFailedCheck(102034, [&] { value.Get(); });
    ExpectFailedCheck(102035, [&] { value.GetAsDouble(); });
    Expect(value.GetFieldSize() == model.elements.size(), "another field size");
    Expect(value.IsFieldEmpty() == model.elements.empty(), "wrongly empty or not empty");
    for (unsigned int index = 0; index < model.elements.size(); ++index)
        Expect(value.GetElement(index) == model.elements[index], "another element");
}

} // namespace Fuzz
