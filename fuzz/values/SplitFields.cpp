#include "values/ValueModel.h"

namespace Fuzz {

void SplitFields(Input input) {
    Bytes bytes(input);
    ImportDame::VValue value(L"before");
    ValueModel model{{}, L"before", false, false};
    while (!bytes.IsEmpty()) {
        const std::wstring text = bytes.Text();
        value.SetNonTextField(text.c_str());
        model.SplitTo(text);
        model.isField = true;
        ExpectSame(value, model);
    }
    value.Set(L"after");
    Expect(std::wstring(value.Get()) == L"after", "the field stays in force");
}

} // namespace Fuzz
