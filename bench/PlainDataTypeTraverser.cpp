#include "PlainDataTypes.h"

// In a source of its own, as the library's is: the compiler does not see which hooks are empty.

namespace Bench::Plain::DataTypes {

void Traverser::Visit(Identity& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(Linear& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(PiecewiseLinear& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(TextTable& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(ValueTable& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(Formula& type) {
    CallHooks(*this, type);
}

void Traverser::Visit(Procedure& type) {
    CallHooks(*this, type);
}

void Traverser::PreProcess(Identity&) {}

void Traverser::PreProcess(Linear&) {}

void Traverser::PreProcess(PiecewiseLinear&) {}

void Traverser::PreProcess(TextTable&) {}

void Traverser::PreProcess(ValueTable&) {}

void Traverser::PreProcess(Formula&) {}

void Traverser::PreProcess(Procedure&) {}

void Traverser::Descend(Identity&) {}

void Traverser::Descend(Linear&) {}

void Traverser::Descend(PiecewiseLinear&) {}

void Traverser::Descend(TextTable&) {}

void Traverser::Descend(ValueTable&) {}

void Traverser::Descend(Formula&) {}

void Traverser::Descend(Procedure&) {}

void Traverser::PostProcess(Identity&) {}

void Traverser::PostProcess(Linear&) {}

void Traverser::PostProcess(PiecewiseLinear&) {}

void Traverser::PostProcess(TextTable&) {}

void Traverser::PostProcess(ValueTable&) {}

void Traverser::PostProcess(Formula&) {}

void Traverser::PostProcess(Procedure&) {}

} // namespace Bench::Plain::DataTypes
