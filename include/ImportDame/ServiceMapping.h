#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstddef>
#include <memory>

namespace ImportDame {

/// Where a model object is read from the device: variant, class, instance, service and primitive that produce it, the
/// bit position of its data, and optionally the fault memory that it describes.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the mapping
/// dies.
class IMPORTDAME_API VServiceMapping {
public:
    /// The kinds of fault memory. The library stores the number only.
    enum FaultMemoryType : unsigned int {
        primaryMemory = 0,
        mirrorMemory = 1,
        permanentMemory = 2,
        userDefinedMemory = 3,
    };

    static const int siDefaultBitPosition; ///< 0

    /// Empty texts, default bit position, no DTC pool type.
    VServiceMapping();

    /// All but a DTC pool type.
    VServiceMapping(const wchar_t* variant, const wchar_t* mappedClass, const wchar_t* instance, const wchar_t* service,
                    const wchar_t* primitive, int bitPosition);
    VServiceMapping(const VServiceMapping& other);

    /// Takes everything over from the other mapping. Assigning a mapping to itself takes its DTC pool type away.
    VServiceMapping& operator=(const VServiceMapping& other);
    virtual ~VServiceMapping();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// The variant that has the service.
    const wchar_t* GetVariant() { return m_variant.Get(); }

    void SetVariant(const wchar_t* variant);

    /// The class of the object in the target system.
    const wchar_t* GetClass() { return m_class.Get(); }

    void SetClass(const wchar_t* mappedClass);

    /// The instance of that class.
    const wchar_t* GetInstance() { return m_instance.Get(); }

    void SetInstance(const wchar_t* instance);

    /// The service to be asked.
    const wchar_t* GetService() { return m_service.Get(); }

    void SetService(const wchar_t* service);

    /// The part of the service whose data are read.
    const wchar_t* GetPrimitive() { return m_primitive.Get(); }

    void SetPrimitive(const wchar_t* primitive);

    /// In bits from the start of the primitive's data.
    int GetBitPosition() { return m_bitPosition; }

    void SetBitPosition(int bitPosition);

    /// Whether a DTC pool type is set.
    bool IsDtcPool() const { return m_dtcPoolType != nullptr; }

    /// Valid until the type is unset or the mapping is assigned to or dies. Requires: IsDtcPool() (error code 102016).
    const FaultMemoryType& GetDtcPoolType() const;
    void SetDtcPoolType(const FaultMemoryType& type);
    void UnsetDtcPoolType();

private:
    detail::Text m_variant;
    detail::Text m_class;
    detail::Text m_instance;
    detail::Text m_service;
    detail::Text m_primitive;
    int m_bitPosition = siDefaultBitPosition;
    std::unique_ptr<FaultMemoryType> m_dtcPoolType;
};

} // namespace ImportDame
