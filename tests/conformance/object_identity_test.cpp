// What every object of the component owes to COM: identity, QueryInterface, reference counts.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "support/accessor_kinds.h"
#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

// An interface that nothing in the component has.
constexpr IID kForeign = {
    0x3F1A9D52, 0x7C0B, 0x4E7D, {0x9A, 0x61, 0x2B, 0x5C, 0x88, 0x10, 0x44, 0xE3}};
constexpr IID kDispatch = {0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

struct LiveObject {
    ComPtr<ITAMURStructureReader> reader;  // kept alive for accessors
    ComPtr<IUnknown> object;
};

struct ObjectKind {
    std::string name;
    std::vector<const IID*> interfaces;  // all that it has
    std::function<LiveObject()> make;
    bool isClassObject = false;  // the component itself keeps one reference
};

void PrintTo(const ObjectKind& kind, std::ostream* out)
{
    *out << kind.name;
}

ComPtr<IUnknown> Unknown(IUnknown& object)
{
    return Ask<IUnknown>(object, IID_IUnknown);
}

std::vector<ObjectKind> ObjectKinds()
{
    std::vector<ObjectKind> kinds = {
        {"Reader",
         {&IID_IUnknown, &IID_ITAMURStructureReader, &IID_ISupportErrorInfo},
         [] {
             return LiveObject{{}, Unknown(*NewReader())};
         }},
        {"CreatedSurfaceAccessor",
         {&IID_IUnknown, &IID_IGenericAccessor, &IID_ITMRSurfaciqueAccessor,
          &IID_ISupportErrorInfo},
         [] {
             return LiveObject{{}, Unknown(*NewSurfaceAccessor())};
         }},
        {"ReaderClassObject",
         {&IID_IUnknown, &IID_IClassFactory},
         [] {
             return LiveObject{{}, Unknown(*ClassObject(CLSID_TAMURStructureReader))};
         },
         true},
        {"SurfaceAccessorClassObject",
         {&IID_IUnknown, &IID_IClassFactory},
         [] {
             return LiveObject{{}, Unknown(*ClassObject(CLSID_TMRSurfaciqueAccessor))};
         },
         true},
    };
    for (const AccessorKind& accessor : AccessorKinds()) {
        ObjectKind kind = {accessor.name, {&IID_IUnknown, &IID_IGenericAccessor, accessor.id}, {}};
        if (accessor.supportsErrorInfo) kind.interfaces.push_back(&IID_ISupportErrorInfo);
        kind.make = [&accessor] {
            LiveObject live = {NewReader(), {}};
            live.object = accessor.make(*live.reader);
            return live;
        };
        kinds.push_back(kind);
    }
    return kinds;
}

// Every interface that some object of the component has, and two that none has.
std::vector<const IID*> AllInterfaces()
{
    std::vector<const IID*> all = {&kForeign, &kDispatch};
    for (const ObjectKind& kind : ObjectKinds()) {
        all.insert(all.end(), kind.interfaces.begin(), kind.interfaces.end());
    }
    return all;
}

class ObjectIdentity : public testing::TestWithParam<ObjectKind> {
 protected:
    LiveObject live_ = GetParam().make();
    IUnknown& object_ = *live_.object;
};

TEST_P(ObjectIdentity, EveryInterfaceLeadsToItselfAndToEveryOther)
{
    for (const IID* const from : GetParam().interfaces) {
        const auto source = Ask<IUnknown>(object_, *from);
        for (const IID* const to : GetParam().interfaces) {
            const auto target = Ask<IUnknown>(*source, *to);
            EXPECT_EQ(Ask<IUnknown>(*target, *from).Get(), source.Get());
        }
    }
}

TEST_P(ObjectIdentity, EveryInterfaceNamesTheSameUnknown)
{
    const auto identity = Unknown(object_);
    for (const IID* const id : GetParam().interfaces) {
        EXPECT_EQ(Unknown(*Ask<IUnknown>(object_, *id)).Get(), identity.Get());
    }
}

TEST_P(ObjectIdentity, ForeignInterfacesAreRefusedFromEveryInterface)
{
    const auto isForeign = [](const IID* id) {
        const auto& own = GetParam().interfaces;
        return std::none_of(own.begin(), own.end(),
                            [&](const IID* one) { return IsEqualIID(*one, *id); });
    };
    for (const IID* const from : GetParam().interfaces) {
        const auto source = Ask<IUnknown>(object_, *from);
        for (const IID* const id : AllInterfaces()) {
            if (!isForeign(id)) continue;
            void* answer = &answer;
            EXPECT_EQ(source->QueryInterface(*id, &answer), E_NOINTERFACE);
            EXPECT_EQ(answer, nullptr);
        }
    }
}

TEST_P(ObjectIdentity, NullOutPointerIsRefused)
{
    for (const IID* const id : GetParam().interfaces) {
        EXPECT_EQ(object_.QueryInterface(*id, nullptr), E_POINTER);
    }
    EXPECT_EQ(object_.QueryInterface(kForeign, nullptr), E_POINTER);
}

TEST_P(ObjectIdentity, EveryInterfaceCountsTheSameReferences)
{
    const ULONG before = object_.AddRef();
    for (const IID* const id : GetParam().interfaces) {
        const auto held = Ask<IUnknown>(object_, *id);
        EXPECT_EQ(held->AddRef(), before + 2);
        EXPECT_EQ(object_.Release(), before + 1);
    }
    EXPECT_EQ(object_.Release(), before - 1);
}

TEST_P(ObjectIdentity, LastReleaseEndsItAndLetsTheLibraryGo)
{
    EXPECT_FALSE(TheComponent().CanUnloadNow());
    IUnknown* const object = live_.object.Get();
    object->AddRef();
    live_.object = {};
    const ULONG left = object->Release();
    EXPECT_EQ(left, GetParam().isClassObject ? 1u : 0u);
    live_.reader = {};
    EXPECT_TRUE(TheComponent().CanUnloadNow());
}

INSTANTIATE_TEST_SUITE_P(Every, ObjectIdentity, testing::ValuesIn(ObjectKinds()),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace tamur::test
