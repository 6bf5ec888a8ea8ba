#include <gtest/gtest.h>

#include "conformance/class_objects.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

// An outer object on the stack that offers what its inner part has.
class Outer final : public IUnknown {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
    {
        if (object == nullptr) return E_POINTER;
        if (!IsEqualIID(riid, IID_IUnknown)) return inner_->QueryInterface(riid, object);
        AddRef();
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return --references_; }

    HRESULT CreateInner(REFCLSID classId)
    {
        return ClassObject(classId)->CreateInstance(this, IID_IUnknown, inner_.PutVoid());
    }
    [[nodiscard]] IUnknown& Inner() const { return *inner_; }
    [[nodiscard]] ULONG References() const { return references_; }

 private:
    ComPtr<IUnknown> inner_;
    ULONG references_ = 1;
};

struct Class {
    const char* name;
    const CLSID* id;
    const IID* interfaceId;
};

void PrintTo(const Class& tested, std::ostream* out)
{
    *out << tested.name;
}

class Aggregation : public testing::TestWithParam<Class> {};

TEST_P(Aggregation, InnerUnknownIsItsOwn)
{
    Outer outer;
    ASSERT_EQ(outer.CreateInner(*GetParam().id), S_OK);
    EXPECT_EQ(outer.References(), 1u);  // else the two would keep each other alive
    const auto unknown = Ask<IUnknown>(outer.Inner(), IID_IUnknown);
    EXPECT_EQ(unknown.Get(), &outer.Inner());
    EXPECT_NE(unknown.Get(), &outer);
    EXPECT_EQ(outer.References(), 1u);
}

TEST_P(Aggregation, InnerUnknownNeedsAPlaceForItsAnswer)
{
    Outer outer;
    ASSERT_EQ(outer.CreateInner(*GetParam().id), S_OK);
    EXPECT_EQ(outer.Inner().QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_P(Aggregation, InterfacesBelongToTheOuterObject)
{
    Outer outer;
    ASSERT_EQ(outer.CreateInner(*GetParam().id), S_OK);
    for (const IID* const id : {GetParam().interfaceId, &IID_ISupportErrorInfo}) {
        const auto held = Ask<IUnknown>(outer.Inner(), *id);
        EXPECT_EQ(outer.References(), 2u);
        EXPECT_EQ(Ask<IUnknown>(*held, IID_IUnknown).Get(), &outer);
        EXPECT_EQ(Ask<IUnknown>(*held, *GetParam().interfaceId).Get(),
                  Ask<IUnknown>(outer, *GetParam().interfaceId).Get());
        EXPECT_EQ(held->AddRef(), 3u);
        EXPECT_EQ(held->Release(), 2u);
    }
    EXPECT_EQ(outer.References(), 1u);
}

TEST_P(Aggregation, InnerPartKeepsTheLibraryLoadedUntilItEnds)
{
    {
        Outer outer;
        ASSERT_EQ(outer.CreateInner(*GetParam().id), S_OK);
        EXPECT_FALSE(TheComponent().CanUnloadNow());
        EXPECT_EQ(outer.Inner().AddRef(), 2u);
        EXPECT_EQ(outer.Inner().Release(), 1u);
    }
    EXPECT_TRUE(TheComponent().CanUnloadNow());
}

TEST_P(Aggregation, OuterObjectMustAskForIUnknown)
{
    Outer outer;
    for (const IID* const id : {GetParam().interfaceId, &IID_ISupportErrorInfo}) {
        void* inner = &inner;
        EXPECT_EQ(ClassObject(*GetParam().id)->CreateInstance(&outer, *id, &inner),
                  CLASS_E_NOAGGREGATION);
        EXPECT_EQ(inner, nullptr);
    }
    EXPECT_EQ(outer.References(), 1u);
    EXPECT_TRUE(TheComponent().CanUnloadNow());
}

INSTANTIATE_TEST_SUITE_P(CreatableClasses, Aggregation,
                         testing::Values(Class{"Reader", &CLSID_TAMURStructureReader,
                                               &IID_ITAMURStructureReader},
                                         Class{"SurfaceAccessor", &CLSID_TMRSurfaciqueAccessor,
                                               &IID_ITMRSurfaciqueAccessor}),
                         [](const auto& tested) { return tested.param.name; });

TEST(AggregatedReader, Imports)
{
    Outer outer;
    ASSERT_EQ(outer.CreateInner(CLSID_TAMURStructureReader), S_OK);
    const auto reader = Ask<ITAMURStructureReader>(outer, IID_ITAMURStructureReader);
    EXPECT_EQ(ImportText(*reader, ModelText().Elements({"1 7 0 1 0 0 0 0 0 0 0 0"})), S_OK);
    EXPECT_EQ(Nodes(*reader).Size(), 1);
}

}  // namespace
}  // namespace tamur::test
