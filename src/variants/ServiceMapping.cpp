#include <ImportDame/ServiceMapping.h>

#include "core/Require.h"

#include <utility>

namespace ImportDame {

const int VServiceMapping::siDefaultBitPosition = 0;

VServiceMapping::VServiceMapping() = default;

VServiceMapping::VServiceMapping(const wchar_t* variant, const wchar_t* mappedClass, const wchar_t* instance,
                                 const wchar_t* service, const wchar_t* primitive, int bitPosition)
    : m_variant(variant), m_class(mappedClass), m_instance(instance), m_service(service), m_primitive(primitive),
      m_bitPosition(bitPosition) {}

VServiceMapping::VServiceMapping(const VServiceMapping& other)
    : m_variant(other.m_variant), m_class(other.m_class), m_instance(other.m_instance), m_service(other.m_service),
      m_primitive(other.m_primitive), m_bitPosition(other.m_bitPosition),
      m_dtcPoolType(other.IsDtcPool() ? std::make_unique<FaultMemoryType>(*other.m_dtcPoolType) : nullptr) {}

VServiceMapping::~VServiceMapping() = default;

VServiceMapping& VServiceMapping::operator=(const VServiceMapping& other) {
    if (this == &other) { // the type is forgotten before the source is asked for it
        m_dtcPoolType.reset();
        return *this;
    }
    VServiceMapping copy(other);
    m_variant = std::move(copy.m_variant);
    m_class = std::move(copy.m_class);
    m_instance = std::move(copy.m_instance);
    m_service = std::move(copy.m_service);
    m_primitive = std::move(copy.m_primitive);
    m_bitPosition = copy.m_bitPosition;
    m_dtcPoolType = std::move(copy.m_dtcPoolType);
    return *this;
}

void VServiceMapping::SetVariant(const wchar_t* variant) {
    m_variant.Set(variant);
}

void VServiceMapping::SetClass(const wchar_t* mappedClass) {
    m_class.Set(mappedClass);
}

void VServiceMapping::SetInstance(const wchar_t* instance) {
    m_instance.Set(instance);
}

void VServiceMapping::SetService(const wchar_t* service) {
    m_service.Set(service);
}

void VServiceMapping::SetPrimitive(const wchar_t* primitive) {
    m_primitive.Set(primitive);
}

void VServiceMapping::SetBitPosition(int bitPosition) {
    m_bitPosition = bitPosition;
}

const VServiceMapping::FaultMemoryType& VServiceMapping::GetDtcPoolType() const {
    detail::Require(IsDtcPool(), detail::CheckSite::ServiceMappingGetDtcPoolType);
    return *m_dtcPoolType;
}

void VServiceMapping::SetDtcPoolType(const FaultMemoryType& type) {
    if (m_dtcPoolType)
        *m_dtcPoolType = type;
    else
        m_dtcPoolType = std::make_unique<FaultMemoryType>(type);
}

void VServiceMapping::UnsetDtcPoolType() {
    m_dtcPoolType.reset();
}

} // namespace ImportDame
