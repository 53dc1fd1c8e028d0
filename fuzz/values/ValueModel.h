#pragma once

#include "Bytes.h"

#include <ImportDame/Value.h>

#include <deque>
#include <string>

namespace Fuzz {

/// What a VValue should be, told in the plainest way.
struct ValueModel {
    std::deque<std::wstring> elements;
    std::wstring text;
    bool isField = false;
    bool isPhysical = false;

    void SplitTo(std::wstring rest);

    [[nodiscard]] bool Equals(const ValueModel& other) const;
    [[nodiscard]] bool IsGreaterOrEqual(const ValueModel& other) const;
    [[nodiscard]] bool IsLessOrEqual(const ValueModel& other) const;
};

/// Does one operation to both.
void Operate(ImportDame::VValue& value, ValueModel& model, Bytes& bytes);

void ExpectSame(ImportDame::VValue& value, const ValueModel& model);

} // namespace Fuzz
