#include <ImportDame/Mappable.h>

namespace ImportDame {

VMappable::VMappable() : m_serviceMapping(std::make_unique<VServiceMapping>()) {}

VMappable::VMappable(const VMappable& other)
    : m_serviceMapping(std::make_unique<VServiceMapping>(*other.m_serviceMapping)) {}

VMappable::~VMappable() = default;

VMappable& VMappable::operator=(const VMappable& other) {
    m_serviceMapping = std::make_unique<VServiceMapping>(*other.m_serviceMapping);
    return *this;
}

VServiceMapping& VMappable::ServiceMapping() {
    return *m_serviceMapping;
}

} // namespace ImportDame
