#include "support/FailedCheck.h"

#include <ImportDame/Mappable.h>
#include <ImportDame/ServiceMapping.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

VServiceMapping FullMapping() {
    VServiceMapping mapping(L"variant", L"class", L"instance", L"service", L"primitive", -12);
    mapping.SetDtcPoolType(VServiceMapping::mirrorMemory);
    return mapping;
}

void ExpectFullTexts(VServiceMapping& mapping) {
    EXPECT_STREQ(mapping.GetVariant(), L"variant");
    EXPECT_STREQ(mapping.GetClass(), L"class");
    EXPECT_STREQ(mapping.GetInstance(), L"instance");
    EXPECT_STREQ(mapping.GetService(), L"service");
    EXPECT_STREQ(mapping.GetPrimitive(), L"primitive");
    EXPECT_EQ(mapping.GetBitPosition(), -12);
}

TEST(VServiceMappingTest, StartsEmptyWithoutPoolType) {
    VServiceMapping mapping;
    EXPECT_STREQ(mapping.GetVariant(), L"");
    EXPECT_STREQ(mapping.GetClass(), L"");
    EXPECT_STREQ(mapping.GetInstance(), L"");
    EXPECT_STREQ(mapping.GetService(), L"");
    EXPECT_STREQ(mapping.GetPrimitive(), L"");
    EXPECT_EQ(mapping.GetBitPosition(), 0);
    EXPECT_EQ(VServiceMapping::siDefaultBitPosition, 0);
    EXPECT_FALSE(mapping.IsDtcPool());
}

TEST(VServiceMappingTest, TakesItsTextsInTheOrderOfTheConstructor) {
    VServiceMapping mapping(L"variant", L"class", L"instance", L"service", L"primitive", -12);
    ExpectFullTexts(mapping);
    EXPECT_FALSE(mapping.IsDtcPool());
}

TEST(VServiceMappingTest, HandsBackWhatWasSet) {
    VServiceMapping mapping;
    mapping.SetVariant(L"variant");
    mapping.SetClass(L"class");
    mapping.SetInstance(L"instance");
    mapping.SetService(L"service");
    mapping.SetPrimitive(L"primitive");
    mapping.SetBitPosition(-12);
    ExpectFullTexts(mapping);
    mapping.SetService(mapping.GetService() + 3);
    EXPECT_STREQ(mapping.GetService(), L"vice");
}

TEST(VServiceMappingTest, HasAPoolTypeFromSetToUnset) {
    VServiceMapping mapping;
    mapping.UnsetDtcPoolType();
    ExpectFailedCheck({102016, "IsDtcPool()", "ServiceMapping.cpp", 180}, [&] { mapping.GetDtcPoolType(); });
    mapping.SetDtcPoolType(VServiceMapping::primaryMemory);
    EXPECT_TRUE(mapping.IsDtcPool());
    EXPECT_EQ(mapping.GetDtcPoolType(), VServiceMapping::primaryMemory);
    mapping.UnsetDtcPoolType();
    EXPECT_FALSE(mapping.IsDtcPool());
    ExpectFailedCheck({102016, "IsDtcPool()", "ServiceMapping.cpp", 180}, [&] { mapping.GetDtcPoolType(); });
}

TEST(VServiceMappingTest, AReferenceToThePoolTypeFollowsLaterSets) {
    VServiceMapping mapping;
    mapping.SetDtcPoolType(VServiceMapping::primaryMemory);
    const auto& type = mapping.GetDtcPoolType();
    mapping.SetDtcPoolType(VServiceMapping::userDefinedMemory);
    EXPECT_EQ(type, VServiceMapping::userDefinedMemory);
    mapping.SetDtcPoolType(type);
    EXPECT_EQ(type, VServiceMapping::userDefinedMemory);
}

TEST(VServiceMappingTest, StoresAnyNumberAsPoolType) {
    static_assert(sizeof(VServiceMapping::FaultMemoryType) == 4);
    VServiceMapping mapping;
    mapping.SetDtcPoolType(static_cast<VServiceMapping::FaultMemoryType>(0xFFFFFFFFU));
    EXPECT_EQ(static_cast<unsigned int>(mapping.GetDtcPoolType()), 0xFFFFFFFFU);
}

TEST(VServiceMappingTest, ACopyIsIndependent) {
    const VServiceMapping source = FullMapping();
    VServiceMapping copy(source);
    ExpectFullTexts(copy);
    EXPECT_EQ(copy.GetDtcPoolType(), VServiceMapping::mirrorMemory);
    copy.UnsetDtcPoolType();
    EXPECT_TRUE(source.IsDtcPool());
    EXPECT_FALSE(VServiceMapping(copy).IsDtcPool());
}

TEST(VServiceMappingTest, AssignmentTakesTheStateOfTheSource) {
    VServiceMapping target;
    target.SetDtcPoolType(VServiceMapping::permanentMemory);
    const VServiceMapping source = FullMapping();
    target = source;
    ExpectFullTexts(target);
    EXPECT_EQ(target.GetDtcPoolType(), VServiceMapping::mirrorMemory);
    target = VServiceMapping();
    EXPECT_STREQ(target.GetVariant(), L"");
    EXPECT_FALSE(target.IsDtcPool());
}

TEST(VServiceMappingTest, AssignedToItselfItLosesThePoolTypeOnly) {
    VServiceMapping mapping = FullMapping();
    const VServiceMapping& self = mapping;
    mapping = self;
    ExpectFullTexts(mapping);
    EXPECT_FALSE(mapping.IsDtcPool());
}

TEST(VMappableTest, AlwaysHasAMappingOfItsOwn) {
    static_assert(std::has_virtual_destructor_v<VMappable> && std::has_virtual_destructor_v<VServiceMapping>);
    VMappable mappable;
    EXPECT_EQ(mappable.ServiceMapping().GetBitPosition(), 0);
    mappable.ServiceMapping() = FullMapping();
    VMappable copy(mappable);
    EXPECT_NE(&copy.ServiceMapping(), &mappable.ServiceMapping());
    ExpectFullTexts(copy.ServiceMapping());
    EXPECT_TRUE(copy.ServiceMapping().IsDtcPool());
}

TEST(VMappableTest, AssignmentReplacesTheMapping) {
    VMappable source;
    source.ServiceMapping() = FullMapping();
    VMappable target;
    target = source;
    ExpectFullTexts(target.ServiceMapping());
    EXPECT_NE(&target.ServiceMapping(), &source.ServiceMapping());
}

} // namespace
