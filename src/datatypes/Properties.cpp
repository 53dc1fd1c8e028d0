#include <ImportDame/Properties.h>

namespace ImportDame {

VProperties::~VProperties() = default;

} // namespace ImportDame
