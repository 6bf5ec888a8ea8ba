#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

constexpr CLSID kUnknownClass = {
    0x0B6C1F7E, 0x52D4, 0x4C0A, {0x8E, 0x3D, 0x91, 0x7F, 0x60, 0x2A, 0xC5, 0x18}};

HRESULT GetClassObject(REFCLSID classId, REFIID riid, void** object)
{
    return TheComponent().GetClassObject(classId, riid, object);
}

TEST(ClassObjects, NullOutPointerIsRefused)
{
    EXPECT_EQ(GetClassObject(CLSID_TAMURStructureReader, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(GetClassObject(kUnknownClass, IID_IClassFactory, nullptr), E_POINTER);
}

TEST(ClassObjects, OnlyReaderAndSurfaceAccessorHaveThem)
{
    // The other declared classes come from a reader only.
    for (const CLSID* const classId :
         {&CLSID_TMRMaterialAccessor, &CLSID_TMROuvertureAccessor, &CLSID_TMRParoiAccessor,
          &CLSID_TMRMasseAccessor, &CLSID_TMRCableAccessor, &CLSID_TMRLineAideAccessor,
          &CLSID_TMRLineInterieurAccessor, &CLSID_TMRDeplacementAccessor,
          &CLSID_TMRSurfacicSectionAccessor, &kUnknownClass}) {
        void* object = nullptr;
        EXPECT_EQ(GetClassObject(*classId, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
        EXPECT_EQ(object, nullptr);
    }
    for (const CLSID* const classId : kCreatableClasses) EXPECT_TRUE(ClassObject(*classId));
}

TEST(ClassObjects, EveryByteOfTheClassIdentifierCounts)
{
    for (std::size_t i = 0; i < sizeof(CLSID); ++i) {
        CLSID classId = CLSID_TAMURStructureReader;
        reinterpret_cast<unsigned char*>(&classId)[i] ^= 1;
        void* object = nullptr;
        EXPECT_EQ(GetClassObject(classId, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    }
}

TEST(ClassObjects, InterfaceThatTheyLackIsRefused)
{
    void* object = &object;
    EXPECT_EQ(GetClassObject(CLSID_TAMURStructureReader, IID_ITAMURStructureReader, &object),
              E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_TRUE(TheComponent().CanUnloadNow());
}

TEST(ClassObjects, AskingTwiceGivesTheSameOne)
{
    for (const CLSID* const classId : kCreatableClasses) {
        EXPECT_EQ(ClassObject(*classId).Get(), ClassObject(*classId).Get());
    }
    EXPECT_NE(ClassObject(*kCreatableClasses[0]).Get(), ClassObject(*kCreatableClasses[1]).Get());
}

TEST(ClassObjects, TwoThreadsGetTheSameOne)
{
    constexpr int kRounds = 10000;
    const auto first = ClassObject(CLSID_TAMURStructureReader);
    std::atomic<int> others = 0;
    const auto ask = [&] {
        for (int i = 0; i < kRounds; ++i) {
            if (ClassObject(CLSID_TAMURStructureReader).Get() != first.Get()) ++others;
        }
    };
    std::thread one(ask);
    std::thread two(ask);
    one.join();
    two.join();
    EXPECT_EQ(others, 0);
    EXPECT_EQ(first->AddRef(), 3u);  // the component's own, ours, this
    first->Release();
}

TEST(ClassObjects, CreateInstanceRefusesANullOutPointer)
{
    for (const CLSID* const classId : kCreatableClasses) {
        EXPECT_EQ(ClassObject(*classId)->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    }
}

TEST(ClassObjects, CreateInstanceLeavesNothingWhenTheInterfaceIsForeign)
{
    for (const CLSID* const classId : kCreatableClasses) {
        void* object = &object;
        EXPECT_EQ(ClassObject(*classId)->CreateInstance(nullptr, IID_ITMRNodeAccessor, &object),
                  E_NOINTERFACE);
        EXPECT_EQ(object, nullptr);
    }
    EXPECT_TRUE(TheComponent().CanUnloadNow());
}

TEST(ClassObjects, EveryInstanceIsNew)
{
    const auto one = NewReader();
    const auto two = NewReader();
    EXPECT_NE(one.Get(), two.Get());
}

}  // namespace
}  // namespace tamur::test
