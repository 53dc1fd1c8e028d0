#include "values/ValueModel.h"

namespace Fuzz {

namespace {

struct Pair {
    ImportDame::VValue value;
    ValueModel model;
};

void Compare(const Pair& left, const Pair& right) {
    Expect((left.value == right.value) == left.model.Equals(right.model), "wrong ==");
    Expect((left.value != right.value) != left.model.Equals(right.model), "wrong !=");
    Expect((left.value >= right.value) == left.model.IsGreaterOrEqual(right.model), "wrong >=");
    Expect((left.value <= right.value) == left.model.IsLessOrEqual(right.model), "wrong <=");
}

} // namespace

void CompareValues(Input input) {
    Bytes bytes(input);
    Pair pairs[2];
    while (!bytes.IsEmpty()) {
        const std::size_t choice = bytes.Below(16);
        Pair& pair = pairs[choice % 2];
        if (choice == 15)
            pairs[0] = pairs[1]; // most texts are similar only where one was a copy of the other
        else
            Operate(pair.value, pair.model, bytes);
        ExpectSame(pair.value, pair.model);
        Compare(pairs[0], pairs[1]);
        Compare(pairs[1], pairs[0]);
        Compare(pairs[0], pairs[0]);
    }
    Pair copy(pairs[0]);
    ExpectSame(copy.value, copy.model);
}

} // namespace Fuzz
